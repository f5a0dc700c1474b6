// The template of each page in its manager: showing, saving, restoring, the advanced mode, and the editor.
#include "DesignTest.h"
#include "look/Theme.h"
#include "template_engine/Templates_Set.h"

#include <QClipboard>
#include <QFileInfo>
#include <QLabel>
#include <QScrollBar>
#include <QTest>
#include <QTextBlock>
#include <QTextLayout>

using namespace Qt::StringLiterals;

namespace {

const QString SwitchOn = u"Are you sure you want to switch to advanced mode?"_s;
const QString SwitchBack =
    u"If you swich back from Advanced Mode all your changes made in the template will be changed back to "
    u"defaults. Do you want to continue?"_s;
const QString SwitchBackOfTheHeader =
    u"If you switch back from Advanced Mode all your changes made in the template will be "
    u"changed back to defaults. Do you want to continue?"_s;

class Templates : public DesignTest, public testing::WithParamInterface<ManagerCase>
{
protected:
    void SetUp() override
    {
        useSampleShop();
        start();
    }

    void openInDesign(const char* button)
    {
        click("ShopDesignSBtn");
        openManager(button);
        showTab(TemplateTab);
    }
    QCheckBox* advanced(const ManagerCase& manager) const { return in<QCheckBox>(manager.advancedControl); }
    void switchOn(const ManagerCase& manager, bool answer = true)
    {
        prompts.answerYesNo(title, SwitchOn, answer);
        tick(advanced(manager));
    }
    void switchOff(const ManagerCase& manager, bool answer = true)
    {
        const bool header = qstrcmp(manager.page, "header") == 0;
        prompts.answerYesNo(title, header ? SwitchBackOfTheHeader : SwitchBack, answer);
        tick(advanced(manager));
    }
    bool isEditable() const
    {
        const bool text = in<QPlainTextEdit>("TemplateTxt")->isEnabled();
        EXPECT_EQ(in("SaveTemplteBtn")->isEnabled(), text);
        EXPECT_EQ(in("RestoreTemplateBtn")->isEnabled(), text);
        return text;
    }
    void appendToTemplate(const QString& text)
    {
        auto* field = in<QPlainTextEdit>("TemplateTxt");
        field->moveCursor(QTextCursor::End);
        pressKeys(field, text);
    }
    QByteArray factoryCopy(const char* page) const
    {
        return fileBytes(files.path(u"templates/%1.html.def"_s.arg(QLatin1String(page))));
    }
    QString state() const { return in<QLabel>("TemplateStateLbl")->text(); }
    QColor stateColour() const { return in("TemplateStateLbl")->palette().color(QPalette::WindowText); }

    QString pathOf(const char* page) const { return files.path(u"templates/%1.html"_s.arg(QLatin1String(page))); }
    Templates_Set& set() const { return window->CurrentTemplatesSet(); }
    bool hasTemplate(const char* page) const { return set().templates.hasKey(QLatin1String(page)); }
    // Reads all templates as a start does: one that fails keeps those behind it out of the set.
    void readAsAtAStart() const { set().parseTemplates(); }
    // Where the page of that name is seen in the preview, or nothing for a piece of every page.
    QString queryOf(const char* page) const;

