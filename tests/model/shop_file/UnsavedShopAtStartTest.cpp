// How the next start takes what was not saved: it asks, reads it or sets it aside.
#include "UnsavedShopTest.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace {

class TheNextStart : public TheUnsavedShop
{
protected:
    // A session that changes the shop's name and ends without saving.
    void leaveUnsaved(const QByteArray& elements = "")
    {
        openShop(elements);
        next->shop->name = u"Moss"_s;
        unsaved->keep();
        ASSERT_TRUE(isThere());
        next->log.reset();
        restart();
    }
};

TEST_F(TheNextStart, AsksAndReadsTheUnsavedShopOnYes)
{
    leaveUnsaved();
    const QByteArray shopBefore = fileBytes(session.folder.shopFile());
    prompts.answerYesNo(title, question, true);
    EXPECT_EQ(open(), 0);
    EXPECT_EQ(next->shop->name, u"Moss"_s);
    EXPECT_TRUE(isThere());
    EXPECT_EQ(fileBytes(session.folder.shopFile()), shopBefore);
}

TEST_F(TheNextStart, AsksBetweenItsFirstLineAndItsReading)
{
    leaveUnsaved();
    class Watching : public RecordingPrompts
    {
    public:
        explicit Watching(std::function<void()> whenAsked) : m_whenAsked(std::move(whenAsked)) {}
        bool askYesNo(const QString& /*title*/, const QString& /*text*/) override
        {
            m_whenAsked();
            return true;
        }

    private:
        std::function<void()> m_whenAsked;
    };
    QStringList atQuestion;
    Watching watching([&] { atQuestion = logLines(); });
    ShopSession asked(session.folder, watching, clock);
    UnsavedShop offer(asked, UnsavedShop::Window::First);
    loadShop(asked, &offer);
    EXPECT_EQ(atQuestion, QStringList{u"Start shop creating"_s});
    const QStringList lines = logLines();
    EXPECT_EQ(lines[1], u"Start shop design creating"_s);
    EXPECT_EQ(lines.count(u"Start Shop.FromXML"_s), 1);
}

TEST_F(TheNextStart, SetsTheUnsavedShopAsideOnNoAndReadsTheShopFile)
{
    leaveUnsaved();
    writeFile(session.folder.oldUnsavedShopFile(), "an older one");
    const QByteArray kept = bytes();
    prompts.answerYesNo(title, question, false);
    EXPECT_EQ(open(), 0);
    EXPECT_EQ(next->shop->name, u"S"_s);
    EXPECT_FALSE(isThere());
    EXPECT_EQ(aside(), kept);
    EXPECT_EQ(logLines()[1], u"Start shop design creating"_s); // a No is no failure
}

TEST_F(TheNextStart, OffersTheUnsavedShopAgainUntilItIsSaved)
{
    leaveUnsaved();
    prompts.answerYesNo(title, question, true);
    EXPECT_EQ(open(), 0);
    unsaved->keep(); // it has not changed
    restart();
    prompts.answerYesNo(title, question, true);
    EXPECT_EQ(open(), 0);
    save();
    restart();
    EXPECT_EQ(open(), 0);
    EXPECT_EQ(next->shop->name, u"Moss"_s);
}

TEST_F(TheNextStart, NeedsNoShopFileForTheUnsavedShop)
{
    leaveUnsaved();
    QFile::remove(session.folder.shopFile());
    prompts.answerYesNo(title, question, true);
    EXPECT_EQ(open(), 0);
    EXPECT_EQ(next->shop->name, u"Moss"_s);
}

TEST_F(TheNextStart, SavesAnUnsavedShopOfAnotherVersionAtOnce)
{
    openShop("");
    writeFile(session.folder.unsavedShopFile(), shopFile("<Description>older</Description>", "1.1.9"));
    restart();
    next->callbacks.SaveShop = [this] { save(); };
    prompts.answerYesNo(title, question, true);
    EXPECT_EQ(open(), 0);
    EXPECT_TRUE(logLines().contains(u"Version not mutched"_s));
    EXPECT_TRUE(fileBytes(session.folder.shopFile()).contains("<Version>1.2.0</Version>"));
    EXPECT_FALSE(isThere());
    unsaved->keep();
    EXPECT_FALSE(isThere());
}

