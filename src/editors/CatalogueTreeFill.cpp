#include "editors/CatalogueTreeFill.h"

#include "editors/CatalogueTreeModel.h"
#include "model/ObjectsCollection.h"
#include "model/ShopClass.h"

#include <QStringBuilder>

CatalogueTreeFill::CatalogueTreeFill(CatalogueTreeModel& nodes, QString productPrefix)
    : m_nodes(nodes), m_productPrefix(std::move(productPrefix))
{
}

TreeNode* CatalogueTreeFill::fill(const ShopClass& shop)
{
    m_nodes.beginBuild();
    TreeNode* root = m_nodes.addNode(nullptr, shopNodeKey(), shop.name, TreeImage::Closed);
    for (const std::shared_ptr<CategoryClass>& category : shop.categories) {
        addCategory(root, *category);
    }
    m_nodes.endBuild();
    return root;
}

TreeNode* CatalogueTreeFill::addCategory(TreeNode* parent, const CategoryClass& category)
{
    TreeNode* node = m_nodes.addNode(parent, nodeKey(category.id), category.name, TreeImage::Closed);
    for (const std::shared_ptr<CategoryClass>& below : category.categories) {
        addCategory(node, *below);
    }
    for (const std::shared_ptr<ProductClass>& product : category.products) {
        addProduct(node, *product);
    }
    return node;
}

TreeNode* CatalogueTreeFill::addProduct(TreeNode* parent, const ProductClass& product)
{
    return m_nodes.addNode(parent, m_productPrefix % product.id, product.name, TreeImage::Product);
}
