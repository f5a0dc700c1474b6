// Edits the text of a page's template: TemplateTxt with a row to find something in it, and under it a line that tells
// while one types whether the template would parse and, if not, what is wrong and where. TemplatePart owns one.
#pragma once

#include <QTextDocument>
#include <QWidget>

class QLabel;
class QLineEdit;
class QPushButton;
class TemplateText;

class TemplateEditor : public QWidget
{
    Q_OBJECT

public:
    explicit TemplateEditor(QWidget* parent);

    // Shows the text of a template. The cursor goes to its start.
    void showTemplate(const QString& templateText);
    // The text with CR LF between its lines.
    QString editedText() const;

    // Switches the text and the row below it on or off.
    void setEditable(bool editable);

private:
    void makeFindRow();
    void find(QTextDocument::FindFlags direction);
    void check();

    TemplateText* TemplateTxt;
    QLineEdit* FindTxt = nullptr;
    QPushButton* FindPreviousBtn = nullptr;
    QPushButton* FindNextBtn = nullptr;
    QLabel* FindResultLbl = nullptr;
    QLabel* TemplateStateLbl;
};
