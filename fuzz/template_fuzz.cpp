// The template parser and the expander. The bytes are a template text, decoded as a template file is; behind a NUL may
// stand variables of its page, one "key=text" a line.
//
// Promised: parsing fails with error 5 or 6 only and at a place inside of the text; expanding fails with error 13 only;
// and the expansion is what a plain walk over the elements gives, written here once more from the rules of the
// language.
#include "FuzzTarget.h"
#include "base/RuntimeError.h"
#include "base/TextFile.h"
#include "template_engine/Template.h"
#include "template_engine/TemplateParser.h"
#include "template_engine/clsRegExp.h"

#include <QByteArray>
#include <QString>

#include <optional>

using namespace Qt::StringLiterals;

namespace {

class FixedText : public TextObject
{
public:
    QString text() const override { return u"9.90"_s; }
};

Variables row(NameTable& names, QStringView id)
{
    Variables row(names);
    row.Add(u"id", id.toString());
    row.Add(u"name", u"<!--:id:-->"_s);
    return row;
}

// One variable of each kind, and those that stand in the input.
Variables makePage(NameTable& names, const QByteArray& ownVariables)
{
    Variables page(names);
    page.Add(u"shop_name", u"Cups"_s);
    page.Add(u"empty", u""_s);
    page.Add(u"ForSale", true);
    page.Add(u"count", qint16{-12});
    page.Add(u"total", 12.5F);
    page.Add(u"price", std::make_shared<const FixedText>());
    page.Add(u"none", VariableRows());
    page.Add(u"products", VariableRows{row(names, u"1"), row(names, u"2")});
    Variables nested = row(names, u"1");
    nested.Add(u"tags", VariableRows{row(names, u"a"), row(names, u"b")});
    VariableRows rows;
    rows.push_back(std::move(nested));
    rows.emplace_back(names).Add(u"ID", u"3"_s);
    page.Add(u"nested", std::move(rows));

    for (const QByteArray& line : ownVariables.split('\n').mid(0, 50)) {
        const QString text = decodeText(line).text;
        const QString key = text.section(u'=', 0, 0);
        const bool known = page.exists(key);
        try {
            page.Add(key, text.section(u'=', 1));
            promise(!known && page.exists(key), "a key is added once and found then");
        } catch (const RuntimeError& error) {
            promise(known && error.number() == ErrorNumber::DuplicateKey, "only a key that is there is refused");
        }
    }
    return page;
}

// The rules of expansion, told plainly.
void plainWalk(const Variables& vars, const ElementArray& parts, QString& out)
{
    for (int i = 0; i < upperBound(parts); ++i) {
        const Template_Element& element = *parts[static_cast<std::size_t>(i)];
        const bool exists = Template::ItemExists(vars, element.Value);
        switch (element.TType) {
        case ElementType::Static:
            out += element.Value;
            break;
        case ElementType::If:
        case ElementType::IfNot: {
            const bool equal = exists && textOf(vars.Item(element.Value)) == element.Default;
            if (equal == (element.TType == ElementType::If)) {
                plainWalk(vars, element.Template_Parts, out);
            }
            break;
        }
        case ElementType::Cycle:
            if (exists) {
                for (const Variables& row : rowsOf(vars.Item(element.Value))) {
                    plainWalk(row, element.Template_Parts, out);
                }
            }
            break;
        case ElementType::XCycle:
            break;
        default:
            out += exists ? textOf(vars.Item(element.Value)) : element.Default;
        }
    }
}

// The text, or nothing when the work failed by a type mismatch.
template <class Work>
std::optional<QString> expanded(Work work)
{
    try {
        return work();
    } catch (const RuntimeError& error) {
        promise(error.number() == ErrorNumber::TypeMismatch, "expanding fails by a type mismatch only");
        return std::nullopt;
    }
}

bool parsed(Template& page)
{
    try {
        page.Parse();
        return true;
    } catch (const TemplateError& error) {
        promise(error.number() == ErrorNumber::InvalidArgument || error.number() == ErrorNumber::Overflow,
                "parsing fails with 5 or 6 only");
        promise(error.position() >= 0 && QStringView(page.template_text).sliced(error.position()).startsWith(u"<!--:"),
                "the failure stands at an opening mark");
        return false;
    }
}

// Tags stripped by hand are what the engine strips. Short texts only: the engine takes quadratic time on "<<<<".
void tryTags(const QString& text)
{
    clsRegExp byHand;
    byHand.setPattern(u"<[^>]*>"_s);
    clsRegExp byEngine;
    byEngine.setPattern(u"(?:<[^>]*>)"_s);
    if (text.size() < 2000 && text.isValidUtf16()) {
        promise(byHand.Replace(text, u" "_s, 0) == byEngine.Replace(text, u" "_s, 0), "both strip the same tags");
    }
    try {
        const QString whole = byHand.Replace(text, u" "_s, 0);
        const QString cut = byHand.Replace(text, u" "_s, 3);
        promise(whole.startsWith(cut), "a cut takes from the end only");
        promise(cut.simplified().count(u' ') <= whole.simplified().count(u' '), "a cut adds no words");
    } catch (const RuntimeError& error) {
        promise(error.number() == ErrorNumber::Overflow, "cutting fails by an overflow only");
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    const qsizetype nul = bytes.indexOf('\0');
    NameTable names;
    Template page(names);
    page.template_text = decodeText(nul < 0 ? bytes : bytes.first(nul)).text;
    tryTags(page.template_text);
    if (!parsed(page)) {
        return 0;
    }
    const Variables vars = makePage(names, nul < 0 ? QByteArray() : bytes.sliced(nul + 1));
    const auto text = expanded([&] { return page.Get_String(vars); });
    const auto walked = expanded([&] {
        QString out;
        plainWalk(vars, page.parts(), out);
        return out;
    });
    promise(text == walked, "the expansion is what a plain walk gives");
    if (page.template_text.size() < 4000) {
        for (int i = 0; i < upperBound(page.parts()); ++i) {
            promise(page.parts()[static_cast<std::size_t>(i)]->to_string().endsWith(u'\r'), "a dump ends its lines");
        }
    }
    return 0;
}
