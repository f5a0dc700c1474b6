// docs/shop-file.md and the shop file agree: the page names every element that the program writes or reads, and no
// other.
#include "SortedNames.h"
#include "base/XmlFile.h"
#include "design/DesignOptions.h"
#include "model/ShopSession.h"
#include "model/shop_file/ShopFile.h"
#include "support/TestSupport.h"

#include <QDate>
#include <QRegularExpression>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

// A number behind a name counts the elements of a list.
QString withoutNumber(QString name)
{
    while (!name.isEmpty() && name.back().isDigit()) {
        name.chop(1);
    }
    return name;
}

// The part of the page that tells of the elements below the document element.
QString partAboutElements()
{
    const QString page = QString::fromUtf8(fileBytes(QStringLiteral(TARNWICK_SOURCE_DIR "/docs/shop-file.md")));
    const qsizetype start = page.indexOf(u"\n## Shop\n"_s);
    return page.sliced(start, page.indexOf(u"\n## What a save does not keep\n"_s) - start);
}

// What the page tells of the values of elements.
const Names& wordsThatAreNoElements()
{
    static const Names words = {u"True"_s,
                                u"False"_s,
                                u"Yes"_s,
                                u"No"_s,
                                u"Y"_s,
                                u"N"_s,
                                u"ToAll"_s,
                                u"Depend"_s,
                                u"Inherit"_s,
                                u"Left"_s,
                                u"Arial"_s,
                                u"Image"_s,
                                u"Nothing"_s,
                                u"Individual"_s,
                                u"UNDEFINED_SHOP_NAME"_s,
                                u"UNDEFINED_PRODUCT_NAME"_s,
                                u"UNDEFINED_CSS_NAME"_s,
                                u"pictures"_s,
                                u"UNDEFINED_PAGE_NAME"_s};
    return words;
}

Names documentedElements()
{
    static const QRegularExpression name(u"`([A-Za-z_][A-Za-z_0-9]*)`"_s);
    Names names;
    for (const QRegularExpressionMatch& match : name.globalMatch(partAboutElements())) {
        names.insert(withoutNumber(match.captured(1)));
    }
    return names - wordsThatAreNoElements();
}

void collectNames(const pugi::xml_node& element, Names& names)
{
    for (const pugi::xml_node& child : element.children()) {
        if (child.type() == pugi::node_element) {
            names.insert(withoutNumber(QString::fromUtf8(child.name())));
            collectNames(child, names);
        }
    }
}

// A file with a row of every list.
const QByteArray fullShop =
    "<Tarnwick><Shop><Version>1.2.0</Version><ShippingChargesAreSelected>False</ShippingChargesAreSelected>"
    "<MaxProductId>9</MaxProductId>"
    "<ShopDiscount><Status>Depend</Status><PriceFrame><From>1</From><To>2</To><Percent>3</Percent></PriceFrame>"
    "</ShopDiscount><SelectedCountries><Country1>Mali</Country1></SelectedCountries>"
    "<ShopShipping><Type><Name>Post</Name><Description>slow</Description></Type></ShopShipping>"
    "<ShopShippingCosts><CostsFrame><From>0</From><To>5</To><Cost1>1</Cost1></CostsFrame></ShopShippingCosts>"
    "<Taxes><Type><Name>VAT</Name><Percent>19</Percent><Used>Y</Used></Type></Taxes>"
    "<Charges><Type><Destination>Mali</Destination><Cost>12</Cost><Used>N</Used></Type></Charges>"
    "<Category><Id>2</Id><Name>Tea</Name><Category><Id>3</Id><Name>Green</Name></Category>"
    "<Product><Id>4</Id><Name>Sencha</Name>"
    "<MultiplePrice><PriceDescription>small</PriceDescription><MPrice>5</MPrice></MultiplePrice>"
    "<Related><ID><RId>4</RId></ID></Related><ProductTaxes><Tax0>Y</Tax0></ProductTaxes></Product></Category>"
    "<CSS><CSSName>copyright</CSSName></CSS><CustomPage><PageName>About</PageName></CustomPage>"
    "<ShopDesign><HEADER_MENU_LIST><PAGES><SelectedPage>About</SelectedPage></PAGES></HEADER_MENU_LIST></ShopDesign>"
    "</Shop></Tarnwick>";

// What is read and never written.
const Names onlyRead = {u"ProductTaxes"_s, u"Tax"_s};

TEST(ShopFilePage, NamesEveryElementAndNoOther)
{
    const TemporaryShopFolder folder;
    RecordingPrompts prompts;
    const FixedClock clock{QDate(2024, 5, 15)};
    ShopSession session{folder.folder(), prompts, clock};
    writeFile(session.folder.shopFile(), fullShop);
    ASSERT_TRUE(loadShop(session));
    writeShopFile(session);
    XmlFile written;
    written.load(session.folder.shopFile());
    Names elements;
    collectNames(written.document().child("Tarnwick").child("Shop"), elements);
    Names given;
    XmlFile full;
    full.parse(fullShop);
    collectNames(full.document().child("Tarnwick").child("Shop"), given);
    EXPECT_EQ(sortedText(given - elements), sortedText(onlyRead));

    elements += onlyRead;
    const Names documented = documentedElements();
    EXPECT_EQ(sortedText(elements - documented), "") << "not told";
    EXPECT_EQ(sortedText(documented - elements), "") << "told and not there";
}

TEST(ShopFilePage, HasATableOfTheOptionsInTheirOrderWithTheirDefaults)
{
    static const QRegularExpression row(u"^\\| `([A-Za-z]+_[A-Za-z_]+)` \\| (.*) \\|$"_s,
                                        QRegularExpression::MultilineOption);
    QStringList documented;
    for (const QRegularExpressionMatch& match : row.globalMatch(partAboutElements().section(u"## ShopDesign"_s, 1))) {
        documented << match.captured(1) + u' ' + match.captured(2);
    }
    QStringList expected;
    for (const DesignOptionRow& option : designOptionTable()) {
        expected << option.name + u' ' + (option.defaultText.isEmpty() ? u"empty"_s : u'`' + option.defaultText + u'`');
    }
    EXPECT_EQ(documented, expected);
}

} // namespace
