#include "editors/design/TemplateHighlighter.h"

namespace {

constexpr QStringView openingMark = u"<!--:";
constexpr QStringView closingMark = u":-->";
constexpr int insideTag = 1; // the state of a line that ends inside a tag

} // namespace

TemplateHighlighter::TemplateHighlighter(QTextDocument* document) : QSyntaxHighlighter(document) {}

void TemplateHighlighter::useColours(const QPalette& palette)
{
    const QColor tag = palette.color(QPalette::Link);
    m_mark.setForeground(palette.color(QPalette::PlaceholderText));
    m_name.setForeground(tag);
    m_kind.setForeground(tag);
    m_kind.setFontWeight(QFont::Bold);
    rehighlight();
}

void TemplateHighlighter::highlightBlock(const QString& line)
{
    bool inside = previousBlockState() == insideTag;
    qsizetype next = 0;
    while (next < line.size()) {
        if (!inside) {
            const qsizetype mark = line.indexOf(openingMark, next);
            if (mark < 0) {
                break;
            }
            next = mark + openingMark.size();
            setFormat(static_cast<int>(mark), static_cast<int>(openingMark.size()), m_mark);
        }
        const qsizetype closing = line.indexOf(closingMark, next);
        highlightBody(line, next, closing < 0 ? line.size() : closing);
        inside = closing < 0;
        if (inside) {
            break;
        }
        setFormat(static_cast<int>(closing), static_cast<int>(closingMark.size()), m_mark);
        next = closing + closingMark.size();
    }
    setCurrentBlockState(inside ? insideTag : 0);
}

// What stands ahead of the first colon is the kind: "if", "cycle", "end".
void TemplateHighlighter::highlightBody(const QString& line, qsizetype from, qsizetype to)
{
    const QStringView body = QStringView(line).sliced(from, to - from);
    const qsizetype colon = body.indexOf(u':');
    const qsizetype kind = colon < 0 ? 0 : colon + 1;
    setFormat(static_cast<int>(from), static_cast<int>(kind), m_kind);
    setFormat(static_cast<int>(from + kind), static_cast<int>(body.size() - kind), m_name);
}
