// The line at the window's foot: what it tells of the last event, and the widths of the preview's page.
#include "shell/BottomLine.h"

#include "backup/BackUpCommands.h"
#include "look/Theme.h"
#include "shell/EventTexts.h"
#include "support/Hands.h"
#include "support/WindowTest.h"

#include <QAbstractButton>
#include <QFileInfo>
#include <QLabel>
#include <QLocale>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

class BottomLineTest : public WindowTest
{
protected:
    void SetUp() override
    {
        useShop("<Version>1.2.0</Version><MaxProductId>9</MaxProductId><Name>Fern</Name><SelectedCountries/>"
                "<Category><Id>2</Id><Name>Tea</Name></Category>");
        start();
    }
    void TearDown() override { showScheme(Scheme::Light); }

    PreviewParts makePreview(QWidget* parent) override
    {
        PreviewParts parts = WindowTest::makePreview(parent);
        parts.setPageWidth = [this](int width) { pageWidths.push_back(width); };
        return parts;
    }
    void goToPreview()
    {
        trigger("mnuShopPreview");
        errors.numbers.clear(); // there are no templates here
    }
    void import(const QByteArray& lines)
    {
        writeFile(files.path(u"products.txt"_s), lines);
        prompts.answerFile(files.path(u"products.txt"_s));
        trigger("mnuImport");
    }
    QString told() const { return find<QLabel>("lblLastEvent")->text(); }
    QColor colour() const { return find<QLabel>("lblLastEvent")->palette().color(QPalette::WindowText); }

    std::vector<int> pageWidths;
};

TEST_F(BottomLineTest, TellsNothingAtFirst)
{
    EXPECT_EQ(told(), QString());
    EXPECT_TRUE(find("frmCopyright")->isAncestorOf(find("lblLastEvent")));
    EXPECT_GT(find("lblLastEvent")->x(), find("lblCopyright")->geometry().right());
}

TEST_F(BottomLineTest, TellsWhenTheShopWasSaved)
{
    trigger("mnuSaveShop");
    EXPECT_EQ(told(), u"Saved 14:03"_s);
    clock.time = QTime(9, 5, 59);
    trigger("mnuSaveShop");
    EXPECT_EQ(told(), u"Saved 09:05"_s);
}

TEST_F(BottomLineTest, TellsHowManyProductsWereImported)
{
    import("Sencha,fine,Tea\n");
    EXPECT_EQ(told(), u"1 product imported"_s);
    QByteArray lines;
    for (int product = 0; product < 312; ++product) {
        lines += "Cup,small,Cups\n";
    }
    import(lines);
    EXPECT_EQ(told(), u"312 products imported"_s);
    EXPECT_EQ(colour(), tone(Tone::Muted));
}

TEST_F(BottomLineTest, TellsWhichLineStoppedAnImport)
{
    writeFile(files.path(u"products.txt"_s), "Sencha,fine,Tea\nshort,line\nLost,line,Tea\n");
    prompts.answerFile(files.path(u"products.txt"_s));
    prompts.expectMessage(u"Ambrel eCommerce Software"_s, u"Line 2: Subscript out of range\n1 product imported"_s,
                          PromptIcon::Warning);
    trigger("mnuImport");
    EXPECT_EQ(told(), u"Line 2 of the import is not understood"_s);
    EXPECT_EQ(colour(), tone(Tone::Error));
    trigger("mnuSaveShop");
    EXPECT_EQ(colour(), tone(Tone::Muted));
}

TEST_F(BottomLineTest, TellsWhatABackupIs)
{
    writeFile(files.path(u"pictures/a\\b.png"_s), "x");
    prompts.answerText(u"Backing up"_s, u"Enter file name"_s, u"first"_s);
    prompts.expectMessage(u"Backuping"_s, u"Completed"_s, PromptIcon::Information);
    trigger("mnuBackUp");
    const qint64 size = QFileInfo(files.path(u"backups/first.kvb"_s)).size();
    EXPECT_EQ(told(), u"Backup first.kvb, %1, 1 file left out"_s.arg(
                          QLocale().formattedDataSize(size, 1, QLocale::DataSizeSIFormat)));
}

TEST_F(BottomLineTest, KeepsWhatItTellsWhenABackupIsNotMade)
{
    trigger("mnuSaveShop");
    prompts.answerText(u"Backing up"_s, u"Enter file name"_s, std::nullopt);
    trigger("mnuBackUp");
    EXPECT_EQ(told(), u"Saved 14:03"_s);
}

