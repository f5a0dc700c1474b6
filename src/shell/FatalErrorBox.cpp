#include "shell/FatalErrorBox.h"

#include "base/UserPrompts.h"

#include <cstdlib>

using namespace Qt::StringLiterals;

void FatalErrorBox::fatalError(const RuntimeError& error) noexcept
{
    m_prompts.showMessage(u"Ambrel eCommerce Software"_s, textOf(error), PromptIcon::Critical);
    // Not exit(): it runs destructors, and a window that they close may ask and save.
    std::_Exit(EXIT_FAILURE);
}

QString FatalErrorBox::textOf(const RuntimeError& error) const
{
    QString text = u"Run-time error '%1':\n\n"_s.arg(static_cast<int>(error.number())) + error.description();
    if (!error.circumstances().isEmpty()) {
        text += u"\n\n"_s + error.circumstances().join(u'\n');
    }
    if (m_isWorkKept()) {
        text += u"\n\nWhat was not saved is offered at the next start, except what was typed in the open panel."_s;
    }
    return text;
}
