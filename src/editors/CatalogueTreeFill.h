// Fills a tree with the catalogue: for the window's own tree and for the one that related products are picked from. The
// one walk over the catalogue that makes tree nodes.
#pragma once

#include <QString>

class CatalogueTreeModel;
class CategoryClass;
class ProductClass;
class ShopClass;
struct TreeNode;

class CatalogueTreeFill
{
public:
    // Products get the prefix ahead of their ids as key, categories always "ID". The model must outlive it.
    CatalogueTreeFill(CatalogueTreeModel& nodes, QString productPrefix);

    // Replaces all nodes by those of the shop, and returns the root.
    TreeNode* fill(const ShopClass& shop);
    // Appends the category with all its contents, sub-categories ahead of products, to the node's children, and returns
    // its node.
    TreeNode* addCategory(TreeNode* parent, const CategoryClass& category);
    TreeNode* addProduct(TreeNode* parent, const ProductClass& product);

private:
    CatalogueTreeModel& m_nodes;
    QString m_productPrefix;
};
