#include "template_engine/Template_Element.h"

#include "base/RuntimeError.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

// Into one text: a dump for every level of a deep block would be copied as often as the block is deep.
void appendDump(const Template_Element& element, int indent, QString& out)
{
    const auto appendLine = [indent, &out](QStringView title, const QString& text) {
        out.resize(out.size() + indent, u' ');
        out.append(title).append(text).append(u'\r');
    };
    appendLine(u"Value = ", element.Value);
    appendLine(u"Type = ", QString::number(element.TType));
    appendLine(u"Default = ", element.Default);
    for (const auto& part : element.Template_Parts) {
        if (part != nullptr) {
            appendDump(*part, indent + 3, out);
        }
    }
}

} // namespace

int upperBound(const ElementArray& elements)
{
    return static_cast<int>(elements.size()) - 1;
}

void Template_Element::ReDimSubElements(int n)
{
    if (n < 0) {
        throw RuntimeError(ErrorNumber::SubscriptOutOfRange);
    }
    Template_Parts.assign(static_cast<std::size_t>(n) + 1, nullptr);
}

void Template_Element::addParts(const ElementArray& parts)
{
    const int count = upperBound(parts);
    if (count > upperBound(Template_Parts) + 1) {
        throw RuntimeError(ErrorNumber::SubscriptOutOfRange);
    }
    if (count > 0) {
        std::copy_n(parts.begin(), count, Template_Parts.begin());
    }
}

QString Template_Element::to_string1(int indent) const
{
    QString dump;
    appendDump(*this, indent, dump);
    return dump;
}
