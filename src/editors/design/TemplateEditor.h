// Edits the text of a page's template: TemplateTxt with a row to find something in it, and under it a line that tells
// while one types whether the template would parse and, if not, what is wrong, where, and what saving it would do.
// TemplatePart owns one.
#pragma once

#include <QTextDocument>
#include <QWidget>

class QLabel;
class QLineEdit;
class QPushButton;
class WordLabel;
class TemplateText;

class TemplateEditor : public QWidget
{
    Q_OBJECT

public:
    // Whether leaving the panel writes the text, too, and not the button alone.
    TemplateEditor(bool writtenOnLeaving, QWidget* parent);

    // Shows the text of a template. The cursor goes to its start.
    void showTemplate(const QString& templateText);
    // Shows what the file of a page holds that is absent from the set: a text that is no template, or, where the file
    // cannot be read at all, nothing and why. Until it is edited, leaving the panel writes nothing.
    void showUnusable(const QString& fileText, const QString& whyUnread = {});
    // The text is another one than was shown.
    bool isEdited() const;
    // The text with CR LF between its lines.
    QString editedText() const;

    // Switches the text and the row below it on or off.
    void setEditable(bool editable);

private:
    void makeFindRow();
    void find(QTextDocument::FindFlags direction);
    void show(const QString& text);
    void check();
    QString whatSavingDoes() const;

    TemplateText* TemplateTxt;
    QLineEdit* FindTxt = nullptr;
    QPushButton* FindPreviousBtn = nullptr;
    QPushButton* FindNextBtn = nullptr;
    QLabel* FindResultLbl = nullptr;
    WordLabel* TemplateStateLbl;
    bool m_writtenOnLeaving;
    bool m_isAbsent = false; // the page, from the set, when the text was shown
    QString m_whyUnread;     // the page's file, when it is absent; empty for one that was read
    QString m_shown;         // the text before anybody edited it
};