TEST(EventTextsTest, CountInTheSingularAndThePluralAndInTheUsersNumbers)
{
    const QString size = localised(u"12.4"_s) + u" MB"_s;
    const std::pair<BackUpReport, QString> backups[] = {
        {{u"x.kvb"_s, 12'400'000, 2}, u"Backup x.kvb, %1, 2 files left out"_s.arg(size)},
        {{u"x.kvb"_s, 12'400'000, 1}, u"Backup x.kvb, %1, 1 file left out"_s.arg(size)},
        {{u"x.kvb"_s, 12'400'000, 0}, u"Backup x.kvb, %1"_s.arg(size)},
        {{u"x.kvb"_s, 8'340, 0}, u"Backup x.kvb, %1 kB"_s.arg(localised(u"8.3"_s))},
    };
    for (const auto& [report, text] : backups) {
        EXPECT_EQ(EventTexts::backedUp(report), text);
    }
    EXPECT_EQ(EventTexts::imported(0), u"0 products imported"_s);
    EXPECT_EQ(EventTexts::imported(1), u"1 product imported"_s);
    EXPECT_EQ(EventTexts::imported(20'000), QLocale().toString(20'000) + u" products imported"_s);
    EXPECT_EQ(EventTexts::notUnderstood(17), u"Line 17 of the import is not understood"_s);
}

TEST_F(BottomLineTest, CutsAnEventThatIsTooLongAndLeavesTheWindowAsItIs)
{
    const QSize before = find("frmCopyright")->size();
    const int least = find("frmCopyright")->minimumSizeHint().width();
    window->parts().frmCopyright->tell(QString(500, u'x'));
    QCoreApplication::processEvents();
    EXPECT_EQ(find("frmCopyright")->size(), before);
    EXPECT_EQ(find("frmCopyright")->minimumSizeHint().width(), least);
    EXPECT_EQ(find("lblLastEvent")->toolTip().size(), 500);
}

TEST_F(BottomLineTest, HoldsThreeWidthsInThePreviewAndOnlyThere)
{
    const std::pair<const char*, int> buttons[] = {
        {"PhoneWidthBtn", 390}, {"TabletWidthBtn", 820}, {"FullWidthBtn", 0}};
    for (const auto& [name, width] : buttons) {
        EXPECT_FALSE(isShown(name)) << name;
    }
    const int height = find("frmCopyright")->height();
    goToPreview();
    QCoreApplication::processEvents();
    const QRect place = find("PreviewBrowser")->geometry();
    EXPECT_TRUE(find<QAbstractButton>("FullWidthBtn")->isChecked());
    for (const auto& [name, width] : buttons) {
        auto* button = find<QAbstractButton>(name);
        EXPECT_TRUE(button->isVisible()) << name;
        EXPECT_GE(button->width(), 24);
        EXPECT_GE(button->height(), 24);
        EXPECT_FALSE(button->accessibleName().isEmpty());
        Hands::press(button);
        EXPECT_EQ(pageWidths.back(), width);
        QCoreApplication::processEvents();
        EXPECT_EQ(find("PreviewBrowser")->geometry(), place);
        for (const auto& [other, otherWidth] : buttons) {
            EXPECT_EQ(find<QAbstractButton>(other)->isChecked(), other == name);
        }
    }
    EXPECT_EQ(find("frmCopyright")->height(), height);
    trigger("mnuProductsCatalog");
    EXPECT_FALSE(isShown("PhoneWidthBtn"));
}

TEST_F(BottomLineTest, StartsWithTheFullWidthEachTime)
{
    goToPreview();
    Hands::press(find("PhoneWidthBtn"));
    window.reset();
    pageWidths.clear();
    start();
    goToPreview();
    EXPECT_TRUE(find<QAbstractButton>("FullWidthBtn")->isChecked());
    EXPECT_TRUE(pageWidths.empty());
}

TEST_F(BottomLineTest, ChoosesAWidthByKeys)
{
    goToPreview();
    find("FullWidthBtn")->setFocus(Qt::TabFocusReason);
    QTest::keyClick(window->focusWidget(), Qt::Key_Left);
    EXPECT_EQ(window->focusWidget(), find("TabletWidthBtn"));
    QTest::keyClick(window->focusWidget(), Qt::Key_Space);
    EXPECT_EQ(pageWidths.back(), 820);
}

TEST_F(BottomLineTest, MarksTheChosenWidthAndTheGroundBesideItInBothLooks)
{
    goToPreview();
    for (const Scheme scheme : {Scheme::Light, Scheme::Dark}) {
        showScheme(scheme);
        QCoreApplication::processEvents();
        const QImage chosen = find("FullWidthBtn")->grab().toImage();
        EXPECT_EQ(chosen.pixelColor(chosen.width() / 2, 0), toneIn(scheme, Tone::Accent));
        EXPECT_EQ(chosen.pixelColor(4, chosen.height() - 4), toneIn(scheme, Tone::Soft));
        const QImage ground = find("PreviewBrowser")->grab().toImage();
        EXPECT_EQ(ground.pixelColor(ground.rect().center()), toneIn(scheme, Tone::Header));
    }
}

} // namespace
