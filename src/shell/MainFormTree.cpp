// The window's side of the catalogue's tree: how it is built, what a click on a node does, and the commands that add,
// remove and copy nodes inside a change of panel.
#include "editors/Panel.h"
#include "model/CatalogueNodes.h"
#include "model/CategoryClass.h"
#include "model/ProductClass.h"
#include "model/ShopClass.h"
#include "shell/CatalogueTree.h"
#include "shell/MainForm.h"
#include "shell/ShortcartButton.h"

using namespace Qt::StringLiterals;

namespace {

using ShopRef = std::shared_ptr<ShopClass>;
using CategoryRef = std::shared_ptr<CategoryClass>;
using ProductRef = std::shared_ptr<ProductClass>;

// The object as what a command needs. The toolbars and the pop-up see to it that it is; else error 13.
template <class Ref>
const Ref& activeAs(const CatalogueObject& object)
{
    const Ref* held = std::get_if<Ref>(&object);
    if (!held) {
        throw RuntimeError(ErrorNumber::TypeMismatch);
    }
    return *held;
}

} // namespace

void MainForm::AddShopToTheTree()
{
    m_session->log.WriteLoadLog(u"Start AddShopToTheTree"_s);
    CatalogueTree* tree = m_parts->CategoriesAndProductsTree;
    const std::shared_ptr<ShopClass>& shop = m_session->shop;

    m_session->objects.create();
    tree->nodes().beginBuild();
    TreeNode* root = tree->nodes().addNode(nullptr, shopNodeKey(), shop->name, TreeImage::Closed);
    tree->ColorDeSelectedNode(root);
    m_session->objects.Add(shop, shopNodeKey());
    for (const std::shared_ptr<CategoryClass>& category : shop->categories) {
        AddCategoryToTheTree(root, category);
    }
    tree->nodes().endBuild();

    tree->expandNode(root);
    // The root starts with the picture of a closed node though it is expanded: this is meant.
    tree->nodes().setImage(root, TreeImage::Closed);
    tree->selectNode(root);
    ActiveObject = m_session->objects.Item(tree->selectedNode()->key);
    ShowToolbar(m_parts->ShopToolbar);
    ShopDefaultButton->Activate();
    markSelected(root);
    m_session->log.WriteLoadLog(u"-----End AddShopToTheTree-----"_s);
}

TreeNode* MainForm::AddCategoryToTheTree(TreeNode* ParentNode, const std::shared_ptr<CategoryClass>& category)
{
    CatalogueTree* tree = m_parts->CategoriesAndProductsTree;
    TreeNode* node = tree->nodes().addNode(ParentNode, nodeKey(category->id), category->name, TreeImage::Closed);
    tree->ColorDeSelectedNode(node);
    m_session->objects.Add(category, node->key);
    for (const std::shared_ptr<CategoryClass>& below : category->categories) {
        AddCategoryToTheTree(node, below);
    }
    for (const std::shared_ptr<ProductClass>& product : category->products) {
        AddProductToTheTree(node, product);
    }
    return node;
}

TreeNode* MainForm::AddProductToTheTree(TreeNode* ParentNode, const std::shared_ptr<ProductClass>& Product)
{
    CatalogueTree* tree = m_parts->CategoriesAndProductsTree;
    TreeNode* node = tree->nodes().addNode(ParentNode, nodeKey(Product->id), Product->name, TreeImage::Product);
    tree->ColorDeSelectedNode(node);
    m_session->objects.Add(Product, node->key);
    return node;
}

void MainForm::treeNodeClicked(TreeNode* node)
{
    if (SelectedNode) {
        m_parts->CategoriesAndProductsTree->ColorDeSelectedNode(SelectedNode);
    }
    markSelected(node);
    // The active object changes ahead of the panel: the old panel is saved below, to the object that it was bound to.
    ActiveObject = m_session->objects.Item(m_parts->CategoriesAndProductsTree->selectedNode()->key);
    if (std::holds_alternative<std::shared_ptr<ShopClass>>(ActiveObject)) {
        ShowToolbar(m_parts->ShopToolbar);
        ShopDefaultButton->Activate();
    } else if (std::holds_alternative<std::shared_ptr<CategoryClass>>(ActiveObject)) {
        ShowToolbar(m_parts->CategoryToolbar);
        CategoryDefaultButton->Activate();
    } else {
        ShowToolbar(m_parts->ProductToolbar);
        ProductDefaultButton->Activate();
    }
}

