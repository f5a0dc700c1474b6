// The fixture of the tests with templates: the sample shop's templates in the managers of their pages.
#pragma once

#include "DesignTest.h"
#include "template_engine/Templates_Set.h"

#include <QLabel>

class TemplatesTest : public DesignTest
{
protected:
    void SetUp() override;

    // Opens the manager that this button leads to, with its template in front.
    void openInDesign(const char* button);

    QCheckBox* advanced(const ManagerCase& manager) const { return in<QCheckBox>(manager.advancedControl); }
    // Switches the advanced mode, and answers what is asked about it.
    void switchOn(const ManagerCase& manager, bool answer = true);
    void switchOff(const ManagerCase& manager, bool answer = true);
    // Opens a manager's template where it can be changed.
    void edit(const ManagerCase& manager);
    // The same with the category page's template, which holds these bytes.
    void editCategoryTemplate(const QByteArray& bytes);

    // Whether the template can be changed, saved and restored.
    bool isEditable() const;
    QPlainTextEdit* field() const { return in<QPlainTextEdit>("TemplateTxt"); }
    void appendToTemplate(const QString& text);
    QString state() const { return in<QLabel>("TemplateStateLbl")->text(); }
    QColor stateColour() const { return in("TemplateStateLbl")->palette().color(QPalette::WindowText); }

    QString pathOf(const char* page) const
    {
        return files.path(QStringLiteral("templates/%1.html").arg(QLatin1String(page)));
    }
    QString factoryPathOf(const char* page) const { return pathOf(page) + QStringLiteral(".def"); }
    Templates_Set& set() const { return window->CurrentTemplatesSet(); }
    bool hasTemplate(const char* page) const { return set().templates.hasKey(QLatin1String(page)); }

    const ManagerCase category = managers[4];
    const QString noMistakes = QStringLiteral("No mistakes: every tag and every block is closed.");
    const QString openBlock = QStringLiteral("<!--:if:open=Yes:-->");
};
