#include "editors/design/FooterManager.h"

#include "design/CSSClass.h"
#include "design/PageTable.h"
#include "editors/design/CSSManagementForm.h"
#include "editors/design/FontAndColorEditorPanel.h"
#include "editors/design/PageOptions.h"

using namespace Qt::StringLiterals;

namespace {

const QString copyrightStyle = u"copyright"_s;

} // namespace

FooterManager::FooterManager(PanelHost& panelHost, QWidget* parent)
    : PageManager(panelHost, ShopPage::Footer, parent),
      CopyrightPropPnl(new FontAndColorEditorPanel(panelHost, options()))
{
    CopyrightPropPnl->setObjectName(u"CopyrightPropPnl"_s);
    CopyrightPropPnl->setObjectTitle(u"Copyright line"_s);
    options()->addAheadOfStyles(CopyrightPropPnl);
}

void FooterManager::loadMore(ShopClass& shop)
{
    CopyrightPropPnl->SetActiveObject(*styleNamed(shop, copyrightStyle));
}

void FooterManager::saveMore(ShopClass& shop)
{
    CopyrightPropPnl->SaveActiveObject(*styleNamed(shop, copyrightStyle));
}
