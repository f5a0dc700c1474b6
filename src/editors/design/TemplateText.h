// The text of a template as one edits it: fixed-width letters, line numbers, the template's tags in colour.
// TemplateEditor owns one.
#pragma once

#include <QPlainTextEdit>

class TemplateHighlighter;

class TemplateText : public QPlainTextEdit
{
    Q_OBJECT

public:
    explicit TemplateText(QWidget* parent);

    // Shows a text whose lines end in a single CR, as the templates hold them.
    void showTemplate(const QString& templateText);
    // The text with CR LF between its lines.
    QString editedText() const;

    int lineNumberWidth() const;
    void paintLineNumbers(const QRect& area, QWidget* margin);

protected:
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    QWidget* m_margin; // left of the text, where the numbers stand
    TemplateHighlighter* m_highlighter;
};
