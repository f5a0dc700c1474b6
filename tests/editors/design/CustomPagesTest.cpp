#include "CustomPagesTest.h"

#include <QTest>

using namespace Qt::StringLiterals;

void CustomPages::SetUp()
{
    openDesign();
    shop().CustomPages.Clear();
    for (const char* name : {"About", "Delivery", "Care"}) {
        auto page = std::make_shared<CustomPageClass>();
        page->pageName = QLatin1String(name);
        page->ContentText = u"text of "_s + page->pageName;
        page->ImageName = u"picture.png"_s;
        page->ImageAligment = u"Right"_s;
        shop().CustomPages.Add(page, page->pageName);
    }
    openManager("CustomPagesDesignSBtn");
}

void CustomPages::select(int row) const
{
    list()->scrollToItem(list()->item(row));
    QTest::mouseClick(list()->viewport(), Qt::LeftButton, {}, list()->visualItemRect(list()->item(row)).center());
}

QStringList CustomPages::listed() const
{
    QStringList names;
    for (int row = 0; row < list()->count(); ++row) {
        names << list()->item(row)->text();
    }
    return names;
}

QStringList CustomPages::pages() const
{
    QStringList names;
    for (const auto& page : shop().CustomPages) {
        EXPECT_EQ(shop().CustomPages.Item(page->pageName), page);
        names << page->pageName;
    }
    return names;
}

QStringList CustomPages::namesOf(const clsSelectedCustomPages& selection)
{
    QStringList names;
    for (const QString& name : selection.selectedPages()) {
        names << name;
    }
    return names;
}
