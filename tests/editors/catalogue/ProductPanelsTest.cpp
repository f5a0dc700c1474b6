// The product's panels in the real window.
#include "PanelTest.h"

#include <QCheckBox>
#include <QLabel>
#include <QListView>
#include <QRadioButton>
#include <QTreeView>

using namespace Qt::StringLiterals;

namespace {

class ProductPanels : public PanelTest
{
protected:
    void SetUp() override
    {
        PanelTest::SetUp();
        clickNode(u"ID4"_s);
    }

    // Saves the panel with that link typed and gives the product's link.
    QString savedLink(const QString& link)
    {
        type("ProductLinkTxt", link);
        submit();
        EXPECT_EQ(textIn("ProductLinkTxt"), product("4")->LINK);
        return product("4")->LINK;
    }
};

TEST_F(ProductPanels, ShowANameInTheTreeWhileItIsTyped)
{
    type("ProductNameTxt", u"Gyokuro"_s);
    EXPECT_EQ(window->SelectedNode->text, u"Gyokuro"_s);
    EXPECT_EQ(product("4")->name, u"Sencha"_s);
    reset();
    EXPECT_EQ(textIn("ProductNameTxt"), u"Sencha"_s);
    EXPECT_EQ(window->SelectedNode->text, u"Gyokuro"_s); // until the next change
    QTest::keyClicks(in("ProductNameTxt"), u"!"_s);
    EXPECT_EQ(window->SelectedNode->text, u"Sencha!"_s);
}

TEST_F(ProductPanels, RefuseALetterInThePrice)
{
    type("ProductPriceTxt", u"12a"_s);
    EXPECT_EQ(textIn("ProductPriceTxt"), u"12"_s);
    type("ProductPriceTxt", QString());
    EXPECT_EQ(textIn("ProductPriceTxt"), QString());
    submit();
    EXPECT_EQ(product("4")->Price()->Value, QString());
    EXPECT_TRUE(errors.numbers.empty());
}

TEST_F(ProductPanels, PutTheSchemeInFrontOfALink)
{
    EXPECT_EQ(savedLink(u"shop.example/page"_s), u"http://shop.example/page"_s);
    EXPECT_EQ(savedLink(u"http://shop.example/page"_s), u"http://shop.example/page"_s);
    EXPECT_EQ(savedLink(QString()), QString());
    EXPECT_EQ(savedLink(u"HTTP://shop.example"_s), u"http://HTTP://shop.example"_s);   // deliberate
    EXPECT_EQ(savedLink(u"https://shop.example"_s), u"http://https://shop.example"_s); // deliberate
}

TEST_F(ProductPanels, WriteTheNameOfThePictureAsAText)
{
    product("4")->selectedImage()->imageFileName = u"gone.png"_s;
    reset();
    EXPECT_EQ(product("4")->Picture, QString());
    submit();
    EXPECT_EQ(product("4")->Picture, u"gone.png"_s);
}

TEST_F(ProductPanels, SellAProductOrNot)
{
    EXPECT_TRUE(in<QCheckBox>("chkForSale")->isChecked());
    press("chkForSale");
    EXPECT_TRUE(product("4")->ForSale);
    submit();
    EXPECT_FALSE(product("4")->ForSale);
}

// Discount -----------------------------------------------------------------------------------------------------------

TEST_F(ProductPanels, WriteASpecificDiscountWithItsDates)
{
    click("ProductDiscountSBtn");
    EXPECT_FALSE(in("SpecificTxt")->isEnabled());
    press("SpecificOpt");
    type("SpecificTxt", u"7,5"_s);
    EXPECT_EQ(in("DateToTxt")->palette().color(QPalette::Base), QColor(255, 255, 255));
    submit();
    const clsDiscount& discount = *product("4")->Price()->Discount();
    EXPECT_EQ(discount.Status, DiscountStatus::Specific);
    EXPECT_EQ(discount.Value(u"10"_s), localised(u"7.5"_s));
    reset();
    EXPECT_TRUE(in<QRadioButton>("SpecificOpt")->isChecked());
    EXPECT_EQ(textIn("SpecificTxt"), localised(u"7.5"_s));
}

TEST_F(ProductPanels, ShowTheInheritedPercentageForTheirPrice)
{
    clsDiscount& discount = *product("4")->Price()->Discount();
    discount.Status = DiscountStatus::Inherit;
    discount.Inherit = u"30"_s;
    click("ProductDiscountSBtn");
    EXPECT_TRUE(in<QRadioButton>("InheritOpt")->isChecked());
    EXPECT_TRUE(in<QLabel>("lblInherit")->text().contains(u"30"_s));
    EXPECT_EQ(in("DateFromTxt")->palette().color(QPalette::Base), QColor(192, 192, 192));

    auto bands = std::make_shared<clsDependedDiscounts>();
    bands->Add(u"5"_s, u"20"_s, u"4"_s);
    discount.ParentDependDiscounts = bands;
    reset();
    EXPECT_TRUE(in<QLabel>("lblInherit")->text().contains(u"4 %"_s));
    product("4")->Price()->Value = u"20"_s; // the limits of a band do not belong to it
    reset();
    EXPECT_TRUE(in<QLabel>("lblInherit")->text().contains(u"Nothing"_s));
}

TEST_F(ProductPanels, LiveWithAPriceThatIsNoNumber)
{
    clsDiscount& discount = *product("4")->Price()->Discount();
    discount.Status = DiscountStatus::Inherit;
    auto bands = std::make_shared<clsDependedDiscounts>();
    bands->Add(u"5"_s, u"20"_s, u"4"_s);
    discount.ParentDependDiscounts = bands;
    for (const QString& price : {QString(), u"on request"_s}) {
        product("4")->Price()->Value = price;
        click("ProductDiscountSBtn");
        EXPECT_FALSE(in<QLabel>("lblInherit")->text().isEmpty());
        window->ShowFrame(nullptr, PanelCode::Show);
    }
    EXPECT_TRUE(errors.numbers.empty());
}

TEST_F(ProductPanels, KeepADiscountStatusThatAProductHasNoOptionFor)
{
    clsDiscount& discount = *product("4")->Price()->Discount();
    discount.Status = DiscountStatus::Depend;
    discount.setSpecific(u"9"_s);
    click("ProductDiscountSBtn");
    for (const char* option : {"NoDiscountOpt", "SpecificOpt", "InheritOpt"}) {
        EXPECT_FALSE(in<QRadioButton>(option)->isChecked()) << option;
    }
    submit();
    EXPECT_EQ(discount.Status, DiscountStatus::Depend);
    EXPECT_EQ(discount.Specific(), u"9"_s);
}

TEST_F(ProductPanels, CannotChangeADiscountOrPricesWhileTheCartIsKept)
{
    product("4")->Price()->AddMultiPrice()->Value = u"11"_s;
    putIntoCart("4");
    answerTheCartQuestion(false);
    click("ProductDiscountSBtn");
    for (const char* name : {"NoDiscountOpt", "SpecificOpt", "InheritOpt", "SpecificTxt", "DateFromTxt", "DateToTxt"}) {
        EXPECT_FALSE(in(name)->isEnabled()) << name;
    }
    answerTheCartQuestion(false);
    click("ProductPriceSbtn");
    EXPECT_FALSE(in("MultipriceGrd")->isEnabled());
    EXPECT_EQ(cell(in<CustomGrid>("MultipriceGrd"), 0, 1), u"11"_s);
    EXPECT_EQ(window->session().Cart->Count(), 1);
    answerTheCartQuestion(true);
    reset();
    EXPECT_TRUE(in("MultipriceGrd")->isEnabled());
}

// Multiple prices ----------------------------------------------------------------------------------------------------

TEST_F(ProductPanels, WriteTheVariantsOfAPrice)
{
    click("ProductPriceSbtn");
    auto* grid = in<CustomGrid>("MultipriceGrd");
    addRow(grid, {u"Small"_s, u"5"_s});
    addRow(grid, {u"Large"_s, u"9"_s});
    EXPECT_EQ(product("4")->Price()->MultiPriceCount(), 0);
    submit();
    submit(); // saving again changes nothing
    ASSERT_EQ(product("4")->Price()->MultiPriceCount(), 2);
    EXPECT_EQ(product("4")->Price()->GetMultiPrice(2)->Description, u"Large"_s);
    EXPECT_EQ(product("4")->Price()->GetMultiPrice(2)->NewValue(), u"9"_s);
    clickCell(grid, 0, 2);
    clickCell(grid, 0, 2);
    submit();
    EXPECT_EQ(product("4")->Price()->MultiPriceCount(), 0);
}

// Shipping costs -----------------------------------------------------------------------------------------------------

class ProductShipping : public ProductPanels
{
protected:
    void useTypes(const QStringList& names)
    {
        shop().ShippingTypeName = std::make_shared<TextCollection>();
        for (const QString& name : names) {
            shop().ShippingTypeName->Add(name);
        }
    }
    QList<QLineEdit*> costs() const { return window->VisibleFrame->findChildren<QLineEdit*>(u"ShippingTypeCostTxt"_s); }
};

TEST_F(ProductShipping, HasAPairForEachTypeOfTheShop)
{
    useTypes({u"Post"_s, u"Courier"_s, u"Drone"_s});
    product("4")->ShippingCosts()->Add(u"2"_s, u"Post"_s);
    product("4")->ShippingCosts()->Add(u"3"_s, u"Courier"_s);
    showPanel("ProductShippingCostsPnl");
    const QList<QLabel*> names = window->VisibleFrame->findChildren<QLabel*>(u"ShippingTypeNameLbl"_s);
    ASSERT_EQ(names.size(), 3);
    ASSERT_EQ(costs().size(), 3);
    EXPECT_EQ(names[2]->text(), u"Drone"_s);
    EXPECT_EQ(names[2]->buddy(), costs()[2]);
    EXPECT_EQ(costs()[1]->text(), u"3"_s);
    QCoreApplication::processEvents();
    EXPECT_LT(costs()[0]->mapToGlobal(QPoint()).y(), costs()[1]->mapToGlobal(QPoint()).y());

    press("IndividualOpt");
    typeInto(costs()[2], u"40"_s);
    window->ShowFrame(nullptr, PanelCode::Show);
    EXPECT_EQ(product("4")->ShippingStatus, u"Individual"_s);
    EXPECT_EQ(product("4")->ShippingCosts()->Item(u"Drone"_s), u"40"_s);
    EXPECT_EQ(product("4")->ShippingCosts()->Item(u"Post"_s), u"2"_s);

    useTypes({u"Post"_s});
    showPanel("ProductShippingCostsPnl");
    EXPECT_EQ(costs().size(), 1);
}

TEST_F(ProductShipping, OfAShopWithoutTypesShowsNoPair)
{
    product("4")->ShippingStatus = u"Individual"_s;
    showPanel("ProductShippingCostsPnl");
    ASSERT_EQ(costs().size(), 1);
    EXPECT_FALSE(costs()[0]->isVisible());
    window->ShowFrame(nullptr, PanelCode::Show);
    EXPECT_EQ(product("4")->ShippingCosts()->Count(), 0);
}

TEST_F(ProductShipping, PutsToUseWhatItsOptionNeeds)
{
    useTypes({u"Post"_s});
    product("4")->ShippingStatus = u"Weight"_s;
    product("4")->Weight = u"2"_s;
    showPanel("ProductShippingCostsPnl");
    EXPECT_TRUE(in<QRadioButton>("ByWeightOpt")->isChecked());
    EXPECT_EQ(textIn("WeightTxt"), u"2"_s);
    EXPECT_TRUE(in("WeightTxt")->isEnabled());
    EXPECT_FALSE(costs()[0]->isEnabled());
    press("NoChargesOpt");
    EXPECT_FALSE(in("WeightTxt")->isEnabled());
    EXPECT_FALSE(costs()[0]->isEnabled());
    press("IndividualOpt");
    EXPECT_TRUE(costs()[0]->isEnabled());
    press("ByWeightOpt");
    type("WeightTxt", u"3x"_s);
    EXPECT_EQ(product("4")->Weight, u"2"_s);
    window->ShowFrame(nullptr, PanelCode::Show);
    EXPECT_EQ(product("4")->Weight, u"3"_s);
}

TEST_F(ProductShipping, KeepsAnUnknownModeAfterThePanelShowedAnother)
{
    product("4")->ShippingStatus = u"Weight"_s;
    showPanel("ProductShippingCostsPnl");
    EXPECT_TRUE(in<QRadioButton>("ByWeightOpt")->isChecked());
    window->ShowFrame(nullptr, PanelCode::Show);
    product("4")->ShippingStatus = u"Pigeon"_s;
    showPanel("ProductShippingCostsPnl");
    for (const char* option : {"NoChargesOpt", "ByWeightOpt", "IndividualOpt"}) {
        EXPECT_FALSE(in<QRadioButton>(option)->isChecked()) << option;
    }
    window->ShowFrame(nullptr, PanelCode::Show);
    EXPECT_EQ(product("4")->ShippingStatus, u"Pigeon"_s);
}

TEST_F(ProductShipping, KeepsAnUnknownModeAndTheTableThatACloneShares)
{
    useTypes({u"Post"_s});
    product("4")->ShippingStatus = u"Pigeon"_s;
    const std::shared_ptr<ProductClass> clone = product("4")->CreateClone();
    showPanel("ProductShippingCostsPnl");
    costs()[0]->setText(u"6"_s);
    window->ShowFrame(nullptr, PanelCode::Show);
    EXPECT_EQ(product("4")->ShippingStatus, u"Pigeon"_s);
    EXPECT_EQ(clone->ShippingCosts()->Item(u"Post"_s), u"6"_s);
}

// Related products ---------------------------------------------------------------------------------------------------

class RelatedPanel : public ProductPanels
{
protected:
    void SetUp() override
    {
        ProductPanels::SetUp();
        click("ProductRelatedSBtn");
    }

