// Replaces what a pattern matches and cuts the result after so many words: how the pages shorten descriptions. Page
// code keeps one and uses it for all products of a page, since setting the pattern compiles it.
#pragma once

#include <QRegularExpression>
#include <QString>

class clsRegExp
{
public:
    const QString& Pattern() const { return m_pattern; }
    void setPattern(const QString& pattern);

    // Runs the pattern on a text; nothing comes of it but error 5 when the pattern is none.
    void Execute(const QString& text);

    // Every match replaced by that text, letter for letter, and then cut just ahead of the blank that ends the word of
    // that number. Nothing is cut by a count of 0 or less, nor when no blank stands behind the last word. Only blanks
    // part words, and a run of them makes no word. Error 5 when the pattern is none, error 6 for a blank that is looked
    // at past character 32767.
    QString Replace(const QString& text, const QString& replacement, int count);

private:
    const QRegularExpression& engine();

    QString m_pattern;
    QRegularExpression m_engine; // follows m_pattern on first use
};
