// The last box, in a process of its own.
#include "shell/FatalErrorBox.h"
#include "support/TestSupport.h"

#include <QTextStream>

#include <cstdio>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

// Writes what it shows to the standard error stream, which the death test reads.
class WritingPrompts : public RecordingPrompts
{
public:
    void showMessage(const QString& title, const QString& text, PromptIcon icon) override
    {
        QTextStream(stderr) << title << '|' << text << '|' << (icon == PromptIcon::Critical) << Qt::endl;
    }
};

TEST(FatalErrorDeathTest, EndsTheProcessWithItsNumberInOneBoxAndExitCodeOne)
{
    EXPECT_EXIT(
        {
            WritingPrompts prompts;
            FatalErrorBox box(prompts);
            guarded(box, [] { throw RuntimeError(ErrorNumber::DuplicateKey, u"what happened"_s); });
        },
        testing::ExitedWithCode(1), "Ambrel eCommerce Software\\|Run-time error '457':\n\nwhat happened\\|1");
}

} // namespace
