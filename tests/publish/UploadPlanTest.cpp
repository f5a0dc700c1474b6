#include "publish/UploadPlan.h"

#include "publish/PublishSupport.h"

#include <QDir>

#include <vector>

using namespace Qt::StringLiterals;

namespace {

class UploadPlanTest : public testing::Test
{
protected:
    void useShop(const QByteArray& inside)
    {
        writeFile(files.path(u"shop.xml"_s), "<Tarnwick><Shop>" + inside + "</Shop></Tarnwick>");
    }
    void addLocal(const QString& name, int size)
    {
        writeFile(files.path("pictures/"_L1 + name), QByteArray(size, 'p'));
    }
    void addOnServer(const QString& name, qint32 size) { server.Add({name, size, {}}, name); }

    // The pictures that would be sent.
    QStringList picturesOf(const QByteArray& inside)
    {
        useShop(inside);
        UploadPlan plan(files.folder(), server);
        EXPECT_EQ(plan.walkShopFile(), UploadPlan::Found::All);
        QStringList names;
        for (const QString& name : plan.PicturesToUpload) {
            names << name;
        }
        return names;
    }

    TemporaryShopFolder files;
    ServerFileList server;
};

TEST_F(UploadPlanTest, CategoriesThenProductsBelowThemThenTheDesign)
{
    EXPECT_EQ(picturesOf("<ShopDesign><MENU_SEARCH_BUTTON><FileName>d2.png</FileName></MENU_SEARCH_BUTTON>"
                         "<HEADER_LOGO><FileName>d1.png</FileName></HEADER_LOGO></ShopDesign>"
                         "<Category><Picture>c1.png</Picture>"
                         "<Category><Picture>c2.png</Picture>"
                         "<Category><Picture>c3.png</Picture><Product><Picture>p1.png</Picture></Product></Category>"
                         "<Product><Picture>p2.png</Picture></Product></Category>"
                         "<Product><Picture>p3.png</Picture></Product></Category>"
                         "<Category><Picture>c4.png</Picture><Product><Picture>p4.png</Picture></Product></Category>"),
              QStringList({u"c1.png"_s, u"p1.png"_s, u"p2.png"_s, u"p3.png"_s, u"c2.png"_s, u"c3.png"_s, u"c4.png"_s,
                           u"p4.png"_s, u"d1.png"_s, u"d2.png"_s}));
}

TEST_F(UploadPlanTest, TheButtonsOfTheDesignGoInTheirOwnOrder)
{
    const QStringList names{u"HEADER_LOGO"_s,
                            u"HEADER_SEARCH_BUTTON"_s,
                            u"HEADER_SHOPPINGCART_BUTTON"_s,
                            u"CATEGORY_CART_BUTTON"_s,
                            u"PRODUCT_CART_BUTTON"_s,
                            u"SEARCHPAGE_SHOPPINGCART_BUTTON"_s,
                            u"MENU_SHOPPINGCART_BUTTON"_s,
                            u"MENU_SEARCH_BUTTON"_s,
                            u"MAIN_SEARCH_BUTTON"_s,
                            u"CARTPAGE_CHECKOUT_BUTTON"_s,
                            u"CARTPAGE_RECALCULATE_BUTTON"_s,
                            u"BUYINGFORM_MAKEORDER_BUTTON"_s};
    QByteArray design;
    QStringList pictures;
    for (const QString& name : names) {
        const QByteArray tag = name.toLatin1();
        pictures << name + ".png"_L1;
        design.prepend("<" + tag + "><FileName>" + tag + ".png</FileName></" + tag + ">");
    }
    design.append("<FOOTER_LOGO><FileName>other.png</FileName></FOOTER_LOGO>");
    EXPECT_EQ(picturesOf("<ShopDesign>" + design + "</ShopDesign>"), pictures);
}

TEST_F(UploadPlanTest, ADesignImageTakesTheLastFileNameOfItsOwnChildren)
{
    EXPECT_EQ(picturesOf("<ShopDesign><HEADER_LOGO><FileName>first.png</FileName><x><FileName>deep.png</FileName></x>"
                         "<FileName>last.png</FileName><y/></HEADER_LOGO></ShopDesign>"),
              QStringList{u"last.png"_s});
}

TEST_F(UploadPlanTest, ADesignImageWithoutAFileNameIsSkipped)
{
    EXPECT_EQ(picturesOf("<ShopDesign><HEADER_LOGO><Text>Cups</Text></HEADER_LOGO>"
                         "<MAIN_SEARCH_BUTTON><FileName></FileName></MAIN_SEARCH_BUTTON></ShopDesign>"),
              QStringList());
}

TEST_F(UploadPlanTest, NamesOfTheDesignKeepTheirPathAndNamesOfTheCatalogueLoseIt)
{
    EXPECT_EQ(picturesOf("<Category><Picture>C:\\pics\\a.png</Picture>"
                         "<Product><Picture>x\\y\\b.png</Picture></Product></Category>"
                         "<ShopDesign><HEADER_LOGO><FileName>C:\\pics\\c.png</FileName></HEADER_LOGO></ShopDesign>"),
              QStringList({u"a.png"_s, u"b.png"_s, u"C:\\pics\\c.png"_s}));
}

TEST_F(UploadPlanTest, AProductsPictureWithAFolderInItsPathIsLookedUpByItsBareName)
{
    addLocal(u"b.png"_s, 10);
    addOnServer(u"b.png"_s, 10);
    EXPECT_EQ(picturesOf("<Category><Product><Picture>x\\b.png</Picture></Product></Category><ShopDesign/>"),
              QStringList());
}

TEST_F(UploadPlanTest, StripPathKeepsWhatStandsBehindTheLastBackslash)
{
    EXPECT_EQ(StripPath(u"a\\b\\c.png"_s), u"c.png"_s);
    EXPECT_EQ(StripPath(u"c.png"_s), u"c.png"_s);
    EXPECT_EQ(StripPath(u"a/c.png"_s), u"a/c.png"_s);
    EXPECT_EQ(StripPath(u"folder\\"_s), u""_s);
    EXPECT_EQ(StripPath(u""_s), u""_s);
}

TEST_F(UploadPlanTest, TheSamePictureNamedTwiceIsSentOnce)
{
    EXPECT_EQ(picturesOf("<Category><Picture>a.png</Picture><Product><Picture>A.PNG</Picture></Product>"
                         "<Category><Picture>b.png</Picture></Category></Category>"
                         "<Category><Picture>b.png</Picture></Category>"
                         "<ShopDesign><HEADER_LOGO><FileName>a.png</FileName></HEADER_LOGO></ShopDesign>"),
              QStringList({u"a.png"_s, u"b.png"_s}));
}

TEST_F(UploadPlanTest, APictureOfAnotherSizeIsSentAgainAndOneOfTheSameSizeIsNot)
{
    addLocal(u"same.png"_s, 100);
    addLocal(u"changed.png"_s, 100);
    addLocal(u"new.png"_s, 100);
    addOnServer(u"same.png"_s, 100); // whatever its content
    addOnServer(u"changed.png"_s, 99);
    EXPECT_EQ(picturesOf("<Category><Picture>same.png</Picture><Product><Picture>changed.png</Picture></Product>"
                         "<Product><Picture>new.png</Picture></Product></Category><ShopDesign/>"),
              QStringList({u"changed.png"_s, u"new.png"_s}));
}

TEST_F(UploadPlanTest, TheServersNameCountsWithoutCaseAndTheLocalOneWithIt)
{
    addLocal(u"cup.png"_s, 100);
    addOnServer(u"CUP.png"_s, 100);
    EXPECT_EQ(picturesOf("<Category><Picture>cup.png</Picture></Category><ShopDesign/>"), QStringList());
    EXPECT_EQ(picturesOf("<Category><Picture>Cup.png</Picture></Category><ShopDesign/>"), QStringList{u"Cup.png"_s});
}

TEST_F(UploadPlanTest, APictureThatIsNotInTheFolderIsSentAndWillFail)
{
    addOnServer(u"lost.png"_s, 100);
    EXPECT_EQ(picturesOf("<Category><Picture>lost.png</Picture></Category><ShopDesign/>"), QStringList{u"lost.png"_s});
}

TEST_F(UploadPlanTest, CustomPagesAreLookedForBelowTheDesignOnly)
{
    EXPECT_EQ(picturesOf("<CustomPage><ImageName>beside.png</ImageName></CustomPage>"
                         "<ShopDesign><CustomPage><ImageName>below.png</ImageName></CustomPage></ShopDesign>"),
              QStringList{u"below.png"_s});
}

TEST_F(UploadPlanTest, OnlyAnElementsOwnPictureCounts)
{
    EXPECT_EQ(picturesOf("<Category><x><Picture>deep.png</Picture></x>"
                         "<Product><Picture>own.png</Picture></Product></Category>"
                         "<Product><Picture>outside.png</Picture></Product><ShopDesign/>"),
              QStringList{u"own.png"_s});
}

TEST_F(UploadPlanTest, MissingElementsAreToldApart)
{
    const auto found = [this] { return UploadPlan(files.folder(), server).walkShopFile(); };
    EXPECT_EQ(found(), UploadPlan::Found::NoShop); // no file
    writeFile(files.path(u"shop.xml"_s), "<Tarnwick><Shop>");
    EXPECT_EQ(found(), UploadPlan::Found::NoShop);
    writeFile(files.path(u"shop.xml"_s), "<Tarnwick/>");
    EXPECT_EQ(found(), UploadPlan::Found::NoShop);
    useShop("<Name>Cups</Name>");
    EXPECT_EQ(found(), UploadPlan::Found::NoShopDesign);
    useShop("<ShopDesign/>");
    EXPECT_EQ(found(), UploadPlan::Found::All);
}

TEST_F(UploadPlanTest, WithoutAFolderOfPicturesTheWalkFails)
{
    useShop("<ShopDesign/>");
    ASSERT_TRUE(QDir(files.path(u"pictures"_s)).removeRecursively());
    UploadPlan plan(files.folder(), server);
    EXPECT_EQ(errorOf([&] { plan.walkShopFile(); }), 75);
}

TEST_F(UploadPlanTest, AStepIsTheWholeQuotientOf100ByThePicturesAnd19)
{
    struct Row
    {
        int pictures;
        int step;
    };
    for (const Row& row :
         {Row{0, 5}, Row{1, 5}, Row{2, 4}, Row{6, 4}, Row{31, 2}, Row{81, 1}, Row{82, 0}, Row{500, 0}}) {
        UploadPlan plan(files.folder(), server);
        for (int i = 0; i < row.pictures; ++i) {
            plan.AddPictureIfNeeded(u"%1.png"_s.arg(i));
        }
        EXPECT_EQ(plan.ProgressStep(), row.step) << row.pictures;
    }
}

TEST_F(UploadPlanTest, ADeepTreeOfCategoriesIsWalkedInOneGo)
{
    constexpr int depth = 20000;
    QByteArray shop;
    for (int i = 0; i < depth; ++i) {
        shop += "<Category><Picture>" + QByteArray::number(i) + ".png</Picture><Product/>";
    }
    for (int i = 0; i < depth; ++i) {
        shop += "</Category>";
    }
    EXPECT_EQ(picturesOf(shop + "<ShopDesign/>").size(), depth);
}

// Each name holds all of those further in: five thousand million letters in all.
TEST_F(UploadPlanTest, ASmallFileWhoseNamesLieInEachOtherIsOutOfMemory)
{
    const auto nested = [](const QByteArray& element, const QByteArray& name) {
        constexpr int depth = 100'000;
        const QByteArray start = '<' + element + "><" + name + ">x";
        const QByteArray end = "</" + name + "></" + element + '>';
        return start.repeated(depth) + end.repeated(depth);
    };
    const QByteArray rows[] = {
        "<Category>" + nested("Product", "Picture") + "</Category><ShopDesign/>",
        nested("Category", "Picture") + "<ShopDesign/>",
        "<ShopDesign><x>" + nested("CustomPage", "ImageName") + "</x></ShopDesign>",
    };
    for (const QByteArray& row : rows) {
        SCOPED_TRACE(row.left(60).toStdString());
        useShop(row);
        UploadPlan plan(files.folder(), server);
        EXPECT_EQ(errorOf([&] { plan.walkShopFile(); }), 7);
    }
}

TEST_F(UploadPlanTest, ANameInPiecesMayBeAsLongAsItsFile)
{
    const QByteArray name(12'000'000, 'x');
    EXPECT_EQ(picturesOf("<Category><Picture><b/>" + name + "</Picture></Category><ShopDesign/>"),
              QStringList{QString::fromLatin1(name)});
}

TEST_F(UploadPlanTest, WhatEachRequestCarries)
{
    struct Row
    {
        UploadItem item;
        QString localFile;
        QString fileName;
        QByteArray contentType;
    };
    const ApplicationFolder folder(u"/home/anna/Shop"_s);
    const std::vector<Row> rows{
        {{UploadItem::Kind::Shop, {}, 2}, u"/home/anna/Shop/shop.xml"_s, u"/home/anna/Shop\\shop.xml"_s, "text/xml"},
        {{UploadItem::Kind::Picture, u"a.png"_s, 1},
         u"/home/anna/Shop/pictures/a.png"_s,
         u"/home/anna/Shop\\pictures\\a.png"_s,
         "image/gif"},
        {{UploadItem::Kind::Template, u"cart"_s, 1},
         u"/home/anna/Shop/templates/cart.html"_s,
         u"cart.html"_s,
         "text/html"},
    };
    for (const Row& row : rows) {
        const UploadPart part = partOf(row.item, folder);
        EXPECT_EQ(part.localFile, row.localFile);
        EXPECT_EQ(part.fileName, row.fileName);
        EXPECT_EQ(part.contentType, row.contentType);
    }
}

TEST_F(UploadPlanTest, APictureNameThatLeadsOutOfItsFolderIsAFileThatIsNotThere)
{
    for (const QString& name : {u"../shop.xml"_s, u"/etc/passwd"_s, u".."_s, u"a/b.png"_s}) {
        EXPECT_EQ(errorOf([&] {
                      partOf({UploadItem::Kind::Picture, name, 1}, files.folder());
                  }),
                  53)
            << name.toStdString();
    }
}

TEST_F(UploadPlanTest, KnowsNothingOfWhatWasNotSaved)
{
    const QByteArray unsaved = "<Tarnwick><Shop><Category><Picture>new.png</Picture></Category><ShopDesign/></Shop>"
                               "</Tarnwick>";
    writeFile(files.folder().unsavedShopFile(), unsaved);
    writeFile(files.folder().oldUnsavedShopFile(), unsaved);
    writeFile(files.folder().runningFile(), "");
    EXPECT_EQ(picturesOf("<Category><Picture>cup.png</Picture></Category><ShopDesign/>"), QStringList{u"cup.png"_s});
    UploadPlan plan(files.folder(), server);
    EXPECT_EQ(plan.walkShopFile(), UploadPlan::Found::All);
    for (const UploadItem& item : plan.items()) {
        const QString path = partOf(item, files.folder()).localFile;
        EXPECT_FALSE(path.contains(u"unsaved"_s) || path.contains(u"running"_s)) << path.toStdString();
    }
}

TEST_F(UploadPlanTest, ShopThenPicturesThenFourteenTemplatesInPairs)
{
    UploadPlan plan(files.folder(), server);
    plan.AddPictureIfNeeded(u"a.png"_s);
    plan.AddPictureIfNeeded(u"b.png"_s);
    QStringList order;
    for (const UploadItem& item : plan.items()) {
        order << u"%1 %2 %3"_s.arg(static_cast<int>(item.kind)).arg(item.name).arg(item.steps);
    }
    EXPECT_EQ(order, QStringList({u"0  2"_s, u"1 a.png 1"_s, u"1 b.png 1"_s, u"2 cart 1"_s, u"2 category 3"_s,
                                  u"2 custompage 1"_s, u"2 footer 3"_s, u"2 header 1"_s, u"2 layout 3"_s, u"2 main 1"_s,
                                  u"2 menu 3"_s, u"2 product 1"_s, u"2 search 3"_s, u"2 checkout 1"_s, u"2 buying 3"_s,
                                  u"2 payed_cancel 1"_s, u"2 payed_ok 3"_s}));
}

} // namespace
