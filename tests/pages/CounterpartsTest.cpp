// Each row of the tables of pages and of image slots has what it needs below the windows.
#include "design/PageTable.h"
#include "pages/PagesTest.h"
#include "pages/RenderPage.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace {

class CounterpartsTest : public PagesTest
{
protected:
    CounterpartsTest()
    {
        const auto tea = addCategory(u"2"_s, u"Tea"_s);
        addCategory(u"4"_s, u"Green"_s, tea);
        const auto sencha = addProduct(u"3"_s, u"Sencha"_s, u"20"_s, tea);
        addToCart(sencha, u"20"_s, u"1"_s);
        auto results = std::make_shared<SearchResults>();
        results->products = {sencha};
        m_objects = {session.shop, tea, sencha, addCustomPage(u"About"_s, u"text"_s), results};
    }

    // The variables of a page, whichever object it asks for.
    Variables variables(ShopPage page)
    {
        for (const PageObject& object : m_objects) {
            try {
                return variablesOf(nameOf(page), object);
            } catch (const RuntimeError& error) {
                EXPECT_EQ(error.number(), ErrorNumber::TypeMismatch) << nameOf(page).toStdString();
            }
        }
        ADD_FAILURE() << "No object fits " << nameOf(page).toStdString();
        return context.newVariables();
    }

    // A slot's variables stand on the page or in the rows of one of its lists.
    static bool hasVariable(const Variables& vars, const QString& key)
    {
        if (vars.exists(key)) {
            return true;
        }
        for (int i = 1; i <= vars.Count(); ++i) {
            const auto* rows = std::get_if<std::shared_ptr<const VariableRows>>(&vars.Item(i));
            if (rows != nullptr && !(*rows)->empty() && hasVariable((*rows)->front(), key)) {
                return true;
            }
        }
        return false;
    }

private:
    std::vector<PageObject> m_objects;
};

QString sampleTemplate(const PageRow& row, const char* ending)
{
    return QStringLiteral(TARNWICK_SOURCE_DIR "/app/templates/") + row.name + QLatin1StringView(ending);
}

TEST_F(CounterpartsTest, EveryPageAndPieceHasAFillerAndNothingElseHas)
{
    const int ofAllPages = 2;
    for (const PageRow& row : pageTable()) {
        const bool isRendered = row.kind == PageKind::Page || row.kind == PageKind::Piece;
        EXPECT_EQ(variables(row.page).Count() > ofAllPages, isRendered) << row.name.data();
    }
}

TEST_F(CounterpartsTest, EveryImageSlotStandsOnAPage)
{
    for (const ImageSlotRow& slot : imageSlotTable()) {
        bool stands = false;
        for (const PageRow& row : pageTable()) {
            stands = stands || hasVariable(variables(row.page), slot.tag + u"_FILENAME"_s);
        }
        EXPECT_TRUE(stands) << slot.tag.data();
    }
}

TEST_F(CounterpartsTest, EveryOptionOfWhatVisitorsSeeStandsOnAPage)
{
    const QString limits = u"_Limit_Desc"_s;
    for (const DesignOptionRow& option : designOptionTable()) {
        if (option.name.endsWith(u"_Advanced")) {
            continue; // of the editors alone
        }
        QString variable = option.name.endsWith(limits) ? u"cut_count"_s : option.name;
        if (option.option == DesignOption::Footer_CopyrightText) {
            variable = u"COPYRIGHT_TEXT"_s;
        }
        bool stands = false;
        for (const PageRow& row : pageTable()) {
            stands = stands || hasVariable(variables(row.page), variable);
        }
        EXPECT_TRUE(stands) << option.element;
    }
}

TEST_F(CounterpartsTest, EveryPageHasASampleTemplateAndEveryOneWithAManagerAnEqualFactoryCopy)
{
    for (const PageRow& row : pageTable()) {
        SCOPED_TRACE(row.name.data());
        EXPECT_TRUE(QFile::exists(sampleTemplate(row, ".html")));
        ASSERT_EQ(QFile::exists(sampleTemplate(row, ".html.def")), row.advanced.has_value());
        if (row.advanced) {
            EXPECT_EQ(fileBytes(sampleTemplate(row, ".html")), fileBytes(sampleTemplate(row, ".html.def")));
        }
    }
}

} // namespace
