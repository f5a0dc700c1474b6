#include "editors/PanelFrame.h"

#include "editors/ScrollColumn.h"
#include "editors/SubmitReset.h"
#include "look/Measures.h"
#include "look/Section.h"

#include <QFormLayout>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr int besideScrollBar = 4;

} // namespace

PanelFrame::PanelFrame(const QString& heading, QWidget* panel) : QFrame(panel)
{
    setObjectName(u"PanelFrame"_s);
    panel->setAccessibleName(heading);
    auto* around = new QVBoxLayout(panel);
    around->setContentsMargins(0, 0, 0, 0);
    around->addWidget(this);

    m_whole = newPanelColumn(this, heading);
    auto* content = new QWidget(this);
    m_groups = new QVBoxLayout(content);
    m_groups->setContentsMargins(0, 0, besideScrollBar, 0);
    m_groups->setSpacing(Measure::Section);
    m_groups->addStretch(1);
    m_whole->addWidget(new ScrollColumn(content, this), 1);
}

void PanelFrame::addGroup(QWidget* group, Height height)
{
    m_groups->insertWidget(m_groups->count() - 1, group, height == Height::Rest ? 1 : 0);
    if (height == Height::Rest && !m_isFilled) {
        m_isFilled = true;
        m_groups->setStretch(m_groups->count() - 1, 0);
    }
}

QFormLayout* PanelFrame::addForm(const QString& caption, Height height)
{
    auto* group = new Section(caption, this);
    QFormLayout* form = newForm(group);
    form->setContentsMargins(0, Measure::Gap, 0, 0);
    form->setLabelAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    addGroup(group, height);
    return form;
}

QVBoxLayout* PanelFrame::addColumn(const QString& caption, Height height)
{
    auto* group = new Section(caption, this);
    auto* column = new QVBoxLayout(group);
    column->setContentsMargins(0, Measure::Tight, 0, 0);
    column->setSpacing(0);
    addGroup(group, height);
    return column;
}

void PanelFrame::addButtons(PanelHost& host)
{
    auto* buttons = new SubmitReset(host, this);
    buttons->layout()->setContentsMargins(0, 0, besideScrollBar, 0); // end where the groups end
    m_whole->addWidget(buttons);
}
