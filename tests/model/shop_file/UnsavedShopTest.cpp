// What was not saved: when it is written, what is in it, when it goes, and how the next start takes it.
#include "model/shop_file/UnsavedShop.h"

#include "model/ShopFixture.h"
#include "support/RecordingFileCalls.h"

#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

const QString title = u"Ambrel eCommerce Software"_s;
const QString question = u"The program ended before the last changes were saved. Open the shop with them?"_s;

// Each look at the time is as much later than the one before.
class TickingClock : public FixedClock
{
public:
    TickingClock() : FixedClock(QDate(2024, 5, 15)) {}
    qint64 steadyTime() const override
    {
        m_now += step;
        return m_now;
    }
    void pass(qint64 microseconds) { m_now += microseconds; }

    qint64 step = 0;

private:
    mutable qint64 m_now = 0;
};

class TheUnsavedShop : public ShopFixture
{
protected:
    TheUnsavedShop() { restart(); }

    // The program ends, in whatever way, and starts anew.
    void restart(UnsavedShop::Window window = UnsavedShop::Window::First)
    {
        unsaved.reset();
        next.emplace(session.folder, prompts, ticking);
        auto ownCalls = std::make_unique<RecordingFileCalls>();
        calls = ownCalls.get();
        unsaved = std::make_unique<UnsavedShop>(*next, window, std::move(ownCalls));
    }
    // As the window does: it begins to keep the shop when that was read whole.
    int open()
    {
        return errorOf([this] {
            if (loadShop(*next, unsaved.get())) {
                unsaved->begin();
            }
        });
    }
    // A shop file with these elements, read.
    void openShop(const QByteArray& elements)
    {
        writeFile(session.folder.shopFile(), shopFile(elements));
        ASSERT_EQ(open(), 0);
    }
    void save() { unsaved->shopWasSaved(writeShopFile(*next)); }

    bool isThere() const { return QFileInfo::exists(session.folder.unsavedShopFile()); }
    QByteArray bytes() const { return fileBytes(session.folder.unsavedShopFile()); }
    QByteArray aside() const { return fileBytes(session.folder.oldUnsavedShopFile()); }
    QByteArray currentText() { return shopFileBytes(*next->shop); }

    TickingClock ticking;
    std::optional<ShopSession> next;
    RecordingFileCalls* calls = nullptr;
    std::unique_ptr<UnsavedShop> unsaved;
};

// While the owner works ---------------------------------------------------------------------------------------------

TEST_F(TheUnsavedShop, IsTheShopFileThatASaveWouldWrite)
{
    openShop(category("2", product("3", "")));
    next->shop->name = u"Moss"_s;
    unsaved->keep();
    EXPECT_EQ(bytes(), currentText());
    EXPECT_TRUE(bytes().contains("<Name>Moss</Name>"));
}

TEST_F(TheUnsavedShop, IsWrittenUnderAnotherNameFlushedAndRenamedIntoPlace)
{
    openShop("");
    next->shop->name = u"Moss"_s;
    calls->takeCalls();
    unsaved->keep();
    const QString size = QString::number(bytes().size());
    EXPECT_EQ(calls->takeCalls(),
              (QStringList{u"create shop.unsaved.xml.new"_s, u"reserve 0 to "_s + size, u"write "_s + size, u"flush"_s,
                           u"close"_s, u"rename shop.unsaved.xml.new to shop.unsaved.xml"_s,
                           u"flush folder "_s + QFileInfo(session.folder.path()).fileName()}));
}

TEST_F(TheUnsavedShop, LeavesTheShopFileAlone)
{
    openShop("");
    const QByteArray before = fileBytes(session.folder.shopFile());
    next->shop->name = u"Moss"_s;
    unsaved->keep();
    EXPECT_EQ(fileBytes(session.folder.shopFile()), before);
}

TEST_F(TheUnsavedShop, IsNotWrittenWhileTheShopIsAsItWasRead)
{
    // The file spells out less than a save would.
    openShop(category("2", ""));
    ASSERT_NE(fileBytes(session.folder.shopFile()), currentText());
    unsaved->keep();
    EXPECT_FALSE(isThere());
}

TEST_F(TheUnsavedShop, IsNotWrittenAgainWhileTheShopIsAsItWasWritten)
{
    openShop("");
    next->shop->name = u"Moss"_s;
    unsaved->keep();
    calls->takeCalls();
    unsaved->keep();
    unsaved->keepAheadOfSave();
    EXPECT_EQ(calls->takeCalls(), QStringList());
    next->shop->name = u"Fern"_s;
    unsaved->keep();
    EXPECT_TRUE(bytes().contains("<Name>Fern</Name>"));
}

