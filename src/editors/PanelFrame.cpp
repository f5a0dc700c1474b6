#include "editors/PanelFrame.h"

#include "editors/ScrollColumn.h"
#include "editors/SubmitReset.h"

#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>

#include <limits>

using namespace Qt::StringLiterals;

namespace {

constexpr int fieldWidth = 620; // pixels; a line of text that is longer is hard to read
constexpr int besideScrollBar = 4;

} // namespace

PanelFrame::PanelFrame(const QString& heading, QWidget* panel) : QFrame(panel)
{
    setObjectName(u"PanelFrame"_s);
    panel->setAccessibleName(heading);
    auto* around = new QVBoxLayout(panel);
    around->setContentsMargins(0, 0, 0, 0);
    around->addWidget(this);

    m_whole = new QVBoxLayout(this);
    m_whole->setContentsMargins(16, 12, 16, 12);
    m_whole->setSpacing(10);
    auto* title = new QLabel(heading, this);
    QFont font = title->font();
    font.setPointSizeF(font.pointSizeF() * 1.4);
    font.setBold(true);
    title->setFont(font);
    title->setWordWrap(true);
    m_whole->addWidget(title);

    auto* content = new QWidget(this);
    m_groups = new QVBoxLayout(content);
    m_groups->setContentsMargins(0, 0, besideScrollBar, 0);
    m_groups->setSpacing(12);
    m_groups->addStretch(1);
    m_whole->addWidget(new ScrollColumn(content, this), 1);
}

void PanelFrame::addGroup(QWidget* group, bool stretches)
{
    m_groups->insertWidget(m_groups->count() - 1, group, stretches ? 1 : 0);
    if (stretches && !m_isStretched) {
        m_isStretched = true;
        m_groups->setStretch(m_groups->count() - 1, 0);
    }
}

QFormLayout* PanelFrame::addForm(const QString& caption, bool stretches)
{
    auto* group = new QGroupBox(caption, this);
    auto* form = new QFormLayout(group);
    form->setContentsMargins(14, 10, 14, 14);
    form->setHorizontalSpacing(14);
    form->setVerticalSpacing(9);
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    form->setLabelAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    addGroup(group, stretches);
    return form;
}

QVBoxLayout* PanelFrame::addColumn(const QString& caption, bool stretches)
{
    auto* group = new QGroupBox(caption, this);
    auto* column = new QVBoxLayout(group);
    column->setContentsMargins(14, 10, 14, 14);
    column->setSpacing(9);
    addGroup(group, stretches);
    return column;
}

void PanelFrame::addButtons(PanelHost& host)
{
    auto* buttons = new SubmitReset(host, this);
    buttons->layout()->setContentsMargins(0, 0, besideScrollBar, 0); // end where the groups end
    m_whole->addWidget(buttons);
}

void addField(QFormLayout* form, const QString& label, QWidget* field, const char* name)
{
    named(field, name, label);
    field->setMaximumWidth(fieldWidth);
    auto* caption = new QLabel(label, field->parentWidget());
    caption->setBuddy(field);
    form->addRow(caption, field);
}

QLineEdit* textField(QWidget* parent)
{
    auto* field = new QLineEdit(parent);
    field->setMaxLength(std::numeric_limits<int>::max());
    return field;
}
