#include "pages/preview/NavigationTest.h"

using namespace Qt::StringLiterals;

NavigationTest::NavigationTest()
{
    for (const QString& empty : {u"menu"_s, u"footer"_s, u"header"_s}) {
        addTemplate(empty, {});
    }
    addTemplate(u"checkout"_s, u"form <!--:price:-->"_s);
    addTemplate(u"main"_s, u"main"_s);
    addTemplate(u"category"_s, u"category <!--:category_id:-->"_s);
    addTemplate(u"product"_s, u"product <!--:id:-->"_s);
    addTemplate(u"custompage"_s, u"own <!--:page_text:-->"_s);
    addTemplate(u"search"_s, u"search [<!--:SEARCH_WORD:-->]<!--:cycle:products:--> <!--:name:-->"
                             "<!--:end:products:-->"_s);
    addTemplate(u"cart"_s, u"cart<!--:cycle:products:--> <!--:quantity:-->x<!--:id:--><!--:end:products:-->"_s);
    setLayout(u"<!--:main_part:-->"_s);
    addCustomPage(u"About"_s, u"about"_s);
    addCustomPage(u"Größe und Form"_s, u"sizes"_s);
    addCustomPage(u"10.5"_s, u"ten"_s);
    addCustomPage(u"a+b"_s, u"plus"_s);
}

QString NavigationTest::goTo(const QString& url)
{
    surface.documents.clear();
    if (PreviewNavigation::judge(url).hasAction) {
        navigation.act(url);
    }
    return surface.documents.join(u" > "_s);
}

QString NavigationTest::address(const char* text)
{
    return QString::fromUtf8(text).replace(u'~', u"http://previewmode/"_s);
}

QString NavigationTest::cartLines()
{
    QStringList lines;
    for (const auto& line : *session.Cart) {
        lines << line->Quantity + u'x' + line->id + u'@' + line->SelectedPrice();
    }
    return lines.join(u' ');
}