TEST_F(TheUnsavedShop, IsNotWrittenWhileTheShopIsAsItWasSaved)
{
    openShop("");
    next->shop->name = u"Moss"_s;
    save();
    unsaved->keep();
    unsaved->keepAheadOfSave();
    EXPECT_FALSE(isThere());
}

TEST_F(TheUnsavedShop, IsLookedAtWhenTheLastLookLiesBackAHundredTimesWhatItTook)
{
    openShop("");
    next->shop->name = u"Moss"_s;
    ticking.step = 2000;
    unsaved->keep(); // took 2,000
    ticking.step = 0;
    next->shop->name = u"Fern"_s;
    ticking.pass(199'999);
    unsaved->keep();
    EXPECT_TRUE(bytes().contains("<Name>Moss</Name>"));
    ticking.pass(1);
    unsaved->keep();
    EXPECT_TRUE(bytes().contains("<Name>Fern</Name>"));
}

TEST_F(TheUnsavedShop, IsWrittenAheadOfASaveWhateverTheAge)
{
    openShop("");
    ticking.step = 2000;
    next->shop->name = u"Moss"_s;
    unsaved->keep();
    next->shop->name = u"Fern"_s;
    unsaved->keepAheadOfSave();
    EXPECT_TRUE(bytes().contains("<Name>Fern</Name>"));
}

TEST_F(TheUnsavedShop, IsWrittenAheadOfASaveThatOnlySpellsTheShopFileInAnotherWay)
{
    openShop(category("2", ""));
    unsaved->keepAheadOfSave();
    EXPECT_EQ(bytes(), currentText());
}

TEST_F(TheUnsavedShop, IsLeftOutAheadOfASaveWhereTheDiskLacksTheRoomForBoth)
{
    openShop("");
    next->shop->name = u"Moss"_s;
    calls->free = 2 * currentText().size() - 1;
    unsaved->keepAheadOfSave();
    EXPECT_FALSE(isThere());
    EXPECT_EQ(logLines().last(), u"shop.unsaved.xml was not written: Disk full"_s);
    calls->free = 2 * currentText().size();
    unsaved->keepAheadOfSave();
    EXPECT_TRUE(isThere());
}

TEST_F(TheUnsavedShop, IsWrittenAheadOfASaveWhereTheDiskDoesNotTellItsRoom)
{
    openShop("");
    next->shop->name = u"Moss"_s;
    calls->free = std::optional<qint64>();
    unsaved->keepAheadOfSave();
    EXPECT_TRUE(isThere());
}

TEST_F(TheUnsavedShop, IsNeverWrittenBeforeAShopWasReadWhole)
{
    next->shop = std::make_shared<ShopClass>(next->services);
    unsaved->keep();
    EXPECT_FALSE(isThere());
    writeFile(session.folder.shopFile(), shopFile(category("2", "<Discount><Status>no word</Status></Discount>")));
    EXPECT_EQ(open(), 94);
    next->shop->name = u"Moss"_s;
    unsaved->keep();
    unsaved->keepAheadOfSave();
    EXPECT_FALSE(isThere());
}

TEST_F(TheUnsavedShop, IsNeverWrittenWhereThereIsNoShop)
{
    writeFile(session.folder.shopFile(), "<Tarnwick/>");
    prompts.expectMessage(title, u"Error in the configuration XML file. No 'Shop' node."_s);
    EXPECT_EQ(open(), 0);
    next->shop->name = u"Moss"_s;
    unsaved->keep();
    EXPECT_FALSE(isThere());
}

TEST_F(TheUnsavedShop, HoldsAnEmptyTextForADateThatIsNone)
{
    openShop(category("2", product("3", "")));
    next->shop->Discount()->DateFrom = u"soon!"_s;
    next->shop->categories.Item(1)->Discount()->DateTo = u"late!"_s;
    next->shop->categories.Item(1)->products.Item(1)->Price()->Discount()->DateTo = u"later!"_s;
    next->shop->name = u"Moss"_s;
    unsaved->keep();
    ASSERT_TRUE(isThere());
    EXPECT_FALSE(bytes().contains("soon!") || bytes().contains("late!") || bytes().contains("later!"));
    prompts.answerYesNo(title, question, true);
    restart();
    EXPECT_EQ(open(), 0);
    EXPECT_EQ(next->shop->name, u"Moss"_s);
    EXPECT_EQ(next->shop->Discount()->DateFrom, QString());
}

TEST_F(TheUnsavedShop, HoldsTheKnownSizeOfAPictureThatIsGone)
{
    openShop(category("2", product("3", "<Picture>gone.png</Picture><Width>30</Width><Height>0</Height>")));
    next->shop->name = u"Moss"_s;
    EXPECT_EQ(errorOf([this] { currentText(); }), 53);
    unsaved->keep();
    EXPECT_TRUE(bytes().contains("<Picture>gone.png</Picture><Width>30</Width><Height>0</Height>"));
}

TEST_F(TheUnsavedShop, HoldsAnEmptyTextForACostThatIsNotThere)
{
    openShop("<ShopShipping><Type><Name>Post</Name></Type><Type><Name>Ship</Name></Type></ShopShipping>"
             "<ShopShippingCosts><CostsFrame><From>1</From><To>2</To><Cost1>3</Cost1><Cost2>4</Cost2></CostsFrame>"
             "<CostsFrame><From>2</From><To>3</To><Cost1>5</Cost1><Cost2>6</Cost2></CostsFrame></ShopShippingCosts>");
    next->shop->ShippingCosts->Item(2).Remove(2);
    EXPECT_EQ(errorOf([this] { currentText(); }), 9);
    unsaved->keep();
    EXPECT_TRUE(bytes().contains("<Cost1>5</Cost1><Cost2/>") || bytes().contains("<Cost1>5</Cost1><Cost2></Cost2>"))
        << bytes().toStdString();
}

TEST_F(TheUnsavedShop, ThatCannotBeWrittenIsALineInTheLogAndTheOlderOneStays)
{
    openShop("");
    next->shop->name = u"Moss"_s;
    unsaved->keep();
    const QByteArray older = bytes();
    next->shop->name = u"Fern"_s;
    for (const char* call : {"create", "write", "flush", "rename"}) {
        calls->failAtCall(QLatin1String(call), ErrorNumber::DiskFull);
        unsaved->keep();
        EXPECT_EQ(logLines().last(), u"shop.unsaved.xml was not written: Disk full"_s) << call;
        EXPECT_EQ(bytes(), older) << call;
    }
}

TEST_F(TheUnsavedShop, EndsNothingWhenEvenTheLogCannotBeWritten)
{
    openShop("");
    next->shop->name = u"Moss"_s;
    calls->failAtCall(u"create"_s, ErrorNumber::DiskFull);
    QFile::remove(session.folder.loadLogFile());
    ASSERT_TRUE(QDir().mkpath(session.folder.loadLogFile()));
    EXPECT_EQ(errorOf([this] { unsaved->keep(); }), 0);
}

// When it goes ------------------------------------------------------------------------------------------------------

TEST_F(TheUnsavedShop, GoesWithASaveAndTheFolderIsFlushed)
{
    openShop("");
    next->shop->name = u"Moss"_s;
    unsaved->keep();
    writeFile(session.folder.unsavedShopFile() + u".new"_s, "half of"); // as a kill leaves it
    calls->takeCalls();
    save();
    EXPECT_EQ(QDir(session.folder.path()).entryList({u"shop.*"_s}, QDir::Files), QStringList{u"shop.xml"_s});
    EXPECT_EQ(calls->takeCalls(), QStringList{u"flush folder "_s + QFileInfo(session.folder.path()).fileName()});
    // What changes afterwards is kept again.
    next->shop->name = u"Fern"_s;
    unsaved->keep();
    EXPECT_TRUE(isThere());
}

TEST_F(TheUnsavedShop, GoesForGoodWhenItIsGivenUp)
{
    openShop("");
    next->shop->name = u"Moss"_s;
    unsaved->keep();
    unsaved->giveUp();
    EXPECT_FALSE(isThere());
    next->shop->name = u"Fern"_s;
    unsaved->keep();
    unsaved->keepAheadOfSave();
    EXPECT_FALSE(isThere());
}

TEST_F(TheUnsavedShop, ThatCannotBeRemovedIsALineInTheLog)
{
    openShop("");
    ASSERT_TRUE(QDir().mkpath(session.folder.unsavedShopFile() + u"/in the way"_s));
    save();
    EXPECT_TRUE(logLines().last().startsWith(u"shop.unsaved.xml was not removed: Permission denied"_s));
}

// The second window -------------------------------------------------------------------------------------------------

TEST_F(TheUnsavedShop, IsNothingToASecondWindow)
{
    writeFile(session.folder.unsavedShopFile(), "the first one's");
    restart(UnsavedShop::Window::Second);
    openShop("");
    next->shop->name = u"Moss"_s;
    unsaved->keep();
    unsaved->keepAheadOfSave();
    save();
    unsaved->giveUp();
    EXPECT_EQ(bytes(), "the first one's");
    EXPECT_FALSE(QFileInfo::exists(session.folder.oldUnsavedShopFile()));
}

// At the next start -------------------------------------------------------------------------------------------------

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
    [](const auto& info) { return info.param.name; });

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
