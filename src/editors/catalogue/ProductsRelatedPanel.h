// The products that a product's page recommends, picked from the whole catalogue. The window owns it.
#pragma once

#include "editors/catalogue/CataloguePanel.h"

class CatalogueTreeModel;
class ProductClass;
class QListView;
class QTreeView;
class RelatedProducts;

class ProductsRelatedPanel : public CataloguePanel<ProductClass>
{
    Q_OBJECT

public:
    ProductsRelatedPanel(PanelHost& host, QWidget* parent);

protected:
    void fill(ProductClass& product) override;
    void write(ProductClass& product) override;
    void forget() override;

private:
    // None for a product that is gone.
    const ProductClass* productUnder(const QString& key) const;
    QString nameOf(const QString& id) const;
    void toRelated();
    void fromRelated();

    QTreeView* AllProductsTree;
    QListView* RelatedProductsLst;
    CatalogueTreeModel* m_nodes;
    RelatedProducts* m_related;
};
