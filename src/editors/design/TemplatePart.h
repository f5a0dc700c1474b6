// The template of one page in its manager: the check box of the advanced mode with its two questions, the text, and the
// buttons that write the template and that bring the factory copy back. PageManager owns one.
#pragma once

#include <QWidget>

#include <optional>

class PanelHost;
class QCheckBox;
class QPushButton;
class TemplateEditor;
struct ManagerTable;

class TemplatePart : public QWidget
{
    Q_OBJECT

public:
    // The host and the table must outlive it.
    TemplatePart(PanelHost& host, const ManagerTable& table, QWidget* parent);

    // Shows the page's template and that state of the advanced mode, without a question. When the set has no template
    // of the page, every absent page is read once more; one that stays absent shows the text of its file, or nothing.
    void load(bool advanced);
    bool isAdvanced() const;

    // Writes the text and one line break behind it to the page's file and reads the page again. The text is not filled
    // anew, so that saving twice writes the same bytes. Errors as for writeFileBytes and Templates_Set::ReLoad.
    void save();
    // The same as a part of the panel. It writes nothing where the page is absent and its text as the file has it. A
    // file that another program changed is overwritten by an edited text only, and only when the user wants it; a text
    // is asked about once.
    void saveWithPanel();
    // Copies the factory copy over the page's file, reads the page again and shows it; where the page was absent, the
    // other absent ones are read again, too. Errors as for readFileBytes, writeFileBytes and Templates_Set::ReLoad.
    void restore();

private:
    void advancedToggled(bool on);
    void setAdvanced(bool on);
    void enableTemplate(bool enable);
    void showTemplate();
    bool isAbsent() const;
    bool isOverwritingWanted();
    QString fileOf(const char* ending) const;

    PanelHost& m_host;
    const ManagerTable& m_table;
    QCheckBox* AdvancedCh;
    TemplateEditor* m_editor;
    QPushButton* SaveTemplteBtn;
    QPushButton* RestoreTemplateBtn;
    std::optional<QString> m_refused; // the text that was not to overwrite the file
    bool m_guard = false;             // the check box is set by the program: no question
};