void MainForm::markSelected(TreeNode* node)
{
    m_parts->CategoriesAndProductsTree->ColorSelectedNode(node);
    SelectedNode = node;
}

void MainForm::setSelectedNodeText(const QString& text)
{
    if (TreeNode* node = m_parts->CategoriesAndProductsTree->selectedNode()) {
        m_parts->CategoriesAndProductsTree->nodes().setText(node, text);
    }
}

bool MainForm::runCatalogueCommand(Panel*& ActiveFrame, qint16 Code)
{
    switch (Code) {
    case PanelCode::NewCategory:
        addNewCategory();
        return true;
    case PanelCode::NewProduct:
        addNewProduct();
        return true;
    case PanelCode::RemoveProduct:
        return removeActiveProduct();
    case PanelCode::RemoveCategory:
        return removeActiveCategory(ActiveFrame);
    case PanelCode::DuplicateProduct:
        duplicateActiveProduct();
        return true;
    default:
        return true;
    }
}

void MainForm::addNewCategory()
{
    const CategoryRef* parent = std::get_if<CategoryRef>(&ActiveObject);
    const CategoryRef category = newCategory(*m_session->shop, parent ? *parent : nullptr);
    selectNewNode(AddCategoryToTheTree(m_parts->CategoriesAndProductsTree->selectedNode(), category));
    ShowToolbar(m_parts->CategoryToolbar);
}

void MainForm::addNewProduct()
{
    const ProductRef product = newProduct(*m_session->shop, activeAs<CategoryRef>(ActiveObject));
    selectNewNode(AddProductToTheTree(m_parts->CategoriesAndProductsTree->selectedNode(), product));
    ShowToolbar(m_parts->ProductToolbar);
}

void MainForm::duplicateActiveProduct()
{
    const ProductRef clone = duplicateProduct(*m_session->shop, *activeAs<ProductRef>(ActiveObject));
    selectNewNode(AddProductToTheTree(m_parts->CategoriesAndProductsTree->selectedNode()->parent, clone));
    ShowToolbar(m_parts->ProductToolbar);
}

bool MainForm::removeActiveProduct()
{
    if (!m_session->prompts.askYesNo(u"Warning"_s, u"Are you sure you want to remove this product"_s)) {
        return false;
    }
    removeProduct(*activeAs<ProductRef>(ActiveObject));
    removeSelectedNode();
    ShowToolbar(m_parts->CategoryToolbar);
    return true;
}

bool MainForm::removeActiveCategory(Panel*& ActiveFrame)
{
    if (!m_session->prompts.askYesNo(u"Warning"_s, u"Are you sure you want to remove this category"_s)) {
        return false;
    }
    removeCategory(*m_session->shop, activeAs<CategoryRef>(ActiveObject));
    removeSelectedNode();
    if (std::holds_alternative<ShopRef>(ActiveObject)) {
        ShowToolbar(m_parts->ShopToolbar);
        ActiveFrame = panel("ShopGeneralPnl");
    } else {
        ShowToolbar(m_parts->CategoryToolbar);
    }
    if (VisibleFrame) {
        VisibleFrame->ClearActiveObject();
    }
    return true;
}

void MainForm::selectNewNode(TreeNode* node)
{
    CatalogueTree* tree = m_parts->CategoriesAndProductsTree;
    tree->selectNode(node);
    tree->ColorDeSelectedNode(SelectedNode);
    markSelected(node);
    ActiveObject = m_session->objects.Item(node->key);
}

void MainForm::removeSelectedNode()
{
    CatalogueTree* tree = m_parts->CategoriesAndProductsTree;
    TreeNode* parent = SelectedNode->parent;
    TreeNode* selected = tree->selectedNode();
    tree->selectNode(parent);
    tree->nodes().removeNode(selected);
    markSelected(parent);
    ActiveObject = m_session->objects.Item(tree->selectedNode()->key);
}
