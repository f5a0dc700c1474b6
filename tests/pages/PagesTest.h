// The fixture of the tests of pages: an empty shop in a temporary folder, whose catalogue a test builds by calls, and
// dumps of all variables of a page, in the order of adding.
#pragma once

#include "model/CategoryClass.h"
#include "model/ProductClass.h"
#include "model/ShopSession.h"
#include "pages/PageContext.h"
#include "pages/PageObject.h"
#include "support/TestSupport.h"
#include "template_engine/Templates_Set.h"

#include <QString>
#include <QStringList>

#include <gtest/gtest.h>
#include <memory>

class PagesTest : public testing::Test
{
protected:
    PagesTest();

    ShopClass& shop() { return *session.shop; }
    ShopDesignClass& design() { return *session.shop->ShopDesign; }

    // New nodes, entered in their parents and in ObjectsCollection. Ids are texts of numbers as a rule.
    std::shared_ptr<CategoryClass> addCategory(const QString& id, const QString& name,
                                               const std::shared_ptr<CategoryClass>& parent = {});
    std::shared_ptr<ProductClass> addProduct(const QString& id, const QString& name, const QString& price,
                                             const std::shared_ptr<CategoryClass>& category);
    static void addVariant(ProductClass& product, const QString& description, const QString& value);
    // A discount of the product's own, in percent.
    static void setDiscount(ProductClass& product, const QString& percent);
    std::shared_ptr<CustomPageClass> addCustomPage(const QString& name, const QString& text);
    // A line of the cart, as a press on an add-to-cart button makes it.
    void addToCart(const std::shared_ptr<ProductClass>& product, const QString& price, const QString& quantity);

    // Gives every option its own name in angle brackets as value, so that a dump shows which option stands where. The
    // limits stay 0.
    void markOptions();
    // Gives every slot of the design a picture, a text and a size of its own.
    void markSlots();
    // A picture with a size that is known, so that no file is needed.
    static void setPicture(clsSelectedImage& image, const QString& fileName, qint16 width, qint16 height);

    void addTemplate(const QString& name, const QString& text);
    void setLayout(const QString& text);

    // All variables of a page behind "server" and "shop_currency", which are checked; one line each.
    QString dumpOf(const QString& pageName, const PageObject& object = {});
    // The dump of a page's variable that is a list, row by row.
    QString dumpOfList(const QString& pageName, const PageObject& object, const QString& list);
    Variables variablesOf(const QString& pageName, const PageObject& object = {});
    // The text of one variable, or "MISSING".
    QString valueOf(const QString& pageName, const PageObject& object, const QString& key);
    // The same in a row (1-based) of a list of the page.
    QString valueInRow(const QString& pageName, const PageObject& object, const QString& list, int row,
                       const QString& key);

    TemporaryShopFolder files;
    RecordingPrompts prompts;
    FixedClock clock{QDate(2026, 7, 15)};
    ShopSession session{files.folder(), prompts, clock};
    Templates_Set templates{session.folder, session.log, shopTemplateNames()};
    PageContext context{session, templates};

private:
    QString dump(const Variables& vars, int from, int indent) const;
};

// The five lines of an image in a dump.
QString imageDump(const QString& key, const QString& type, const QString& file, const QString& text, int width,
                  int height);
// The same for a slot that markSlots has marked.
QString slotDump(const QString& key);
// The lines of options that markOptions has marked.
QString optionDump(const QStringList& names);
// Two blanks more ahead of every line.
QString indented(const QString& lines);
