// The products that a product's page recommends, picked from the whole catalogue. The window owns it.
#pragma once

#include "editors/Panel.h"

#include <memory>

class CatalogueTreeModel;
class PanelHost;
class ProductClass;
class QListView;
class QTreeView;
class RelatedProducts;

class ProductsRelatedPanel : public Panel
{
    Q_OBJECT

public:
    // The host must outlive it.
    ProductsRelatedPanel(PanelHost& host, QWidget* parent);

    void SetActiveObject(const CatalogueObject& object) override;
    void SaveActiveObject() override;
    void ClearActiveObject() override;

private:
    // None for a product that is gone.
    const ProductClass* productUnder(const QString& key) const;
    QString nameOf(const QString& id) const;
    void toRelated();
    void fromRelated();

    PanelHost& m_host;
    QTreeView* AllProductsTree;
    QListView* RelatedProductsLst;
    CatalogueTreeModel* m_nodes;
    RelatedProducts* m_related;
    std::shared_ptr<ProductClass> m_product;
};
