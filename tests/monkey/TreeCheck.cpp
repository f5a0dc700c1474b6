#include "TreeCheck.h"

#include "editors/Panel.h"
#include "model/CategoryClass.h"
#include "model/ProductClass.h"
#include "model/ShopClass.h"
#include "shell/CatalogueTree.h"
#include "shell/MainForm.h"

#include <QLineEdit>

using namespace Qt::StringLiterals;

namespace {

using ShopRef = std::shared_ptr<ShopClass>;
using CategoryRef = std::shared_ptr<CategoryClass>;
using ProductRef = std::shared_ptr<ProductClass>;

void collectKeys(const TreeNode& node, QSet<QString>& keys)
{
    keys.insert(node.key);
    for (const auto& child : node.children) {
        collectKeys(*child, keys);
    }
}

QString nameOf(const CatalogueObject& object)
{
    if (const auto* shop = std::get_if<ShopRef>(&object)) {
        return (*shop)->name;
    }
    if (const auto* category = std::get_if<CategoryRef>(&object)) {
        return (*category)->name;
    }
    return std::get<ProductRef>(object)->name;
}

// The keys of what the object holds, in the catalogue's order.
struct Contents
{
    QStringList categories;
    QStringList products;
};

Contents contentsOf(const CatalogueObject& object)
{
    Contents contents;
    const auto add = [](QStringList& keys, const auto& list) {
        for (const auto& held : list) {
            keys << nodeKey(held->id);
        }
    };
    if (const auto* shop = std::get_if<ShopRef>(&object)) {
        add(contents.categories, (*shop)->categories);
    } else if (const auto* category = std::get_if<CategoryRef>(&object)) {
        add(contents.categories, (*category)->categories);
        add(contents.products, (*category)->products);
    }
    return contents;
}

} // namespace

TreeCheck::TreeCheck(MainForm& window) : m_window(window)
{
    if (const TreeNode* root = window.parts().CategoriesAndProductsTree->nodes().rootNode()) {
        collectKeys(*root, m_loaded);
    }
    for (const char* field : {"ShopNameTxt", "CategoryNameTxt", "ProductNameTxt"}) {
        QObject::connect(window.findChild<QLineEdit*>(QLatin1String(field)), &QLineEdit::textEdited, &m_listener,
                         [this](const QString& text) { m_typed.insert(text); });
    }
}

QString TreeCheck::disagreement() const
{
    const TreeNode* root = m_window.parts().CategoriesAndProductsTree->nodes().rootNode();
    if (!root) {
        return m_window.SelectedNode ? u"A node is selected in an empty tree"_s : QString();
    }
    const QString selection = ofSelection();
    return selection.isEmpty() ? ofNode(*root) : selection;
}

QString TreeCheck::ofSelection() const
{
    const CatalogueTree* tree = m_window.parts().CategoriesAndProductsTree;
    const TreeNode* current = tree->selectedNode();
    if (m_window.SelectedNode != current) {
        return u"The current row is not the selected node"_s;
    }
    const QModelIndexList shown = tree->selectionModel()->selectedIndexes();
    if (shown.size() != 1 || shown[0] != tree->currentIndex()) {
        return u"The row that is shown as selected is not the selected node's"_s;
    }
    // "Products Catalog" makes the shop the active object and leaves the node.
    const CatalogueObject& active = m_window.ActiveObject;
    if (!std::holds_alternative<ShopRef>(active) && active != m_window.session().objects.Item(current->key)) {
        return u"The active object is not the selected node's"_s;
    }
    return {};
}

QString TreeCheck::ofNode(const TreeNode& node) const
{
    const ObjectsCollection& objects = m_window.session().objects;
    if (!objects.hasKey(node.key)) {
        return u"No object belongs to the node "_s + node.key;
    }
    const CatalogueObject& object = objects.Item(node.key);
    QString found = ofText(node, nameOf(object));
    if (found.isEmpty()) {
        found = ofChildren(node);
    }
    for (std::size_t at = 0; at < node.children.size() && found.isEmpty(); ++at) {
        found = ofNode(*node.children[at]);
    }
    return found;
}

// A name that was typed stands at the node before it is the object's, and stays there when Reset takes it back.
QString TreeCheck::ofText(const TreeNode& node, const QString& name) const
{
    if (node.text == name || m_typed.contains(node.text)) {
        return {};
    }
    return u"The node %1 shows \"%2\" for \"%3\""_s.arg(node.key, node.text, name);
}

// The sub-categories and the products of an object, each in their order; those that were loaded come first. A root
// category that was made while panel and node differed stands below any other node, or has gone with it.
QString TreeCheck::ofChildren(const TreeNode& node) const
{
    const ObjectsCollection& objects = m_window.session().objects;
    const Contents contents = contentsOf(objects.Item(node.key));
    const QStringList roots = contentsOf(objects.Item(shopNodeKey())).categories;
    const bool isRoot = node.key == shopNodeKey();
    Contents shown;
    bool isBehindLoaded = false;
    for (const auto& child : node.children) {
        const bool isLoaded = m_loaded.contains(child->key);
        if (isLoaded && isBehindLoaded) {
            return u"The loaded node %1 stands behind a new one"_s.arg(child->key);
        }
        isBehindLoaded = !isLoaded;
        const bool isStray = !isRoot && !isLoaded && roots.contains(child->key);
        if (!isStray) {
            const bool isProduct =
                objects.hasKey(child->key) && std::holds_alternative<ProductRef>(objects.Item(child->key));
            (isProduct ? shown.products : shown.categories) << child->key;
        }
    }
    QStringList expected = contents.categories;
    if (isRoot) {
        expected.removeIf(
            [&](const QString& key) { return !m_loaded.contains(key) && !shown.categories.contains(key); });
    }
    if (shown.categories != expected || shown.products != contents.products) {
        return u"Below %1 stand %2; %3 for %4; %5"_s.arg(node.key, shown.categories.join(u' '),
                                                         shown.products.join(u' '), expected.join(u' '),
                                                         contents.products.join(u' '));
    }
    return {};
}
