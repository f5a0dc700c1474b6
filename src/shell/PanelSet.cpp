#include "shell/PanelSet.h"

#include "editors/BarePanel.h"
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
#include "shell/ButtonTable.h"
#include "shell/MainFormLayout.h"
#include "shell/ShortcartButton.h"

#include <QGridLayout>

#include <algorithm>
#include <iterator>

using namespace Qt::StringLiterals;

namespace {

// Which class stands behind a panel's name. A panel that is not listed is a bare one.
struct PanelClass
{
    const char* name;
    Panel* (*make)(PanelHost& host, QWidget* parent);
};

template <class PanelType>
Panel* newPanel(PanelHost& host, QWidget* parent)
{
    return new PanelType(host, parent);
}

constexpr PanelClass panelClasses[] = {
    {"ShopGeneralPnl", newPanel<ShopGeneralPanel>},
    {"ShopDiscountPnl", newPanel<ShopDiscountPanel>},
    {"ShopTaxesPnl", newPanel<ShopTaxesPanel>},
    {"ShippingChargesPnl", newPanel<ucShippingCharges>},
    {"ShopsShippingPnl", newPanel<ShopsShippingPanel>},
    {"CategoryGeneralPnl", newPanel<CategoryGeneralPanel>},
    {"CategoryDiscountPnl", newPanel<CategoryDiscountPanel>},
    {"ProductGeneralPnl", newPanel<ProductGeneralPanel>},
    {"ProductDiscountPnl", newPanel<ProductDiscountPanel>},
    {"ProductsMultipricePnl", newPanel<ProductsMultipricePanel>},
    {"ProductsRelatedPnl", newPanel<ProductsRelatedPanel>},
    {"ProductShippingCostsPnl", newPanel<ProductShippingCostsPanel>},
    {"MainPagePnl", newPanel<ucMainPage>},
    {"HeaderManagerPnl", newPanel<HeaderManager>},
    {"FooterManagerPnl", newPanel<FooterManager>},
    {"MenuManagerPnl", newPanel<MenuManager>},
    {"CategoryPageManagerPnl", newPanel<CategoryPageManager>},
    {"ProductPageManagerPnl", newPanel<ProductPageManager>},
    {"SearchPageManagerPnl", newPanel<SearchPageManager>},
    {"CustomPagesManagerPnl", newPanel<CustomPageManager>},
    {"ShoppingCartPageManagerPnl", newPanel<ShoppingCartPageManager>},
    {"BuyingFormPnl", newPanel<ucBuyingForm>},
};

// A bare panel is headed by the title of the button that shows it.
QString headingOf(const char* panel)
{
    for (const ButtonRow& button : buttonTable()) {
        if (button.panel && qstrcmp(button.panel, panel) == 0 && button.code == PanelCode::Show &&
            button.frame != ButtonFrame::ToolbarFrame) {
            return QString::fromLatin1(button.title).simplified();
        }
    }
    return QString();
}

Panel* makePanel(const char* name, PanelHost& host, QWidget* holder)
{
    const auto* known = std::find_if(std::begin(panelClasses), std::end(panelClasses),
                                     [&](const PanelClass& row) { return qstrcmp(row.name, name) == 0; });
    if (known == std::end(panelClasses)) {
        return new BarePanel(headingOf(name), holder);
    }
    return known->make(host, holder);
}

} // namespace

QHash<QString, Panel*> makePanels(PanelHost& host, const MainFormLayout& parts)
{
    QHash<QString, Panel*> panels;
    for (const PanelRow& row : panelTable()) {
        QFrame* holder = row.frame == PanelFrame::MainFrame ? parts.MainFrame : parts.ShopDesignFrame;
        Panel* panel = makePanel(row.name, host, holder);
        panel->setObjectName(QLatin1String(row.name));
        qobject_cast<QGridLayout*>(holder->layout())->addWidget(panel, 0, 0);
        panel->hide();
        panels.insert(panel->objectName(), panel);
    }
    return panels;
}

void bindButtons(const MainFormLayout& parts, const QHash<QString, Panel*>& panels)
{
    for (const ButtonRow& row : buttonTable()) {
        ShortcartButton* button = parts.buttons.value(QLatin1String(row.name));
        button->ShortCartFrameToActivate = row.panel ? panels.value(QLatin1String(row.panel)) : nullptr;
        button->Code = row.code;
    }
}
