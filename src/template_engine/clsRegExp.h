// Replaces what a pattern matches and cuts the result after a number of words: how the pages shorten descriptions. The
// engine compiles a pattern on its first use and keeps it, so page code has one object for all products of a page.
#pragma once

#include <QRegularExpression>
#include <QString>

class clsRegExp
{
public:
    const QString& Pattern() const { return m_pattern; }
    void setPattern(const QString& pattern);

    // Runs the pattern on a text and discards the result. ErrorNumber::InvalidArgument when the pattern is malformed.
    void Execute(const QString& text);

    // Replaces every match by that text, taken literally, and cuts the result just ahead of the blank that ends the
    // count-th word. A count of 0 or less cuts nothing, nor is anything cut when no blank follows that word. Only
    // blanks separate words, and a run of them makes no word. ErrorNumber::InvalidArgument when the pattern is
    // malformed, Overflow when a blank past character 32767 is looked at.
    QString Replace(const QString& text, const QString& replacement, int count);

private:
    const QRegularExpression& engine();

    QString m_pattern;
    QRegularExpression m_engine; // follows m_pattern on first use
};
