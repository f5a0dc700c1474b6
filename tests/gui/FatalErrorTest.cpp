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

// What the box shows for an error, and how the process ends.
void expectBox(const RuntimeError& error, bool isWorkKept, const char* shown)
{
    EXPECT_EXIT(
        {
            WritingPrompts prompts;
            FatalErrorBox box(prompts, [isWorkKept] { return isWorkKept; });
            guarded(box, [&] { throw error; });
        },
        testing::ExitedWithCode(1), shown);
}

TEST(FatalErrorDeathTest, EndsTheProcessWithItsNumberInOneBoxAndExitCodeOne)
{
    expectBox(RuntimeError(ErrorNumber::DuplicateKey, u"what happened"_s), false,
              "^Ambrel eCommerce Software\\|Run-time error '457':\n\nwhat happened\\|1\n$");
}

TEST(FatalErrorDeathTest, TellsTheCauseAndWhatWasGoingOnFromTheInsideOut)
{
    RuntimeError error = RuntimeError(ErrorNumber::TypeMismatch).because(u"The cause."_s);
    error.addCircumstance(u"The page."_s);
    expectBox(error, false, "Run-time error '13':\n\nType mismatch\n\nThe cause.\nThe page.\\|1");
}

TEST(FatalErrorDeathTest, SaysThatUnsavedWorkIsOfferedWhereThereIsSome)
{
    expectBox(RuntimeError(ErrorNumber::TypeMismatch), true,
              "Type mismatch\n\nWhat was not saved is offered at the next start, except what was typed in the open "
              "panel.\\|1");
}

} // namespace
