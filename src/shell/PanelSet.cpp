#include "shell/PanelSet.h"

#include "editors/catalogue/CategoryDiscountPanel.h"
#include "editors/catalogue/CategoryGeneralPanel.h"
#include "editors/catalogue/ProductDiscountPanel.h"
#include "editors/catalogue/ProductGeneralPanel.h"
#include "editors/catalogue/ProductShippingCostsPanel.h"
#include "editors/catalogue/ProductsMultipricePanel.h"
#include "editors/catalogue/ProductsRelatedPanel.h"
#include "editors/catalogue/ShopDiscountPanel.h"
#include "editors/catalogue/ShopGeneralPanel.h"
#include "editors/catalogue/ShopTaxesPanel.h"
#include "editors/catalogue/ShopsShippingPanel.h"
#include "editors/catalogue/ucShippingCharges.h"
#include "editors/design/CustomPageManager.h"
#include "editors/design/FooterManager.h"
#include "editors/design/Managers.h"
#include "shell/MainFormLayout.h"
#include "shell/ShortcartButton.h"

#include <QGridLayout>

namespace {

// Where a panel stands.
enum class PanelHolder { MainFrame, ShopDesignFrame };

struct PanelRow
{
    PanelName name;
    PanelHolder holder;
    Panel* (*make)(PanelHost& host, QWidget* parent);
};

template <class PanelType>
Panel* newPanel(PanelHost& host, QWidget* parent)
{
    return new PanelType(host, parent);
}

using enum PanelHolder;
using enum PanelName;

// All panels of the window, and which class each of them is.
constexpr PanelRow panelRows[] = {
    {ShopGeneralPnl, MainFrame, newPanel<ShopGeneralPanel>},
    {ShopDiscountPnl, MainFrame, newPanel<ShopDiscountPanel>},
    {ShopTaxesPnl, MainFrame, newPanel<ShopTaxesPanel>},
    {ShippingChargesPnl, MainFrame, newPanel<ucShippingCharges>},
    {ShopsShippingPnl, MainFrame, newPanel<ShopsShippingPanel>}, // no button leads here
    {CategoryGeneralPnl, MainFrame, newPanel<CategoryGeneralPanel>},
    {CategoryDiscountPnl, MainFrame, newPanel<CategoryDiscountPanel>},
    {ProductGeneralPnl, MainFrame, newPanel<ProductGeneralPanel>},
    {ProductDiscountPnl, MainFrame, newPanel<ProductDiscountPanel>},
    {ProductsMultipricePnl, MainFrame, newPanel<ProductsMultipricePanel>},
    {ProductsRelatedPnl, MainFrame, newPanel<ProductsRelatedPanel>},
    {ProductShippingCostsPnl, MainFrame, newPanel<ProductShippingCostsPanel>}, // no button leads here
    {MainPagePnl, ShopDesignFrame, newPanel<ucMainPage>},
    {HeaderManagerPnl, ShopDesignFrame, newPanel<HeaderManager>},
    {FooterManagerPnl, ShopDesignFrame, newPanel<FooterManager>},
    {MenuManagerPnl, ShopDesignFrame, newPanel<MenuManager>},
    {CategoryPageManagerPnl, ShopDesignFrame, newPanel<CategoryPageManager>},
    {ProductPageManagerPnl, ShopDesignFrame, newPanel<ProductPageManager>},
    {SearchPageManagerPnl, ShopDesignFrame, newPanel<SearchPageManager>},
    {CustomPagesManagerPnl, ShopDesignFrame, newPanel<CustomPageManager>},
    {ShoppingCartPageManagerPnl, ShopDesignFrame, newPanel<ShoppingCartPageManager>},
    {BuyingFormPnl, ShopDesignFrame, newPanel<ucBuyingForm>},
};

} // namespace

QHash<PanelName, Panel*> makePanels(PanelHost& host, const MainFormLayout& parts)
{
    QHash<PanelName, Panel*> made;
    for (const PanelRow& row : panelRows) {
        QFrame* holder = row.holder == MainFrame ? parts.MainFrame : parts.ShopDesignFrame;
        Panel* panel = row.make(host, holder);
        panel->setObjectName(objectNameOf(row.name));
        qobject_cast<QGridLayout*>(holder->layout())->addWidget(panel, 0, 0);
        panel->hide();
        made.insert(row.name, panel);
    }
    return made;
}

void bindButtons(const MainFormLayout& parts, const QHash<PanelName, Panel*>& panels)
{
    for (const ButtonRow& row : buttonTable()) {
        ShortcartButton* button = parts.buttons.value(row.name);
        button->ShortCartFrameToActivate = row.panel ? panels.value(*row.panel) : nullptr;
        button->Code = row.code;
    }
}
