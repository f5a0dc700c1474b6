// The exact texts of the window's boxes. The tables of its menus, buttons and log lines stand in other tests beside
// this one.
#include "support/WindowTest.h"

#include <QTest>

#include <functional>

using namespace Qt::StringLiterals;

namespace {

const QString programTitle = u"Ambrel eCommerce Software"_s;

class WindowTexts : public WindowTest
{
protected:
    WindowTexts()
    {
        useShop("<Version>1.2.0</Version><MaxProductId>9</MaxProductId><Name>Fern</Name><SelectedCountries/>"
                "<Category><Id>2</Id><Name>Tea</Name>"
                "<Product><Id>4</Id><Name>Sencha</Name><Related/></Product></Category>");
    }
};

TEST_F(WindowTexts, OfAllBoxesAreTheSystemsOwn)
{
    enum class Kind { Message, YesNo, YesNoCancel };
    const struct
    {
        const char* when;
        Kind kind;
        QString title;
        QString text;
        std::function<void()> act;
    } rows[] = {
        {"a product is to be removed", Kind::YesNo, u"Warning"_s, u"Are you sure you want to remove this product"_s,
         [this] {
             clickNode(u"ID4"_s);
             click("RemoveProductSBtn");
         }},
        {"a product is to be removed from the pop-up", Kind::YesNo, u"Warning"_s,
         u"Are you sure you want to remove this product"_s, [this] { trigger("mnuRemoveProduct"); }},
        {"a category is to be removed", Kind::YesNo, u"Warning"_s, u"Are you sure you want to remove this category"_s,
         [this] {
             clickNode(u"ID2"_s);
             click("RemoveCategorySBtn");
         }},
        {"a category is to be removed from the pop-up", Kind::YesNo, u"Warning"_s,
         u"Are you sure you want to remove this category"_s, [this] { trigger("mnuRemoveCategory"); }},
        {"Alt and Left are pressed in the preview", Kind::Message, programTitle, u"SS"_s,
         [this] {
             window->SetMode(MainForm::PreviewMode);
             QTest::keyClick(window.get(), Qt::Key_Left, Qt::AltModifier);
         }},
        {"the window closes", Kind::YesNoCancel, programTitle, u"Do you want save changes?"_s,
         [this] { window->close(); }},
    };
    start();
    for (const auto& row : rows) {
        SCOPED_TRACE(row.when);
        switch (row.kind) {
        case Kind::Message:
            prompts.expectMessage(row.title, row.text);
            break;
        case Kind::YesNo:
            prompts.answerYesNo(row.title, row.text, false);
            break;
        case Kind::YesNoCancel:
            prompts.answerYesNoCancel(row.title, row.text, PromptAnswer::Cancel);
            break;
        }
        row.act();
    }
}

TEST_F(WindowTexts, OfARefusedImportIsTheErrorsOwnBetweenLineAndCount)
{
    start();
    writeFile(files.path(u"products.txt"_s), "short,line\n");
    prompts.answerFile(files.path(u"products.txt"_s));
    prompts.expectMessage(programTitle, u"Line 1: Subscript out of range\n0 products imported"_s, PromptIcon::Warning);
    trigger("mnuImport");
}

TEST_F(WindowTexts, OfAStartWithoutAShopAreTheSystemsOwn)
{
    for (const char* file : {"", "<Tarnwick/>", "no markup"}) {
        writeFile(files.path(u"shop.xml"_s), file);
        prompts.expectMessage(programTitle, u"Error in the configuration XML file. No 'Shop' node."_s);
        start();
        window.reset();
    }
}

} // namespace
