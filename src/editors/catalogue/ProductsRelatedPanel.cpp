#include "editors/catalogue/ProductsRelatedPanel.h"

#include "editors/CatalogueTreeFill.h"
#include "editors/CatalogueTreeModel.h"
#include "editors/LinkLabel.h"
#include "editors/catalogue/RelatedProducts.h"
#include "look/Measures.h"
#include "look/TreeLook.h"
#include "model/ShopSession.h"

#include <QGridLayout>
#include <QLabel>
#include <QListView>
#include <QTreeView>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

const QString productPrefix = u"PROD"_s;

} // namespace

ProductsRelatedPanel::ProductsRelatedPanel(PanelHost& host, QWidget* parent)
    : CataloguePanel(host, u"Related products"_s, parent),
      m_nodes(new CatalogueTreeModel(this)),
      m_related(new RelatedProducts([this](const QString& id) { return nameOf(id); }, this))
{
    AllProductsTree = named(new QTreeView(m_frame), "AllProductsTree", u"All products"_s);
    AllProductsTree->setHeaderHidden(true);
    AllProductsTree->setUniformRowHeights(true);
    AllProductsTree->setMinimumWidth(180);
    AllProductsTree->setModel(m_nodes);
    // The pictures of the nodes are drawn for a dark ground.
    dressTree(*AllProductsTree);
    setTreeGround(*AllProductsTree);
    auto* ToRelatedLbl = new LinkLabel("ToRelatedLbl", u"Add >"_s, m_frame);
    auto* FromRelatedLbl = new LinkLabel("FromRelatedLbl", u"< Remove"_s, m_frame);
    RelatedProductsLst = named(new QListView(m_frame), "RelatedProductsLst", u"Related to this product"_s);
    RelatedProductsLst->setUniformItemSizes(true);
    RelatedProductsLst->setMinimumWidth(140);
    RelatedProductsLst->setModel(m_related);

    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(Measure::Gap);
    grid->setVerticalSpacing(Measure::Tight);
    grid->addWidget(newCaption(u"All products"_s, AllProductsTree), 0, 0);
    grid->addWidget(AllProductsTree, 1, 0, 4, 1);
    grid->addWidget(ToRelatedLbl, 2, 1);
    grid->addWidget(FromRelatedLbl, 3, 1);
    grid->addWidget(newCaption(u"Related to this product"_s, RelatedProductsLst), 0, 2);
    grid->addWidget(RelatedProductsLst, 1, 2, 4, 1);
    grid->setRowStretch(1, 1);
    grid->setRowStretch(4, 1);
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(2, 1);
    m_frame->addColumn(u"What the product's page recommends"_s, PanelFrame::Height::Rest)->addLayout(grid, 1);
    m_frame->addButtons(host);

    connectGuarded(m_host.errorHandler(), ToRelatedLbl, &LinkLabel::clicked, this, &ProductsRelatedPanel::toRelated);
    connectGuarded(m_host.errorHandler(), FromRelatedLbl, &LinkLabel::clicked, this,
                   &ProductsRelatedPanel::fromRelated);
}

void ProductsRelatedPanel::fill(ProductClass& product)
{
    m_related->setIds(product.related.first(product.relatedCount()));
    const TreeNode* root = CatalogueTreeFill(*m_nodes, productPrefix).fill(*m_host.session().shop);
    AllProductsTree->expand(m_nodes->indexOf(root));
}

const ProductClass* ProductsRelatedPanel::productUnder(const QString& key) const
{
    const KeyedCollection<CatalogueObject>& objects = m_host.session().objects.items();
    const int index = objects.indexOf(key);
    const auto* product = index == 0 ? nullptr : std::get_if<std::shared_ptr<ProductClass>>(&objects.Item(index));
    return product ? product->get() : nullptr;
}

QString ProductsRelatedPanel::nameOf(const QString& id) const
{
    const ProductClass* product = productUnder(nodeKey(id));
    return product ? product->name : u"(no product with the id %1)"_s.arg(id);
}

void ProductsRelatedPanel::toRelated()
{
    const QModelIndexList selected = AllProductsTree->selectionModel()->selectedIndexes();
    const TreeNode* node = selected.isEmpty() ? nullptr : m_nodes->nodeOf(selected.front());
    if (!m_object || !node || !node->key.startsWith(productPrefix)) {
        return;
    }
    const QString id = node->key.sliced(productPrefix.size());
    if (id != m_object->id && !m_related->ids().contains(id)) {
        m_related->append(id);
    }
}

void ProductsRelatedPanel::fromRelated()
{
    const QModelIndexList selected = RelatedProductsLst->selectionModel()->selectedIndexes();
    if (!selected.isEmpty()) {
        m_related->removeAt(selected.front().row());
    }
}

void ProductsRelatedPanel::write(ProductClass& product)
{
    product.setRelatedIds(m_related->ids());
}

void ProductsRelatedPanel::forget()
{
    m_related->setIds({});
    m_nodes->beginBuild();
    m_nodes->endBuild();
}
