#include "template_engine/TemplateParser.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr QStringView openingMark = u"<!--:";
constexpr QStringView closingMark = u":-->";

// Where the last character of a tag or block may stand, counted from 1 at the start of the text that is parsed, which
// is the body for what stands in a block. Literal text may go on beyond. The limit is part of the format.
constexpr qsizetype lastPosition = 32767;

struct KindWord
{
    QStringView word;
    qint16 type;
};

// The case counts: "IF" is no kind word.
constexpr std::array kindWords{
    KindWord{u"default", ElementType::Default}, KindWord{u"static", ElementType::Static},
    KindWord{u"text", ElementType::Text},       KindWord{u"html", ElementType::Html},
    KindWord{u"js", ElementType::Js},           KindWord{u"dhtml", ElementType::DHtml},
    KindWord{u"if", ElementType::If},           KindWord{u"ifnot", ElementType::IfNot},
    KindWord{u"cycle", ElementType::Cycle},     KindWord{u"xcycle", ElementType::XCycle},
};

qint16 kindOf(QStringView word)
{
    const auto* known =
        std::find_if(kindWords.begin(), kindWords.end(), [word](const KindWord& kind) { return kind.word == word; });
    return known == kindWords.end() ? ElementType::Default : known->type;
}

TemplateError tooFar(qsizetype position)
{
    return {ErrorNumber::Overflow, u"A tag or block ends past character 32767 of its text."_s, position};
}

struct Tag
{
    qsizetype start = 0;
    qsizetype end = 0; // just behind the closing mark
    bool empty = false;
    qint16 type = ElementType::Text;
    QStringView name;
    QStringView value;
};

Tag readTag(QStringView text, qsizetype mark, qsizetype position)
{
    if (mark >= lastPosition) {
        throw tooFar(position + mark);
    }
    const qsizetype closing = text.indexOf(closingMark, mark);
    // The closing mark may share its colon with the opening one: "<!--:-->" is a tag that was never finished.
    if (closing < mark + openingMark.size()) {
        throw TemplateError(ErrorNumber::InvalidArgument, u"A tag has no closing mark."_s, position + mark);
    }

    Tag tag;
    tag.start = mark;
    tag.end = closing + closingMark.size();
    if (tag.end > lastPosition) {
        throw tooFar(position + mark);
    }
    tag.name = text.sliced(mark + openingMark.size(), closing - mark - openingMark.size());
    tag.empty = tag.name.isEmpty();

    // The colon comes first, so a fallback with a colon in a tag without a kind word is split at that colon.
    const qsizetype colon = tag.name.indexOf(u':');
    if (colon >= 0) {
        tag.type = kindOf(tag.name.first(colon));
        tag.name = tag.name.sliced(colon + 1);
    }
    const qsizetype equals = tag.name.indexOf(u'=');
    if (equals >= 0) {
        tag.value = tag.name.sliced(equals + 1);
        tag.name = tag.name.first(equals);
    }
    if (tag.type == ElementType::Default) {
        tag.type = ElementType::Text;
    }
    return tag;
}

std::shared_ptr<Template_Element> makeElement(qint16 type, QStringView value, QStringView defaultText = {})
{
    auto element = std::make_shared<Template_Element>();
    element->Value = value.toString();
    element->TType = type;
    element->Default = defaultText.toString();
    return element;
}

struct ClosingTag
{
    qsizetype start;
    qsizetype end;
};

// The first closing tag of the block from a place on, whatever lies between; the name in any case.
ClosingTag findClosingTag(QStringView text, const Tag& block, qsizetype position)
{
    const QString closing = u"<!--:end:%1:-->"_s.arg(block.name);
    qsizetype start = text.indexOf(openingMark, block.end);
    while (start >= 0 && !text.sliced(start).startsWith(closing, Qt::CaseInsensitive)) {
        start = text.indexOf(openingMark, start + 1);
    }
    if (start < 0) {
        throw TemplateError(ErrorNumber::InvalidArgument, u"The block \"%1\" is never closed."_s.arg(block.name),
                            position + block.start);
    }
    if (start + closing.size() > lastPosition) {
        throw tooFar(position + block.start);
    }
    return {start, start + closing.size()};
}

// Appends what a tag makes and returns where the text goes on behind it.
qsizetype appendTag(ElementArray& parts, QStringView text, const Tag& tag, qsizetype position)
{
    if (tag.type == ElementType::Static) {
        return tag.end;
    }
    const auto element = makeElement(tag.type, tag.name, tag.value);
    parts.push_back(element);
    if (tag.type < ElementType::If) {
        return tag.end;
    }
    const ClosingTag closing = findClosingTag(text, tag, position);
    const ElementArray body = parse_text(text.sliced(tag.end, closing.start - tag.end), position + tag.end);
    element->ReDimSubElements(upperBound(body));
    element->addParts(body);
    return closing.end;
}

} // namespace

ElementArray parse_text(QStringView text, qsizetype position)
{
    ElementArray parts;
    qsizetype pending = 0; // where the text begins that no element holds yet
    qsizetype next = 0;    // where the next tag is looked for
    bool afterEmptyTag = false;
    while (next < text.size() || afterEmptyTag) {
        const qsizetype mark = text.indexOf(openingMark, next);
        if (mark < 0) {
            parts.push_back(makeElement(ElementType::Static, text.sliced(pending)));
            break;
        }
        if (mark > pending) {
            parts.push_back(makeElement(ElementType::Static, text.sliced(pending, mark - pending)));
        }
        const Tag tag = readTag(text, mark, position);
        next = tag.end;
        // An empty tag is no tag. The next text deliberately begins with the text ahead of it, a second time, and
        // with the tag's own characters.
        afterEmptyTag = tag.empty;
        if (!tag.empty) {
            pending = next = appendTag(parts, text, tag, position);
        }
    }
    parts.push_back(nullptr);
    return parts;
}
