// The base of the ten panels that design the shop's pages: a heading, a tab with the page's options, a tab with its
// template, and Submit and Reset. A manager is one table (see ManagerTables.h), and where it holds more than options, a
// small override. The window owns them.
#pragma once

#include "design/PageTable.h"
#include "editors/Panel.h"

#include <memory>

class PageOptions;
class PanelHost;
class QTabWidget;
class ShopClass;
class TemplatePart;
struct ManagerTable;

class PageManager : public Panel
{
    Q_OBJECT

public:
    // The host must outlive it. The page is one with a table.
    PageManager(PanelHost& host, ShopPage page, QWidget* parent);

    ShopPage page() const;

    // Shows the session's shop, whatever object is active.
    void SetActiveObject(const CatalogueObject& object) override;
    // Writes the options, what else the manager holds, and for most managers the template. Errors as for
    // TemplatePart::saveWithPanel.
    void SaveActiveObject() override;
    void ClearActiveObject() override;

protected:
    // What a manager holds beside its options. The shop is the one that the panel is bound to.
    virtual void loadMore(ShopClass& shop);
    virtual void saveMore(ShopClass& shop);
    virtual void forget();

    PanelHost& host() { return m_host; }
    PageOptions* options() { return m_options; }

private:
    DesignOption advancedOption() const;

    PanelHost& m_host;
    const ManagerTable& m_table;
    QTabWidget* m_tabs;
    PageOptions* m_options;
    TemplatePart* m_template;
    std::shared_ptr<ShopClass> m_shop; // none while the panel is not bound
};
