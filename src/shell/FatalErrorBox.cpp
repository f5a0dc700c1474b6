#include "shell/FatalErrorBox.h"

#include "base/UserPrompts.h"

#include <cstdlib>

using namespace Qt::StringLiterals;

void FatalErrorBox::fatalError(const RuntimeError& error) noexcept
{
    const QString text = u"Run-time error '%1':\n\n%2"_s.arg(static_cast<int>(error.number())).arg(error.description());
    m_prompts.showMessage(u"Ambrel eCommerce Software"_s, text, PromptIcon::Critical);
    // Not exit(): it runs destructors, and a window that they close may ask and save.
    std::_Exit(EXIT_FAILURE);
}