TEST_F(TheNextStart, ChangesNothingWithoutAnUnsavedShop)
{
    openShop(category("2", product("3", "")));
    const QStringList lines = logLines();
    next->log.reset();
    ShopSession plain(session.folder, prompts, clock);
    loadShop(plain);
    EXPECT_EQ(lines, logLines());
    EXPECT_EQ(QDir(session.folder.path()).entryList({u"shop*"_s}, QDir::Files), QStringList{u"shop.xml"_s});
}

struct BadUnsavedShop
{
    const char* name;
    QByteArray bytes;
    QString line;
};
void PrintTo(const BadUnsavedShop& bad, std::ostream* out)
{
    *out << bad.name;
}

class TheNextStartWith : public TheNextStart, public testing::WithParamInterface<BadUnsavedShop>
{
};

TEST_P(TheNextStartWith, SetsItAsideWithALineAndNoQuestionAndKeepsNothingOfIt)
{
    openShop(category("2", ""));
    const QByteArray shopBefore = fileBytes(session.folder.shopFile());
    writeFile(session.folder.unsavedShopFile(), GetParam().bytes);
    next->log.reset();
    restart();
    EXPECT_EQ(open(), 0);
    EXPECT_EQ(next->shop->name, u"S"_s);
    EXPECT_EQ(next->shop->categories.Count(), 1);
    EXPECT_EQ(next->LoadedShopVersion, u"1.2.0"_s);
    EXPECT_FALSE(next->objects.isCreated());
    EXPECT_FALSE(isThere());
    EXPECT_EQ(aside(), GetParam().bytes);
    EXPECT_EQ(fileBytes(session.folder.shopFile()), shopBefore);
    const QStringList lines = logLines();
    EXPECT_EQ(lines[0], u"Start shop creating"_s);
    EXPECT_EQ(lines[1], GetParam().line);
    EXPECT_EQ(lines[2], u"Start shop design creating"_s);
    EXPECT_EQ(lines.count(u"Start Shop.FromXML"_s), 1);
}

const QByteArray head = "<Tarnwick><Shop><Version>1.1.9</Version><Name>Bad</Name><SelectedCountries/>";

INSTANTIATE_TEST_SUITE_P(
    All, TheNextStartWith,
    testing::Values(
        BadUnsavedShop{"empty", "", u"shop.unsaved.xml is set aside: It holds no shop"_s},
        BadUnsavedShop{"half", head, u"shop.unsaved.xml is set aside: It holds no shop"_s},
        BadUnsavedShop{"noShop", "<Tarnwick/>", u"shop.unsaved.xml is set aside: It holds no shop"_s},
        BadUnsavedShop{"noCountries", "<Tarnwick><Shop><Name>Bad</Name></Shop></Tarnwick>",
                       u"shop.unsaved.xml is set aside: Object not set"_s},
        BadUnsavedShop{"status",
                       head + "<Category><Id>7</Id><Discount><Status>none</Status></Discount></Category></Shop>"
                              "</Tarnwick>",
                       u"shop.unsaved.xml is set aside: Invalid use of null"_s},
        BadUnsavedShop{"idTwice",
                       head + "<Category><Id>7</Id></Category><Category><Id>8</Id><Category><Id>7</Id></Category>"
                              "</Category></Shop></Tarnwick>",
                       u"shop.unsaved.xml is set aside: This key is already in the collection"_s},
        BadUnsavedShop{"deep",
                       head + QByteArray("<Category><Id>7</Id>").repeated(501) +
                           QByteArray("</Category>").repeated(501) + "</Shop></Tarnwick>",
                       u"shop.unsaved.xml is set aside: Out of stack space"_s}),
    [](const auto& row) { return row.param.name; });

TEST_F(TheNextStart, LeavesAnUnsavedShopThatCannotBeSetAsideWhereItIs)
{
    openShop("");
    writeFile(session.folder.unsavedShopFile(), "half of");
    restart();
    calls->failAtCall(u"rename"_s, ErrorNumber::PermissionDenied);
    EXPECT_EQ(open(), 0);
    EXPECT_EQ(bytes(), "half of");
    EXPECT_TRUE(logLines().contains(u"shop.unsaved.xml stays where it is: Permission denied"_s));
}

} // namespace