    const QString title = u"Ambrel eCommerce Software"_s;
};

QString Templates::queryOf(const char* page) const
{
    QString product;
    for (const CatalogueObject& object : window->session().objects.items()) {
        if (const auto* found = std::get_if<std::shared_ptr<ProductClass>>(&object)) {
            product = (*found)->id;
        }
    }
    const std::map<QString, QString> queries = {
        {u"main"_s, u"MAINPAGE"_s},
        {u"category"_s, u"ACTION=category.php&id="_s + window->session().shop->categories.Item(1)->id},
        {u"product"_s, u"ACTION=product.php&id="_s + product},
        {u"search"_s, u"?ACTION=search.php&where=0&what=a"_s},
        {u"cart"_s, u"?ACTION=shopcart.php"_s},
        {u"checkout"_s, u"?ACTION=checkout.php"_s},
        {u"custompage"_s, u"ACTION=custompage.php&name="_s + window->session().shop->CustomPages.Item(1)->pageName},
    };
    const auto query = queries.find(QLatin1String(page));
    return query == queries.end() ? QString() : query->second;
}

INSTANTIATE_TEST_SUITE_P(Managers, Templates, testing::ValuesIn(managers),
                         [](const auto& row) { return std::string(row.param.page); });

TEST_P(Templates, AreShownAndClosedToEditingInTheBasicMode)
{
    openInDesign(GetParam().button);
    EXPECT_FALSE(advanced(GetParam())->isChecked());
    EXPECT_FALSE(isEditable());
    QString shown = in<QPlainTextEdit>("TemplateTxt")->toPlainText();
    EXPECT_EQ(shown.replace(u'\n', u'\r'), templateText(GetParam().page));
}

TEST_P(Templates, CanBeEditedWhenTheOptionIsOnWithoutAQuestion)
{
    window->session().shop->ShopDesign->setOption(GetParam().advanced, u"Yes"_s);
    openInDesign(GetParam().button);
    EXPECT_TRUE(advanced(GetParam())->isChecked());
    EXPECT_TRUE(isEditable());
    pressIn("imgButtonReset");
    EXPECT_TRUE(advanced(GetParam())->isChecked());
}

TEST_P(Templates, StayClosedWhenTheAdvancedModeIsRefused)
{
    openInDesign(GetParam().button);
    const QByteArray before = templateFile(GetParam().page);
    switchOn(GetParam(), false);
    EXPECT_FALSE(advanced(GetParam())->isChecked());
    EXPECT_FALSE(isEditable());
    EXPECT_EQ(templateFile(GetParam().page), before);
    // The flag is cleared again: the next try asks again.
    switchOn(GetParam());
    EXPECT_TRUE(isEditable());
}

TEST_P(Templates, StayOpenWhenTheWayBackIsRefused)
{
    openInDesign(GetParam().button);
    switchOn(GetParam());
    appendToTemplate(u"more"_s);
    const QByteArray before = templateFile(GetParam().page);
    switchOff(GetParam(), false);
    EXPECT_TRUE(advanced(GetParam())->isChecked());
    EXPECT_TRUE(isEditable());
    EXPECT_EQ(templateFile(GetParam().page), before);
    EXPECT_TRUE(in<QPlainTextEdit>("TemplateTxt")->toPlainText().endsWith(u"more"));
    switchOff(GetParam());
    EXPECT_FALSE(isEditable());
}

TEST_P(Templates, GoBackToTheFactoryCopyWhenTheAdvancedModeIsLeft)
{
    writeFile(files.path(u"templates/%1.html.def"_s.arg(QLatin1String(GetParam().page))), "<p>made\r\nthere\r\n");
    openInDesign(GetParam().button);
    switchOn(GetParam());
    // Nothing was changed, and the file is replaced all the same.
    switchOff(GetParam());
    EXPECT_EQ(templateFile(GetParam().page), "<p>made\r\nthere\r\n");
    EXPECT_EQ(templateText(GetParam().page), u"<p>made\rthere\r"_s);
    EXPECT_EQ(in<QPlainTextEdit>("TemplateTxt")->toPlainText(), u"<p>made\nthere\n"_s);
    EXPECT_FALSE(isEditable());
}

TEST_P(Templates, ShowInTheNextPageWhatWasEditedAndSaved)
{
    openInDesign(GetParam().button);
    switchOn(GetParam());
    appendToTemplate(u"<b>edited by hand</b>"_s);
    pressIn("SaveTemplteBtn");
    EXPECT_TRUE(templateFile(GetParam().page).endsWith("<b>edited by hand</b>\r\n"));
    EXPECT_TRUE(templateText(GetParam().page).endsWith(u"<b>edited by hand</b>\r"));

    click("PreviewBrowserSBtn");
    const QString query = queryOf(GetParam().page);
    const QString page = query.isEmpty() ? preview->documents.last() : pageAt(query);
    EXPECT_TRUE(page.contains(u"<b>edited by hand</b>"_s));
}

TEST_P(Templates, AreSavedWithThePanelByMostManagersWhetherAdvancedOrNot)
{
    openInDesign(GetParam().button);
    const QByteArray before = templateFile(GetParam().page);
    pressIn("imgButtonSubmit");
    const QByteArray after = templateFile(GetParam().page);
    EXPECT_EQ(after, GetParam().savesTemplate ? before + "\r\n" : before);
    // The box is not filled anew, so saving again writes the same bytes.
    pressIn("imgButtonSubmit");
    EXPECT_EQ(templateFile(GetParam().page), after);
    click("PreviewBrowserSBtn");
    EXPECT_EQ(templateFile(GetParam().page), after);
}

TEST_P(Templates, GrowByOneLineBreakPerShowingAndSaving)
{
    openInDesign(GetParam().button);
    const QByteArray before = templateFile(GetParam().page);
    const char* other = qstrcmp(GetParam().page, "category") == 0 ? "BuyingFormDesignSBtn" : "CategoryPageDesignSBtn";
    openManager(other);
    openManager(GetParam().button);
    openManager(other);
    EXPECT_EQ(templateFile(GetParam().page), GetParam().savesTemplate ? before + "\r\n\r\n" : before);
}

TEST_P(Templates, KeepTheirAdvancedModeInTheShopFile)
{
    openInDesign(GetParam().button);
    switchOn(GetParam());
    saveShop();
    const QString& name = designOptionTable()[static_cast<std::size_t>(GetParam().advanced)].name;
    EXPECT_EQ(saved(name), u"Yes"_s);
    switchOff(GetParam());
    saveShop();
    EXPECT_EQ(saved(name), u"No"_s);
}

const QString openBlock = u"<!--:if:open=Yes:-->"_s;
const QString noMistakes = u"No mistakes: every tag and every block is closed."_s;

TEST_P(Templates, SayBeforehandAndInTheErrorColourWhatSavingAMistakeWouldDo)
{
    for (const Scheme scheme : {Scheme::Light, Scheme::Dark}) {
        showScheme(scheme);
        openInDesign(GetParam().button);
        if (!advanced(GetParam())->isChecked()) {
            switchOn(GetParam());
        }
        const QString before = templateText(GetParam().page);
        EXPECT_EQ(state(), noMistakes);
        EXPECT_EQ(stateColour(), toneIn(scheme, Tone::Muted));
        in<QPlainTextEdit>("TemplateTxt")->moveCursor(QTextCursor::Start);
        pressKeys(in("TemplateTxt"), openBlock);
        EXPECT_EQ(state(),
                  u"Line 1, column 1: The block \"open\" is never closed. "_s +
                      (GetParam().savesTemplate
                           ? u"Saving the template, or leaving this panel, writes it so and ends the program."_s
                           : u"Saving the template writes it so and ends the program."_s));
        EXPECT_EQ(stateColour(), toneIn(scheme, Tone::Error));
        // Looking ahead touches neither the set nor the file.
        EXPECT_EQ(templateText(GetParam().page), before);
        EXPECT_FALSE(templateFile(GetParam().page).contains("if:open"));
        pressIn("imgButtonReset");
        EXPECT_EQ(state(), noMistakes);
    }
    showScheme(Scheme::Light);
}

TEST_P(Templates, WithAMistakeDoOnLeavingWhatWasSaidBeforehand)
{
    openInDesign(GetParam().button);
    switchOn(GetParam());
    appendToTemplate(openBlock);
    const char* other = qstrcmp(GetParam().page, "category") == 0 ? "BuyingFormDesignSBtn" : "CategoryPageDesignSBtn";
    click(other);
    EXPECT_EQ(errors.numbers, GetParam().savesTemplate ? std::vector<int>{5} : std::vector<int>{});
    EXPECT_EQ(templateFile(GetParam().page).contains("if:open"), GetParam().savesTemplate);
    EXPECT_EQ(hasTemplate(GetParam().page), !GetParam().savesTemplate);
}

TEST_P(Templates, ThatAreBrokenLockNoMoreThanTheirOwnPage)
{
    const QByteArray broken = "<p>one</p>\r\n<!--:if:open=Yes:--><p>two</p>\r\n";
    writeFile(pathOf(GetParam().page), broken);
    readAsAtAStart();
    click("ShopDesignSBtn");
    for (const ManagerCase& manager : managers) {
        const bool own = manager.button == GetParam().button;
        openManager(manager.button);
        EXPECT_EQ(hasTemplate(manager.page), !own) << manager.page;
        const QString shown = in<QPlainTextEdit>("TemplateTxt")->toPlainText();
        EXPECT_EQ(shown == u"<p>one</p>\n<!--:if:open=Yes:--><p>two</p>\n"_s, own) << manager.page;
        EXPECT_EQ(state(),
                  own ? u"Line 2, column 1: The block \"open\" is never closed. The page cannot be shown. Saving "
                        u"the template ends the program; leaving it as it is writes nothing."_s
                      : noMistakes)
            << manager.page;
    }
    openManager("CategoryPageDesignSBtn");
    EXPECT_EQ(templateFile(GetParam().page), broken); // it was shown and left

    const auto isPiece = [this](const char* page) { return queryOf(page).isEmpty() || qstrcmp(page, "checkout") == 0; };
    if (!isPiece(GetParam().page)) {
        for (const ManagerCase& manager : managers) {
            if (manager.button != GetParam().button && !queryOf(manager.page).isEmpty()) {
                EXPECT_TRUE(pageAt(queryOf(manager.page)).contains(u"<body"_s)) << manager.page;
            }
        }
    }
    EXPECT_TRUE(errors.numbers.empty());
}

TEST_P(Templates, WithoutAFileShowNothingAndMakeNoneByLeaving)
{
    QFile::remove(pathOf(GetParam().page));
    readAsAtAStart();
    openInDesign(GetParam().button);
    EXPECT_EQ(in<QPlainTextEdit>("TemplateTxt")->toPlainText(), QString());
    EXPECT_EQ(state(),
              u"The template cannot be read: File not found: %1. The page cannot be shown. Saving writes the file "
              u"anew."_s.arg(QDir::toNativeSeparators(pathOf(GetParam().page))));
    EXPECT_EQ(stateColour(), toneIn(Scheme::Light, Tone::Error));
    pressIn("imgButtonSubmit");
    click("PreviewBrowserSBtn");
    EXPECT_FALSE(QFileInfo::exists(pathOf(GetParam().page)));
}

TEST_P(Templates, ThatAreBrokenAreWrittenOnLeavingWhenTheyWereMended)
{
    writeFile(pathOf(GetParam().page), "<!--:if:open=Yes:-->");
    readAsAtAStart();
    openInDesign(GetParam().button);
    switchOn(GetParam());
    type(in("TemplateTxt"), u"mended"_s);
    EXPECT_EQ(state(), noMistakes);
    pressIn("imgButtonSubmit");
    EXPECT_EQ(templateFile(GetParam().page), GetParam().savesTemplate ? "mended\r\n" : "<!--:if:open=Yes:-->");
    EXPECT_EQ(hasTemplate(GetParam().page), GetParam().savesTemplate);
    EXPECT_TRUE(errors.numbers.empty());
}

TEST_P(Templates, ThatAreBrokenBringTheOtherAbsentPagesBackWithTheirRestore)
{
    const char* other = qstrcmp(GetParam().page, "search") == 0 ? "cart" : "search";
    const QByteArray good = templateFile(other);
    writeFile(pathOf(GetParam().page), "<!--:if:open=Yes:-->");
    writeFile(pathOf(other), "<!--:");
    readAsAtAStart();
    openInDesign(GetParam().button);
    switchOn(GetParam());
    EXPECT_FALSE(hasTemplate(other));
    writeFile(pathOf(other), good); // by another program
    pressIn("RestoreTemplateBtn");
    EXPECT_EQ(templateFile(GetParam().page), factoryCopy(GetParam().page));
    EXPECT_EQ(state(), noMistakes);
    for (const ManagerCase& manager : managers) {
        EXPECT_TRUE(hasTemplate(manager.page)) << manager.page;
    }
}

constexpr ManagerCase category = managers[4];

TEST_F(Templates, AreNotAskedAboutWhenOneGoesFromPanelToPanel)
{
    window->session().shop->ShopDesign->setOption(DesignOption::Header_Advanced, u"Yes"_s);
    for (const ManagerCase& manager : managers) {
        openInDesign(manager.button);
    }
    openInDesign("HeaderDesignSBtn");
    EXPECT_TRUE(isEditable());
}

TEST_F(Templates, AreRestoredByTheirButtonWithoutAQuestion)
{
    openInDesign(category.button);
    switchOn(category);
    appendToTemplate(u"more"_s);
    pressIn("SaveTemplteBtn");
    pressIn("RestoreTemplateBtn");
    EXPECT_EQ(templateFile("category"), factoryCopy("category"));
    EXPECT_TRUE(isEditable());
    EXPECT_FALSE(in<QPlainTextEdit>("TemplateTxt")->toPlainText().contains(u"more\n"_s));
}

TEST_F(Templates, CannotBeRestoredWithoutTheirFactoryCopy)
{
    openInDesign(category.button);
    switchOn(category);
    QFile::remove(files.path(u"templates/category.html.def"_s));
    const QByteArray before = templateFile("category");
    pressIn("RestoreTemplateBtn");
    EXPECT_EQ(errors.numbers, std::vector<int>{53});
    EXPECT_EQ(templateFile("category"), before);
}

TEST_F(Templates, ThatAreBrokenAreWrittenAndThenFailToBeRead)
{
    openInDesign(category.button);
    switchOn(category);
    appendToTemplate(u"<!--:if:open=Yes:-->"_s);
    pressIn("SaveTemplteBtn");
    EXPECT_EQ(errors.numbers, std::vector<int>{5});
    EXPECT_TRUE(templateFile("category").endsWith("<!--:if:open=Yes:-->\r\n"));
    EXPECT_FALSE(window->CurrentTemplatesSet().templates.hasKey(u"category"_s));
}

TEST_F(Templates, AreWrittenBackInTheirEncoding)
{
    writeFile(files.path(u"templates/category.html"_s), "Gr\xFC\xDF"
                                                        "e\r\n");
    window->CurrentTemplatesSet().ReLoad(u"category"_s, u"category"_s);
    openInDesign(category.button);
    switchOn(category);
    appendToTemplate(u"\u00e9"_s);
    pressIn("SaveTemplteBtn");
    EXPECT_EQ(templateFile("category"), "Gr\xFC\xDF"
                                        "e\r\n\xE9\r\n");
    // A letter that this encoding does not have.
    appendToTemplate(u"\u4f60"_s);
    pressIn("SaveTemplteBtn");
    EXPECT_EQ(templateFile("category"), u"Gr\u00fc\u00dfe\r\n\u00e9\u4f60\r\n"_s.toUtf8());
}

TEST_F(Templates, KeepTheirNonBreakingBlanks)
{
    writeFile(files.path(u"templates/category.html"_s), "a\xC2\xA0"
                                                        "b\r\n");
    window->CurrentTemplatesSet().ReLoad(u"category"_s, u"category"_s);
    openInDesign(category.button);
    switchOn(category);
    pressIn("SaveTemplteBtn");
    EXPECT_EQ(templateFile("category"), "a\xC2\xA0"
                                        "b\r\n\r\n");
}

TEST_F(Templates, AreWrittenWithCrLfWhateverTheirLineEnds)
{
    writeFile(files.path(u"templates/category.html"_s), "one\ntwo\rthree\r\nfour");
    window->CurrentTemplatesSet().ReLoad(u"category"_s, u"category"_s);
    openInDesign(category.button);
    switchOn(category);
    pressIn("SaveTemplteBtn");
    EXPECT_EQ(templateFile("category"), "one\r\ntwo\r\nthree\r\nfour\r\n\r\n");
}

TEST_F(Templates, TellWhileOneTypesWhatIsWrongAndWhere)
{
    openInDesign(category.button);
    switchOn(category);
    auto* field = in<QPlainTextEdit>("TemplateTxt");
    const std::pair<QString, QString> cases[] = {
        {u"<p>\n<!--:name:-->"_s, u"No mistakes: every tag and every block is closed."_s},
        {u"<p>\nab<!--:name"_s, u"Line 2, column 3: A tag has no closing mark. "_s},
        {u"<!--:a:-->\n\n <!--:if:b=1:-->\nx"_s, u"Line 3, column 2: The block \"b\" is never closed. "_s},
        {u"<!--:cycle:rows:-->\n<!--:if:b=1:-->\n<!--:end:rows:-->"_s,
         u"Line 2, column 1: The block \"b\" is never closed. "_s},
    };
    for (const auto& [text, expected] : cases) {
        type(field, text);
        EXPECT_TRUE(state().startsWith(expected)) << state().toStdString();
    }
    QTest::keyClick(field, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_TRUE(errors.numbers.empty());
}

TEST_F(Templates, StandInLettersOfOneWidthWithNumberedLines)
{
    openInDesign(category.button);
    switchOn(category);
    auto* field = in<QPlainTextEdit>("TemplateTxt");
    EXPECT_EQ(field->fontMetrics().horizontalAdvance(u"iiii"_s), field->fontMetrics().horizontalAdvance(u"WWWW"_s));
    const auto numbers = [field] {
        QCoreApplication::processEvents();
        const QRect text = field->viewport()->geometry();
        return field->grab(QRect(0, text.top(), text.left() - 1, text.height())).toImage();
    };
    type(field, u"a"_s);
    const QImage one = numbers();
    pressKeys(field, u"b"_s);
    EXPECT_EQ(numbers(), one);
    QTest::keyClick(field, Qt::Key_Return);
    EXPECT_NE(numbers(), one);
}

TEST_F(Templates, NumberNoLineThatStandsBehindTheBarBelowThem)
{
    openInDesign(category.button);
    auto* field = in<QPlainTextEdit>("TemplateTxt");
    field->setPlainText(QString(500, u'x'));
    QCoreApplication::processEvents();
    ASSERT_TRUE(field->horizontalScrollBar()->isVisible());
    const QRect text = field->viewport()->geometry();
    int margins = 0;
    for (const QWidget* part : field->findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
        if (part->isVisible() && part->geometry().right() < text.left()) {
            EXPECT_EQ(part->geometry().bottom(), text.bottom());
            ++margins;
        }
    }
    EXPECT_EQ(margins, 1);
}

TEST_F(Templates, HaveTheirTagsInColour)
{
    openInDesign(category.button);
    switchOn(category);
    auto* field = in<QPlainTextEdit>("TemplateTxt");
    type(field, u"<p><!--:if:b=1:-->x<!--:a\n:--></p>"_s);
    QStringList coloured;
    for (QTextBlock line = field->document()->begin(); line.isValid(); line = line.next()) {
        for (const QTextLayout::FormatRange& range : line.layout()->formats()) {
            coloured << line.text().mid(range.start, range.length);
        }
    }
    EXPECT_EQ(coloured, (QStringList{u"<!--:"_s, u"if:"_s, u"b=1"_s, u":-->"_s, u"<!--:"_s, u"a"_s, u":-->"_s}));
}

TEST_F(Templates, AreSearchedFromTheCursorAndOnFromTheOtherEnd)
{
    writeFile(files.path(u"templates/category.html"_s), "one two\r\nTwo three\r\n");
    window->CurrentTemplatesSet().ReLoad(u"category"_s, u"category"_s);
    openInDesign(category.button);
    switchOn(category);
    auto* field = in<QPlainTextEdit>("TemplateTxt");
    field->setFocus();
    QTest::keyClick(field, Qt::Key_F, Qt::ControlModifier);
    EXPECT_TRUE(in<QLineEdit>("FindTxt")->hasFocus());
    type(in<QLineEdit>("FindTxt"), u"two"_s);
    QList<int> places;
    for (const char* button : {"FindNextBtn", "FindNextBtn", "FindNextBtn", "FindPreviousBtn"}) {
        pressIn(button);
        EXPECT_EQ(field->textCursor().selectedText().toLower(), u"two"_s);
        places << field->textCursor().selectionStart();
    }
    EXPECT_EQ(places, (QList<int>{4, 8, 4, 8}));
    type(in<QLineEdit>("FindTxt"), u"nowhere"_s);
    QTest::keyClick(in<QLineEdit>("FindTxt"), Qt::Key_Return);
    EXPECT_EQ(in<QLabel>("FindResultLbl")->text(), u"Not found"_s);
    EXPECT_EQ(field->textCursor().selectionStart(), 8);
}

TEST_F(Templates, ThatTheSetDoesNotHaveAreReadOnceMore)
{
    writeFile(pathOf("category"), "from the file\r\n");
    set().templates.Remove(u"category"_s);
    openInDesign(category.button);
    EXPECT_EQ(templateText("category"), u"from the file\r"_s);
    EXPECT_EQ(state(), noMistakes);
    EXPECT_TRUE(errors.numbers.empty());
}

// A file that another program mended, or broke, is left alone as long as its page is in the set.
TEST_F(Templates, ThatTheSetHasAreNotReadAgain)
{
    writeFile(pathOf("category"), "<!--:");
    writeFile(pathOf("menu"), "<!--:");
    set().templates.Remove(u"search"_s);
    openInDesign(category.button);
    EXPECT_FALSE(hasTemplate("search"));
    EXPECT_TRUE(hasTemplate("menu"));
    EXPECT_EQ(state(), noMistakes);
}

} // namespace
