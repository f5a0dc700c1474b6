// What was not saved, while the program runs: when it is written, what is in it, and when it goes.
#include "UnsavedShopTest.h"

using namespace Qt::StringLiterals;

namespace {

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

TEST_F(TheUnsavedShop, HoldsEachButtonWhosePictureIsGone)
{
    for (const ImageSlotRow& slot : imageSlotTable()) {
        const QByteArray tag(slot.tag.data(), slot.tag.size());
        openShop("<ShopDesign><" + tag + "><SelectionType>Text</SelectionType><FileName>gone.png</FileName></" + tag +
                 "></ShopDesign>");
        next->shop->name = u"Moss"_s;
        EXPECT_EQ(errorOf([this] { currentText(); }), 53) << tag.toStdString();
        unsaved->keep();
        EXPECT_TRUE(bytes().contains("<FileName>gone.png</FileName>")) << tag.toStdString();
        QFile::remove(session.folder.unsavedShopFile());
        restart();
    }
}

// What it takes is what counts, not what comes of it.
TEST_F(TheUnsavedShop, IsLookedAtAsSeldomWhenItCannotBeWritten)
{
    openShop("");
    next->shop->ShippingTypeDescription = nullptr;
    next->shop->ShippingTypeName = std::make_shared<TextCollection>();
    next->shop->ShippingTypeName->Add(u"Post"_s, u"ship_name0"_s);
    ticking.step = 10;
    unsaved->keep();
    const qsizetype lines = logLines().size();
    for (int i = 0; i < 50; ++i) {
        unsaved->keep();
    }
    EXPECT_EQ(logLines().size(), lines);
    ticking.pass(2000);
    unsaved->keep();
    EXPECT_EQ(logLines().size(), lines + 1);
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

} // namespace
