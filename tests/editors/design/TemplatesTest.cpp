// The template of each page in its manager: showing, saving, restoring, and the advanced mode.
#include "TemplatesTest.h"

#include "look/Theme.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

const QString title = u"Ambrel eCommerce Software"_s;
const QString SwitchOn = u"Are you sure you want to switch to advanced mode?"_s;
const QString SwitchBack =
    u"If you swich back from Advanced Mode all your changes made in the template will be changed back to "
    u"defaults. Do you want to continue?"_s;
const QString SwitchBackOfTheHeader =
    u"If you switch back from Advanced Mode all your changes made in the template will be "
    u"changed back to defaults. Do you want to continue?"_s;

} // namespace

void TemplatesTest::SetUp()
{
    useSampleShop();
    start();
}

void TemplatesTest::openInDesign(const char* button)
{
    click("ShopDesignSBtn");
    openManager(button);
    showTab(TemplateTab);
}

void TemplatesTest::switchOn(const ManagerCase& manager, bool answer)
{
    prompts.answerYesNo(title, SwitchOn, answer);
    tick(advanced(manager));
}

void TemplatesTest::switchOff(const ManagerCase& manager, bool answer)
{
    const bool header = qstrcmp(manager.page, "header") == 0;
    prompts.answerYesNo(title, header ? SwitchBackOfTheHeader : SwitchBack, answer);
    tick(advanced(manager));
}

bool TemplatesTest::isEditable() const
{
    const bool text = field()->isEnabled();
    EXPECT_EQ(in("SaveTemplteBtn")->isEnabled(), text);
    EXPECT_EQ(in("RestoreTemplateBtn")->isEnabled(), text);
    return text;
}

void TemplatesTest::appendToTemplate(const QString& text)
{
    field()->moveCursor(QTextCursor::End);
    pressKeys(field(), text);
}

void TemplatesTest::edit(const ManagerCase& manager)
{
    openInDesign(manager.button);
    switchOn(manager);
}

void TemplatesTest::editCategoryTemplate(const QByteArray& bytes)
{
    writeFile(pathOf("category"), bytes);
    set().ReLoad(u"category"_s, u"category"_s);
    edit(category);
}

namespace {

class Templates : public TemplatesTest, public testing::WithParamInterface<ManagerCase>
{
protected:
    // Reads all templates as a start does: one that fails keeps those behind it out of the set.
    void readAsAtAStart() const { set().parseTemplates(); }
    // Where the page of that name is seen in the preview, or nothing for a piece of every page.
    QString queryOf(const char* page) const;
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
    QString shown = field()->toPlainText();
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
    edit(GetParam());
    appendToTemplate(u"more"_s);
    const QByteArray before = templateFile(GetParam().page);
    switchOff(GetParam(), false);
    EXPECT_TRUE(advanced(GetParam())->isChecked());
    EXPECT_TRUE(isEditable());
    EXPECT_EQ(templateFile(GetParam().page), before);
    EXPECT_TRUE(field()->toPlainText().endsWith(u"more"));
    switchOff(GetParam());
    EXPECT_FALSE(isEditable());
}

TEST_P(Templates, GoBackToTheFactoryCopyWhenTheAdvancedModeIsLeft)
{
    writeFile(factoryPathOf(GetParam().page), "<p>made\r\nthere\r\n");
    edit(GetParam());
    // Nothing was changed, and the file is replaced all the same.
    switchOff(GetParam());
    EXPECT_EQ(templateFile(GetParam().page), "<p>made\r\nthere\r\n");
    EXPECT_EQ(templateText(GetParam().page), u"<p>made\rthere\r"_s);
    EXPECT_EQ(field()->toPlainText(), u"<p>made\nthere\n"_s);
    EXPECT_FALSE(isEditable());
}

TEST_P(Templates, ShowInTheNextPageWhatWasEditedAndSaved)
{
    edit(GetParam());
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
    edit(GetParam());
    saveShop();
    const QString& name = designOptionTable()[static_cast<std::size_t>(GetParam().advanced)].name;
    EXPECT_EQ(saved(name), u"Yes"_s);
    switchOff(GetParam());
    saveShop();
    EXPECT_EQ(saved(name), u"No"_s);
}

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
        field()->moveCursor(QTextCursor::Start);
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
    edit(GetParam());
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
        const QString shown = field()->toPlainText();
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
    EXPECT_EQ(field()->toPlainText(), QString());
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
    edit(GetParam());
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
    edit(GetParam());
    EXPECT_FALSE(hasTemplate(other));
    writeFile(pathOf(other), good); // by another program
    pressIn("RestoreTemplateBtn");
    EXPECT_EQ(templateFile(GetParam().page), fileBytes(factoryPathOf(GetParam().page)));
    EXPECT_EQ(state(), noMistakes);
    for (const ManagerCase& manager : managers) {
        EXPECT_TRUE(hasTemplate(manager.page)) << manager.page;
    }
}

TEST_F(Templates, AreNotAskedAboutWhenOneGoesFromPanelToPanel)
{
    window->session().shop->ShopDesign->setOption(DesignOption::Header_Advanced, u"Yes"_s);
    for (const ManagerCase& manager : managers) {
        openInDesign(manager.button);
    }
    openInDesign("HeaderDesignSBtn");
    EXPECT_TRUE(isEditable());
}

} // namespace
