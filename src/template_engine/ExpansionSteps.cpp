#include "template_engine/ExpansionSteps.h"

#include <array>
#include <charconv>
#include <utility>

namespace {

// Most values are texts, which are written and compared without a copy. The others stand apart, so that the walk over
// the steps stays short and needs little stack.
Q_NEVER_INLINE void appendOther(const VariableValue& value, TextOutput& out)
{
    const auto* number = std::get_if<qint16>(&value);
    if (number == nullptr) {
        out.append(textOf(value));
        return;
    }
    // Every picture brings two integers: not worth a text of their own.
    std::array<char, 8> digits{};
    const char* const end = std::to_chars(digits.data(), digits.data() + digits.size(), *number).ptr;
    out.append(QLatin1StringView(digits.data(), end - digits.data()));
}

Q_NEVER_INLINE bool otherHasText(const VariableValue& value, const QString& text)
{
    return textOf(value) == text;
}

inline void appendValue(const VariableValue& value, TextOutput& out)
{
    if (const auto* text = std::get_if<QString>(&value)) {
        out.append(*text);
    } else {
        appendOther(value, out);
    }
}

// The case counts, and nothing is trimmed.
inline bool hasText(const VariableValue& value, const QString& text)
{
    const auto* ownText = std::get_if<QString>(&value);
    return ownText != nullptr ? *ownText == text : otherHasText(value, text);
}

} // namespace

ExpansionSteps::ExpansionSteps(const ElementArray& elements, NameTable& names)
{
    append(elements, names);
}

void ExpansionSteps::append(const ElementArray& elements, NameTable& names)
{
    Step step;
    for (int i = 0; i < upperBound(elements); ++i) {
        const Template_Element& element = *elements[static_cast<std::size_t>(i)];
        if (element.TType <= ElementType::Static) {
            if (!step.text.isEmpty()) {
                m_steps.push_back(std::exchange(step, Step()));
            }
            step.text = element.Value;
        } else if (element.TType != ElementType::XCycle) { // which never writes anything, whatever the variables hold
            step.value = element.Default;
            step.name = names.intern(element.Value);
            step.action = actionOf(element.TType);
            const std::size_t place = m_steps.size();
            m_steps.push_back(std::exchange(step, Step()));
            append(element.Template_Parts, names);
            m_steps[place].end = m_steps.size();
        }
    }
    if (!step.text.isEmpty()) {
        m_steps.push_back(std::move(step));
    }
}

ExpansionSteps::Action ExpansionSteps::actionOf(qint16 type)
{
    switch (type) {
    case ElementType::If:
        return Action::If;
    case ElementType::IfNot:
        return Action::IfNot;
    case ElementType::Cycle:
        return Action::Cycle;
    default: // "text", "html", "js" and "dhtml" are one behaviour: nothing is escaped
        return Action::Value;
    }
}

// Values are written as they are and never searched for tags.
void ExpansionSteps::run(const Variables& vars, std::size_t from, std::size_t to, TextOutput& out) const
{
    for (std::size_t i = from; i < to;) {
        const Step& step = m_steps[i];
        ++i;
        out.append(step.text);
        if (step.action == Action::None) {
            continue;
        }
        const VariableValue* value = vars.find(step.name);
        switch (step.action) {
        case Action::Value:
            if (value != nullptr) {
                appendValue(*value, out);
            } else {
                out.append(step.value);
            }
            break;
        case Action::If:
            if (value == nullptr || !hasText(*value, step.value)) {
                i = step.end;
            }
            break;
        case Action::IfNot:
            if (value != nullptr && hasText(*value, step.value)) {
                i = step.end;
            }
            break;
        case Action::Cycle:
            if (value != nullptr) {
                // A row replaces the variables entirely: nothing of the page is seen in the body.
                for (const Variables& row : rowsOf(*value)) {
                    run(row, i, step.end, out);
                }
            }
            i = step.end;
            break;
        case Action::None:
            break;
        }
    }
}
