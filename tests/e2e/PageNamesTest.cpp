// Every printable character in the name of a custom page, and the browser that follows the link to it.
#include "design/PageNames.h"

#include "design/ShopDesignClass.h"
#include "design/clsSelectedCustomPages.h"
#include "e2e/BrowserTest.h"
#include "support/PageNameCases.h"

#include <QElapsedTimer>

using namespace Qt::StringLiterals;

namespace {

class PageNames : public BrowserTest
{
protected:
    PageNames()
    {
        openEmptyShop();
        writeTemplate(u"main"_s, "<ul><!--:cycle:MAIN_PAGE_MENU_LIST:--><li><a href=\"<!--:server:-->"
                                 "ACTION=custompage.php&amp;name=<!--:name:-->\"><!--:name:--></a></li>"
                                 "<!--:end:MAIN_PAGE_MENU_LIST:--></ul>");
        templates->ReLoad(u"main"_s, u"main"_s);
    }

    // Shows the main page with a link to a page of that name, follows it and waits that long.
    bool linkLeadsTo(const QString& name, int patience)
    {
        session->shop->CustomPages.Clear();
        auto page = std::make_shared<CustomPageClass>();
        page->pageName = name;
        page->ContentText = u"<p id='page'>the page</p>"_s;
        session->shop->CustomPages.Add(page, name);
        clsSelectedCustomPages& menu = *session->shop->ShopDesign->Pages(PageSelection::MainPageMenuList);
        menu.Clear();
        menu.Add(name);
        markPage();
        preview->ShowPreviewPage(u"main"_s, session->shop);
        waitForNewPage();

        markPage();
        const QVariantList link = script(u"(function() { const link = document.querySelector('a');"
                                         "const width = link.getBoundingClientRect().width; link.click();"
                                         "return [link.textContent, link.hash, width]; })()"_s)
                                      .toList();
        QElapsedTimer time;
        time.start();
        while (time.elapsed() < patience && errors.numbers.empty() && countOf(u"#page"_s) == 0) {
            pause(5);
        }
        errors.numbers.clear(); // no page of that name
        const bool isSeen = link.value(2).toDouble() > 0;
        // What stands behind a '#' comes here, but no server is ever sent it.
        const bool isWhole = link.value(0).toString() == name && link.value(1).toString().isEmpty();
        return isSeen && isWhole && countOf(u"#page"_s) == 1;
    }

    // Twice, since on a busy machine the page of the name before may come late and take this one's place.
    void expectToLead(const QString& name)
    {
        EXPECT_TRUE(linkLeadsTo(name, 10'000) || linkLeadsTo(name, 30'000)) << '"' << name.toStdString() << '"';
    }
};

constexpr int shortWhile = 300; // milliseconds, for a page that will not come

TEST_F(PageNames, ThatTheRuleAllowsAreCarriedByALinkAndTheOthersAreNot)
{
    for (const PageNameCase& row : pageNameCases()) {
        if (row.carried) {
            expectToLead(row.name);
        } else {
            EXPECT_FALSE(linkLeadsTo(row.name, shortWhile)) << '"' << row.name.toStdString() << '"';
        }
    }
}

// A character that the rule allows wherever it stands is tried at all places at once. Of one that it refuses, a link
// fails at one of the places that it is refused at.
TEST_F(PageNames, WithAnyPrintableCharacterLeadToTheirPageWhereTheRuleAllowsIt)
{
    for (const QString& character : printableCharacters()) {
        const QString everywhere = u"%1Ab%1out%1"_s.arg(character);
        const QString behindAQuestion = u"Ab?%1out"_s.arg(character);
        if (linkCarries(everywhere) && linkCarries(behindAQuestion)) {
            expectToLead(everywhere);
            if (character.front().unicode() < 0x80) {
                expectToLead(behindAQuestion);
            }
            continue;
        }
        bool fails = false;
        for (const QString& name :
             {u"%1About"_s.arg(character), u"Ab%1out"_s.arg(character), u"About%1"_s.arg(character), behindAQuestion}) {
            if (linkCarries(name)) {
                expectToLead(name);
            } else {
                fails = !linkLeadsTo(name, shortWhile) || fails;
            }
        }
        EXPECT_TRUE(fails) << "refused for nothing: " << character.toUtf8().toHex().toStdString();
    }
}

} // namespace
