#include "base/DelimitedFields.h"

#include <QStringView>

namespace {

bool isBlank(QChar letter)
{
    return letter == u' ' || letter == u'\t';
}

QStringView withoutBlanksAhead(QStringView text)
{
    while (!text.isEmpty() && isBlank(text.front())) {
        text = text.sliced(1);
    }
    return text;
}

// Takes the text up to a character, and that character, off the front; all of it when the character is not there.
QStringView takeUntil(QStringView& rest, QChar end)
{
    const qsizetype at = rest.indexOf(end);
    const QStringView taken = at < 0 ? rest : rest.first(at);
    rest = at < 0 ? QStringView() : rest.sliced(at + 1);
    return taken;
}

void appendFieldsOfLine(QStringView line, QStringList& fields)
{
    QStringView rest = withoutBlanksAhead(line);
    bool hasMore = !rest.isEmpty();
    while (hasMore) {
        rest = withoutBlanksAhead(rest);
        QStringView field;
        if (rest.startsWith(u'"')) {
            rest = rest.sliced(1);
            field = takeUntil(rest, u'"');
            hasMore = rest.contains(u',');
            takeUntil(rest, u',');
        } else {
            hasMore = rest.contains(u',');
            field = takeUntil(rest, u',');
        }
        fields.append(field.toString());
    }
}

} // namespace

QStringList delimitedFields(const QString& text)
{
    QStringList fields;
    QString lines = text;
    lines.replace(QStringLiteral("\r\n"), QStringLiteral("\n")).replace(u'\r', u'\n');
    for (const QStringView line : QStringView(lines).split(u'\n')) {
        appendFieldsOfLine(line, fields);
    }
    return fields;
}
