#include "editors/design/PageManager.h"

#include "design/SwitchWord.h"
#include "editors/PanelHost.h"
#include "editors/PanelParts.h"
#include "editors/ScrollColumn.h"
#include "editors/SubmitReset.h"
#include "editors/design/ManagerTables.h"
#include "editors/design/PageOptions.h"
#include "editors/design/TemplatePart.h"
#include "look/Measures.h"
#include "model/ShopSession.h"

#include <QTabWidget>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

PageManager::PageManager(PanelHost& host, ShopPage page, QWidget* parent)
    : Panel(parent),
      m_host(host),
      m_table(managerTable(page)),
      m_tabs(new QTabWidget(this)), // made before its contents, for the order of the tab key
      m_options(new PageOptions(host, m_table, m_tabs)),
      m_template(new TemplatePart(host, m_table, m_tabs))
{
    const QString heading = captionText(m_table.heading);
    setAccessibleName(heading);
    m_tabs->setObjectName(u"PagesTab"_s);
    m_tabs->setDocumentMode(true);
    m_tabs->addTab(new ScrollColumn(m_options, m_tabs), u"Page"_s);
    m_tabs->addTab(m_template, u"Template"_s);

    QVBoxLayout* column = newPanelColumn(this, heading);
    column->addWidget(m_tabs, 1);
    auto* buttons = new SubmitReset(host, this);
    buttons->layout()->setContentsMargins(0, 0, Measure::Tight, 0); // end where the groups end
    column->addWidget(buttons);
}

ShopPage PageManager::page() const
{
    return m_table.page;
}

DesignOption PageManager::advancedOption() const
{
    return rowOf(m_table.page).advanced.value();
}

void PageManager::SetActiveObject(const CatalogueObject& /*object*/)
{
    m_shop = m_host.session().shop;
    m_options->load();
    loadMore(*m_shop);
    m_template->load(m_shop->ShopDesign->isOn(advancedOption()));
}

void PageManager::SaveActiveObject()
{
    if (!m_shop) {
        return;
    }
    ShopDesignClass& design = *m_shop->ShopDesign;
    m_options->save(design);
    design.setOption(advancedOption(), switchWord(m_template->isAdvanced()));
    saveMore(*m_shop);
    if (m_table.savesTemplate) {
        m_template->saveWithPanel();
    }
}

void PageManager::ClearActiveObject()
{
    m_shop.reset();
    forget();
}

void PageManager::loadMore(ShopClass& /*shop*/) {}

void PageManager::saveMore(ShopClass& /*shop*/) {}

void PageManager::forget() {}
