#include "shell/TakenFolder.h"

#include "base/ApplicationTitle.h"
#include "base/UserPrompts.h"

using namespace Qt::StringLiterals;

TakenFolder::TakenFolder(const ApplicationFolder& folder)
    : m_file(holdFile(folder.runningFile())),
      m_window(m_file && m_file->isShared() ? UnsavedShop::Window::Second : UnsavedShop::Window::First)
{
}

bool TakenFolder::mayOpen(UserPrompts& prompts) const
{
    return m_window == UnsavedShop::Window::First ||
           prompts.askYesNoWithDefaultNo(applicationTitle(),
                                         u"This shop is open in another window. Open it here too?"_s);
}
