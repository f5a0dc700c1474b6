// Plays the server of the shop: takes every address that the preview's browser is about to go to, does what the server
// would have done, and shows the page that the server would have sent. Deciding and acting are two steps, since a
// browser must be answered at once and must not be touched while it waits for the answer. The window owns the one.
#pragma once

#include "model/ShopSession.h"
#include "pages/PageObject.h"
#include "pages/preview/PreviewPage.h"

#include <QString>

struct NavigationDecision
{
    bool cancel = false;    // the browser is not to go there
    bool hasAction = false; // act() is to be called with this address, once the browser is idle
};

class PreviewNavigation
{
public:
    // Both must outlive it.
    PreviewNavigation(ShopSession& session, PreviewPage& page) : m_session(session), m_page(page) {}

    // What is to become of an address, given as text with its escapes (characters outside ASCII stand unescaped). Looks
    // at nothing but the text and raises nothing.
    static NavigationDecision judge(const QString& url);

    // Does what the address asks for: changes the cart, shows a page. An address without an action does nothing.
    // ErrorNumber::InvalidArgument when a category, product or custom page is not there, TypeMismatch when an id is of
    // another kind or a tax or charge is no number; others as for ShowPreviewPage.
    void act(const QString& url);

    // Shows the page that the preview opens with: the shop's home page. ErrorNumber::InvalidArgument when it
    // is a custom page that is not there; others as for ShowPreviewPage.
    void openPreview();

private:
    QString homeQuery() const;
    void showCategory(const QString& url);
    void showProduct(const QString& url);
    void addToCart(const QString& url);
    void recalculateLine(const QString& url);
    void showFoundProducts(const QString& url);
    void showNamedPage(const QString& name);
    void setTaxAndCharge(const QString& url);

    void showMain();
    void showCart();
    void showCheckout();
    const std::shared_ptr<ShopClass>& shop() const { return m_page.context().sharedShop(); }

    ShopSession& m_session;
    PreviewPage& m_page;
};