    const CatalogueTreeModel& nodes() const
    {
        return *qobject_cast<CatalogueTreeModel*>(in<QTreeView>("AllProductsTree")->model());
    }
    static const TreeNode* below(const TreeNode* node, const QString& key)
    {
        if (node->key == key) {
            return node;
        }
        for (const auto& child : node->children) {
            if (const TreeNode* found = below(child.get(), key)) {
                return found;
            }
        }
        return nullptr;
    }
    void move(const QString& key)
    {
        auto* tree = in<QTreeView>("AllProductsTree");
        const TreeNode* node = below(nodes().rootNode(), key);
        ASSERT_NE(node, nullptr) << key.toStdString();
        const QModelIndex index = nodes().indexOf(node);
        tree->expandAll();
        tree->scrollTo(index);
        QTest::mouseClick(tree->viewport(), Qt::LeftButton, {}, tree->visualRect(index).center());
        press("ToRelatedLbl");
    }
    QStringList listed() const
    {
        const QAbstractItemModel* model = in<QListView>("RelatedProductsLst")->model();
        QStringList list;
        for (int row = 0; row < model->rowCount(); ++row) {
            const QModelIndex index = model->index(row, 0);
            list << index.data(Qt::UserRole).toString() + u' ' + index.data().toString();
        }
        return list;
    }
};

TEST_F(RelatedPanel, ShowsTheWholeCatalogue)
{
    const TreeNode* root = nodes().rootNode();
    EXPECT_EQ(root->key, u"ID_SHOP"_s);
    EXPECT_EQ(root->text, u"Fern"_s);
    ASSERT_EQ(root->children.size(), 1U);
    const TreeNode* tea = root->children[0].get();
    EXPECT_EQ(tea->key, u"ID2"_s);
    EXPECT_EQ(tea->children[0]->key, u"ID3"_s);
    EXPECT_EQ(tea->children[0]->children[0]->key, u"PROD5"_s);
    EXPECT_EQ(tea->children[1]->key, u"PROD4"_s);
    EXPECT_EQ(tea->children[1]->text, u"Sencha"_s);
}

TEST_F(RelatedPanel, ShowsAPictureAtEachNode)
{
    for (const char* key : {"ID_SHOP", "ID2", "PROD5"}) {
        const QModelIndex index = nodes().indexOf(below(nodes().rootNode(), QLatin1String(key)));
        EXPECT_FALSE(index.data(Qt::DecorationRole).value<QIcon>().pixmap(16).isNull()) << key;
    }
}

TEST_F(RelatedPanel, TakesNoCategory)
{
    move(u"ID3"_s);
    move(u"ID_SHOP"_s);
    EXPECT_EQ(listed(), QStringList());
}

TEST_F(RelatedPanel, TakesNotTheProductItself)
{
    move(u"PROD4"_s);
    EXPECT_EQ(listed(), QStringList());
}

TEST_F(RelatedPanel, ListsAProductOnce)
{
    move(u"PROD5"_s);
    move(u"PROD5"_s);
    EXPECT_EQ(listed(), QStringList{u"5 Mint"_s});
    EXPECT_EQ(product("4")->relatedCount(), 0);
    submit();
    submit();                                                           // saving again changes nothing
    EXPECT_EQ(product("4")->related, (QStringList{u"5"_s, QString()})); // with the spare entry
}

TEST_F(RelatedPanel, GivesAProductBack)
{
    move(u"PROD5"_s);
    press("FromRelatedLbl"); // nothing is selected in the list
    EXPECT_EQ(listed().size(), 1);
    auto* list = in<QListView>("RelatedProductsLst");
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualRect(list->model()->index(0, 0)).center());
    press("FromRelatedLbl");
    EXPECT_EQ(listed(), QStringList());
    move(u"PROD5"_s);
    EXPECT_EQ(listed().size(), 1);
}

