// The window's part in the catalogue's tree: building it, what a click on a node does, and the commands that add,
// remove and copy nodes during a change of panel.
#include "editors/CatalogueTreeFill.h"
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

// The object as the class that a command needs, which the toolbars and the pop-up menu ensure. Raises
// ErrorNumber::TypeMismatch when it is of another one.
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
    m_session->registerShop();
    SelectedNode = nullptr; // it goes with the former tree
    TreeNode* root = catalogueFill().fill(*m_session->shop);
    tree->expandNode(root);
    // The root deliberately starts with the picture of a closed node though it is expanded.
    tree->nodes().setImage(root, TreeImage::Closed);
    selectNode(root);
    ActiveObject = m_session->objects.Item(root->key);
    ShowToolbar(m_parts->ShopToolbar);
    ShopDefaultButton->Activate();
    m_session->log.WriteLoadLog(u"-----End AddShopToTheTree-----"_s);
}

CatalogueTreeFill MainForm::catalogueFill() const
{
    return {m_parts->CategoriesAndProductsTree->nodes(), nodeKey({})};
}

TreeNode* MainForm::AddCategoryToTheTree(TreeNode* ParentNode, const std::shared_ptr<CategoryClass>& category)
{
    return catalogueFill().addCategory(ParentNode, *category);
}

TreeNode* MainForm::AddProductToTheTree(TreeNode* ParentNode, const std::shared_ptr<ProductClass>& Product)
{
    return catalogueFill().addProduct(ParentNode, *Product);
}

void MainForm::treeNodeClicked(TreeNode* node)
{
    selectNode(node);
    // The active object changes before the panel does: the old panel, saved below, writes to the object that it was
    // bound to.
    ActiveObject = m_session->objects.Item(node->key);
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

void MainForm::selectNode(TreeNode* node)
{
    CatalogueTree* tree = m_parts->CategoriesAndProductsTree;
    tree->selectNode(node);
    if (SelectedNode) {
        tree->ColorDeSelectedNode(SelectedNode);
    }
    tree->ColorSelectedNode(node);
    SelectedNode = node;
}

void MainForm::setNodeText(const QString& key, const QString& text)
{
    CatalogueTreeModel& nodes = m_parts->CategoriesAndProductsTree->nodes();
    // It is the selected one that is being named, as a rule; looking for it at every key would touch the whole tree.
    const bool isSelected = SelectedNode && SelectedNode->key == key;
    if (TreeNode* node = isSelected ? SelectedNode : nodes.nodeWithKey(key)) {
        nodes.setText(node, text);
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
    selectNewNode(AddCategoryToTheTree(SelectedNode, category));
    ShowToolbar(m_parts->CategoryToolbar);
}

void MainForm::addNewProduct()
{
    const ProductRef product = newProduct(*m_session->shop, activeAs<CategoryRef>(ActiveObject));
    selectNewNode(AddProductToTheTree(SelectedNode, product));
    ShowToolbar(m_parts->ProductToolbar);
}

void MainForm::duplicateActiveProduct()
{
    const ProductRef clone = duplicateProduct(*m_session->shop, *activeAs<ProductRef>(ActiveObject));
    selectNewNode(AddProductToTheTree(SelectedNode->parent, clone));
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
        ActiveFrame = panel(PanelName::ShopGeneralPnl);
    } else if (std::holds_alternative<ProductRef>(ActiveObject)) { // it was made while a product's line was chosen
        ShowToolbar(m_parts->ProductToolbar);
        ActiveFrame = panel(PanelName::ProductGeneralPnl);
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
    selectNode(node);
    ActiveObject = m_session->objects.Item(node->key);
}

void MainForm::removeSelectedNode()
{
    TreeNode* removed = SelectedNode;
    selectNode(removed->parent);
    m_parts->CategoriesAndProductsTree->nodes().removeNode(removed);
    ActiveObject = m_session->objects.Item(SelectedNode->key);
}
