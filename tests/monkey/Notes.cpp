#include "Notes.h"

#include <cstdio>

using namespace Qt::StringLiterals;

void note(const QString& line)
{
    std::fprintf(stderr, "# %s\n", qPrintable(QString(line).replace(u'\n', u' ').replace(u'\r', u' ')));
}

QString shortened(const QString& text)
{
    QString shown = text.left(60);
    for (QChar& letter : shown) {
        letter = letter.isPrint() ? letter : QChar(u'\u00B7');
    }
    return u"\"%1\""_s.arg(shown) + (text.size() > 60 ? u" (%1 letters)"_s.arg(text.size()) : QString());
}
