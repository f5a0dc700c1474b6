#include "editors/PanelFrame.h"

#include "editors/ScrollColumn.h"
#include "editors/SubmitReset.h"
#include "look/Measures.h"
#include "look/Section.h"
#include "look/WordLabel.h"

#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>

#include <limits>

using namespace Qt::StringLiterals;

namespace {

constexpr int besideScrollBar = 4;
constexpr int leastLabelColumn = 112; // pixels, so that the fields of a panel's forms stand in one line

} // namespace

PanelFrame::PanelFrame(const QString& heading, QWidget* panel) : QFrame(panel)
{
    setObjectName(u"PanelFrame"_s);
    panel->setAccessibleName(heading);
    auto* around = new QVBoxLayout(panel);
    around->setContentsMargins(0, 0, 0, 0);
    around->addWidget(this);

    m_whole = new QVBoxLayout(this);
    m_whole->setContentsMargins(16, Measure::Wide, 16, Measure::Wide);
    m_whole->setSpacing(Measure::Wide);
    auto* title = new WordLabel(WordLabel::Kind::Title, heading, this);
    title->setWordWrap(true);
    m_whole->addWidget(title);

    auto* content = new QWidget(this);
    m_groups = new QVBoxLayout(content);
    m_groups->setContentsMargins(0, 0, besideScrollBar, 0);
    m_groups->setSpacing(Measure::Section);
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
    auto* group = new Section(caption, this);
    auto* form = new QFormLayout(group);
    form->setContentsMargins(0, Measure::Gap, 0, 0);
    form->setHorizontalSpacing(Measure::Wide);
    form->setVerticalSpacing(Measure::Gap);
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    form->setLabelAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    addGroup(group, stretches);
    return form;
}

QVBoxLayout* PanelFrame::addColumn(const QString& caption, bool stretches)
{
    auto* group = new Section(caption, this);
    auto* column = new QVBoxLayout(group);
    column->setContentsMargins(0, Measure::Tight, 0, 0);
    column->setSpacing(0);
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
    form->addRow(captionOf(label, field), field);
}

QLabel* captionOf(const QString& label, QWidget* field)
{
    auto* caption = new QLabel(label, field->parentWidget());
    caption->setBuddy(field);
    caption->setMinimumWidth(leastLabelColumn - Measure::Wide);
    caption->setFixedHeight(controlHeight(caption->fontMetrics())); // on the middle of the field, or of its first line
    return caption;
}

void setAside(const QFormLayout* form, QWidget* aside)
{
    qobject_cast<Section*>(form->parentWidget())->setAside(aside);
}

QLineEdit* textField(QWidget* parent)
{
    auto* field = new QLineEdit(parent);
    field->setMaxLength(std::numeric_limits<int>::max());
    return field;
}
