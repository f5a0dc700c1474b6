// Colours the tags of a template, so that they stand out of the HTML around them: the marks are faint, kind words and
// closing tags bold. Colours are those of the palette. TemplateText owns one.
#pragma once

#include <QPalette>
#include <QSyntaxHighlighter>
#include <QTextCharFormat>

class TemplateHighlighter : public QSyntaxHighlighter
{
    Q_OBJECT

public:
    explicit TemplateHighlighter(QTextDocument* document);

    void useColours(const QPalette& palette);

protected:
    void highlightBlock(const QString& line) override;

private:
    void highlightBody(const QString& line, qsizetype from, qsizetype to);

    QTextCharFormat m_mark;
    QTextCharFormat m_kind;
    QTextCharFormat m_name;
};
