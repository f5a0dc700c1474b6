// The fixture of the tests of the preview's navigation: the category "Tea" (2) with two products, "Sencha" (4) and
// "Morning Mix" (5), a few custom pages, and a surface that keeps what was shown.
#pragma once

#include "pages/PagesTest.h"
#include "pages/preview/PreviewNavigation.h"
#include "pages/preview/PreviewPage.h"
#include "pages/preview/PreviewSurface.h"

class TextSurface : public PreviewSurface
{
public:
    bool replaceDocument(const QString& text) override
    {
        documents << text.chopped(2);
        return true;
    }
    void goBlank() override {}

    QStringList documents;
};

class NavigationTest : public PagesTest
{
protected:
    NavigationTest();

    // Goes to an address as the browser does and gives what was shown, page behind page.
    QString goTo(const QString& url);
    QString goTo(const char* url) { return goTo(address(url)); }
    // The server's address stands for "~" in the tests' addresses.
    static QString address(const char* text);

    // The lines of the cart: quantity x id @ price.
    QString cartLines();

    TextSurface surface;
    PreviewPage preview{session, templates, surface};
    PreviewNavigation navigation{session, preview};
    std::shared_ptr<CategoryClass> tea = addCategory(QStringLiteral("2"), QStringLiteral("Tea"));
    std::shared_ptr<ProductClass> sencha =
        addProduct(QStringLiteral("4"), QStringLiteral("Sencha"), QStringLiteral("20"), tea);
    std::shared_ptr<ProductClass> mix =
        addProduct(QStringLiteral("5"), QStringLiteral("Morning Mix"), QStringLiteral("10"), tea);
};
