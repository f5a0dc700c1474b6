#include "editors/catalogue/ProductsRelatedPanel.h"

#include "editors/CatalogueTreeFill.h"
#include "editors/CatalogueTreeModel.h"
#include "editors/LinkLabel.h"
#include "editors/PanelFrame.h"
#include "editors/PanelHost.h"
#include "editors/catalogue/ObjectOf.h"
#include "editors/catalogue/RelatedProducts.h"
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

QLabel* listCaption(QWidget* field, const QString& text)
{
    auto* caption = new QLabel(text, field->parentWidget());
    caption->setBuddy(field);
    return caption;
}

} // namespace

ProductsRelatedPanel::ProductsRelatedPanel(PanelHost& host, QWidget* parent)
    : Panel(parent),
      m_host(host),
      m_nodes(new CatalogueTreeModel(this)),
      m_related(new RelatedProducts([this](const QString& id) { return nameOf(id); }, this))
{
    auto* frame = new PanelFrame(u"Related products"_s, this);
    AllProductsTree = named(new QTreeView(frame), "AllProductsTree", u"All products"_s);
    AllProductsTree->setHeaderHidden(true);
    AllProductsTree->setUniformRowHeights(true);
    AllProductsTree->setMinimumWidth(180);
    AllProductsTree->setModel(m_nodes);
    // The pictures of the nodes are drawn for a dark ground.
    dressTree(*AllProductsTree);
    setTreeGround(*AllProductsTree);
    auto* ToRelatedLbl = new LinkLabel("ToRelatedLbl", u"Add >"_s, frame);
    auto* FromRelatedLbl = new LinkLabel("FromRelatedLbl", u"< Remove"_s, frame);
    RelatedProductsLst = named(new QListView(frame), "RelatedProductsLst", u"Related to this product"_s);
    RelatedProductsLst->setUniformItemSizes(true);
    RelatedProductsLst->setMinimumWidth(140);
    RelatedProductsLst->setModel(m_related);

    auto* grid = new QGridLayout;
    grid->addWidget(listCaption(AllProductsTree, u"All products"_s), 0, 0);
    grid->addWidget(AllProductsTree, 1, 0, 4, 1);
    grid->addWidget(ToRelatedLbl, 2, 1);
    grid->addWidget(FromRelatedLbl, 3, 1);
    grid->addWidget(listCaption(RelatedProductsLst, u"Related to this product"_s), 0, 2);
    grid->addWidget(RelatedProductsLst, 1, 2, 4, 1);
    grid->setRowStretch(1, 1);
    grid->setRowStretch(4, 1);
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(2, 1);
    frame->addColumn(u"What the product's page recommends"_s, true)->addLayout(grid, 1);
    frame->addButtons(host);

    connectGuarded(m_host.errorHandler(), ToRelatedLbl, &LinkLabel::clicked, this, &ProductsRelatedPanel::toRelated);
    connectGuarded(m_host.errorHandler(), FromRelatedLbl, &LinkLabel::clicked, this,
                   &ProductsRelatedPanel::fromRelated);
}

void ProductsRelatedPanel::SetActiveObject(const CatalogueObject& object)
{
    m_product = objectOf<ProductClass>(object);
    if (!m_product) {
        return;
    }
    m_related->setIds(m_product->related.first(m_product->relatedCount()));
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
    if (!m_product || !node || !node->key.startsWith(productPrefix)) {
        return;
    }
    const QString id = node->key.sliced(productPrefix.size());
    if (id != m_product->id && !m_related->ids().contains(id)) {
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

void ProductsRelatedPanel::SaveActiveObject()
{
    if (m_product) {
        m_product->setRelatedIds(m_related->ids());
    }
}

void ProductsRelatedPanel::ClearActiveObject()
{
    m_product.reset();
    m_related->setIds({});
    m_nodes->beginBuild();
    m_nodes->endBuild();
}
