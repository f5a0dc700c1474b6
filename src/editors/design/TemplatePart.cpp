#include "editors/design/TemplatePart.h"

#include "base/ApplicationTitle.h"
#include "base/FileBytes.h"
#include "base/TextFile.h"
#include "editors/PanelHost.h"
#include "editors/design/ManagerTables.h"
#include "editors/design/TemplateEditor.h"
#include "look/Measures.h"
#include "model/ShopSession.h"
#include "template_engine/Templates_Set.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

TemplatePart::TemplatePart(PanelHost& host, const ManagerTable& table, QWidget* parent)
    : QWidget(parent),
      m_host(host),
      m_table(table),
      AdvancedCh(new QCheckBox(u"&Advanced mode: edit the page's template by hand"_s, this)),
      m_editor(new TemplateEditor(table.savesTemplate, this)),
      SaveTemplteBtn(new QPushButton(u"Save template"_s, this)),
      RestoreTemplateBtn(new QPushButton(u"Restore the factory template"_s, this))
{
    AdvancedCh->setObjectName(QLatin1String(table.advancedControl));
    SaveTemplteBtn->setObjectName(u"SaveTemplteBtn"_s);
    RestoreTemplateBtn->setObjectName(u"RestoreTemplateBtn"_s);

    auto* buttons = new QHBoxLayout;
    buttons->addWidget(SaveTemplteBtn);
    buttons->addWidget(RestoreTemplateBtn);
    buttons->addStretch(1);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, Measure::Gap, Measure::Tight, 0);
    column->setSpacing(Measure::Gap);
    column->addWidget(AdvancedCh);
    column->addWidget(m_editor, 1);
    column->addLayout(buttons);

    connectGuarded(m_host.errorHandler(), AdvancedCh, &QCheckBox::toggled, this,
                   [this](bool on) { advancedToggled(on); });
    connectGuarded(m_host.errorHandler(), SaveTemplteBtn, &QPushButton::clicked, this, &TemplatePart::save);
    connectGuarded(m_host.errorHandler(), RestoreTemplateBtn, &QPushButton::clicked, this, &TemplatePart::restore);
}

void TemplatePart::load(bool advanced)
{
    if (isAbsent()) {
        m_host.CurrentTemplatesSet().reloadAbsent();
    }
    showTemplate();
    setAdvanced(advanced);
    enableTemplate(advanced);
}

bool TemplatePart::isAdvanced() const
{
    return AdvancedCh->isChecked();
}

void TemplatePart::advancedToggled(bool on)
{
    if (m_guard) {
        return;
    }
    UserPrompts& prompts = m_host.session().prompts;
    if (on) {
        if (prompts.askYesNo(applicationTitle(), u"Are you sure you want to switch to advanced mode?"_s)) {
            enableTemplate(true);
        } else {
            setAdvanced(false);
        }
        return;
    }
    if (prompts.askYesNo(applicationTitle(), QLatin1String(m_table.switchBackQuestion))) {
        enableTemplate(false);
        restore();
    } else {
        setAdvanced(true);
    }
}

void TemplatePart::setAdvanced(bool on)
{
    const QScopedValueRollback guard(m_guard, true);
    AdvancedCh->setChecked(on);
}

void TemplatePart::enableTemplate(bool enable)
{
    m_editor->setEditable(enable);
    SaveTemplteBtn->setEnabled(enable);
    RestoreTemplateBtn->setEnabled(enable);
}

void TemplatePart::showTemplate()
{
    m_refused.reset();
    Templates_Set& templates = m_host.CurrentTemplatesSet();
    const QString page = nameOf(m_table.page);
    if (!isAbsent()) {
        m_editor->showTemplate(templates.templates.Item(page)->template_text);
        return;
    }
    try {
        m_editor->showUnusable(templates.textOfFile(page));
    } catch (const RuntimeError& error) {
        m_editor->showUnusable({}, u"The template cannot be read: %1."_s.arg(error.description()));
    }
}

bool TemplatePart::isAbsent() const
{
    return !m_host.CurrentTemplatesSet().templates.hasKey(nameOf(m_table.page));
}

void TemplatePart::save()
{
    Templates_Set& templates = m_host.CurrentTemplatesSet();
    const QString page = nameOf(m_table.page);
    writeFileBytes(fileOf(".html"), encodeText(m_editor->editedText() + u"\r\n"_s, templates.encodingOf(page)));
    templates.ReLoad(page, page);
}

void TemplatePart::saveWithPanel()
{
    const bool isEdited = m_editor->isEdited();
    if (isAbsent() && !isEdited) {
        return;
    }
    if (m_host.CurrentTemplatesSet().isChangedOutside(nameOf(m_table.page)) && !(isEdited && isOverwritingWanted())) {
        return;
    }
    save();
}

bool TemplatePart::isOverwritingWanted()
{
    const QString text = m_editor->editedText();
    if (m_refused == text) {
        return false; // a panel is saved more than once while it is left
    }
    if (m_host.session().prompts.askYesNoWithDefaultNo(
            applicationTitle(), u"The template was changed by another program. Overwrite it?"_s)) {
        return true;
    }
    m_refused = text;
    return false;
}

void TemplatePart::restore()
{
    Templates_Set& templates = m_host.CurrentTemplatesSet();
    const QString page = nameOf(m_table.page);
    const bool wasAbsent = isAbsent();
    writeFileBytes(fileOf(".html"), readFileBytes(fileOf(".html.def")));
    templates.ReLoad(page, page);
    if (wasAbsent) {
        templates.reloadAbsent();
    }
    showTemplate();
}

QString TemplatePart::fileOf(const char* ending) const
{
    return m_host.CurrentTemplatesSet().Path + nameOf(m_table.page) + QLatin1String(ending);
}
