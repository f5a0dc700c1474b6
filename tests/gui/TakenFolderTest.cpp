// Two windows on one folder.
#include "shell/TakenFolder.h"

#include "support/TestSupport.h"

#include <QDir>
#include <QFileInfo>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const QString heldTitle = u"Ambrel eCommerce Software"_s;
const QString takenQuestion = u"This shop is open in another window. Open it here too?"_s;

class ATakenFolder : public testing::Test
{
protected:
    TemporaryShopFolder files;
    RecordingPrompts prompts;
};

TEST_F(ATakenFolder, AsksNothingForTheFirstWindow)
{
    const TakenFolder taken(files.folder());
    EXPECT_TRUE(taken.mayOpen(prompts));
    EXPECT_EQ(taken.window(), UnsavedShop::Window::First);
    EXPECT_TRUE(QFileInfo::exists(files.path(u"Tarnwick.running"_s)));
}

TEST_F(ATakenFolder, AsksForAnotherWindowAndNoIsTheDefault)
{
    const TakenFolder taken(files.folder());
    const TakenFolder second(files.folder());
    prompts.answerDefaultNo(heldTitle, takenQuestion, true);
    EXPECT_TRUE(second.mayOpen(prompts));
    EXPECT_EQ(second.window(), UnsavedShop::Window::Second);
    const TakenFolder third(files.folder());
    prompts.answerDefaultNo(heldTitle, takenQuestion, false);
    EXPECT_FALSE(third.mayOpen(prompts));
}

TEST_F(ATakenFolder, IsFreeForASuccessorOnceItIsGivenUp)
{
    TakenFolder taken(files.folder());
    taken.giveUp();
    const TakenFolder successor(files.folder());
    EXPECT_TRUE(successor.mayOpen(prompts));
    EXPECT_EQ(successor.window(), UnsavedShop::Window::First);
}

TEST_F(ATakenFolder, LeavesNoFileWhenTheProgramEnds)
{
    {
        const TakenFolder taken(files.folder());
    }
    EXPECT_FALSE(QFileInfo::exists(files.path(u"Tarnwick.running"_s)));
}

TEST_F(ATakenFolder, GoesOnWhereItCannotBeTaken)
{
    ASSERT_TRUE(QDir(files.folder().path()).mkdir(u"Tarnwick.running"_s));
    const TakenFolder taken(files.folder());
    EXPECT_TRUE(taken.mayOpen(prompts));
    EXPECT_EQ(taken.window(), UnsavedShop::Window::First);
}

} // namespace