TEST_F(RelatedPanel, KeepsAnIdWhoseProductIsNotThere)
{
    const QStringList ids = {u"77"_s, u"5"_s, u"2"_s};
    product("4")->setRelatedIds(ids);
    reset();
    EXPECT_EQ(listed(), (QStringList{u"77 (no product with the id 77)"_s, u"5 Mint"_s,
                                     u"2 (no product with the id 2)"_s})); // 2 is a category
    submit();
    EXPECT_EQ(product("4")->related.first(product("4")->relatedCount()), ids);
}

TEST_F(RelatedPanel, TakesAndGivesBackNothingThatTheTabKeyReachedOnly)
{
    product("4")->setRelatedIds({u"5"_s});
    reset();
    in("RelatedProductsLst")->setFocus(Qt::TabFocusReason);
    EXPECT_TRUE(in<QListView>("RelatedProductsLst")->selectionModel()->selectedIndexes().isEmpty());
    press("FromRelatedLbl");
    EXPECT_EQ(listed(), QStringList{u"5 Mint"_s});
}

TEST_F(RelatedPanel, IsEmptiedWhenItIsLeft)
{
    move(u"PROD5"_s);
    const CatalogueTreeModel& model = nodes();
    click("ProductGeneralSBtn");
    EXPECT_EQ(model.rootNode(), nullptr);
    EXPECT_EQ(model.rowCount(), 0);
    EXPECT_EQ(product("4")->relatedCount(), 1);
}

} // namespace
