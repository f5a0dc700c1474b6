#include "editors/CatalogueTreeModel.h"

#include "editors/EditorIcon.h"

#include <QBrush>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

QVariant colourOf(QRgb colour)
{
    return colour == 0 ? QVariant() : QBrush(QColor::fromRgb(colour));
}

} // namespace

CatalogueTreeModel::CatalogueTreeModel(QObject* parent)
    : QAbstractItemModel(parent),
      m_images{editorIcon("tree_closed"), editorIcon("tree_opened"), editorIcon("tree_product")}
{
}

TreeNode* CatalogueTreeModel::nodeWithKey(const QString& key) const
{
    std::vector<TreeNode*> left;
    if (m_root) {
        left.push_back(m_root.get());
    }
    while (!left.empty()) {
        TreeNode* node = left.back();
        left.pop_back();
        if (node->key == key) {
            return node;
        }
        for (const std::unique_ptr<TreeNode>& child : node->children) {
            left.push_back(child.get());
        }
    }
    return nullptr;
}

TreeNode* CatalogueTreeModel::addNode(TreeNode* parent, QString key, QString text, TreeImage image)
{
    auto node = std::make_unique<TreeNode>();
    node->key = std::move(key);
    node->text = std::move(text);
    node->parent = parent;
    node->image = image;
    node->background = m_background;
    node->foreground = m_foreground;
    node->row = parent ? static_cast<int>(parent->children.size()) : 0;

    TreeNode* added = node.get();
    if (!m_building) {
        beginInsertRows(indexOf(parent), added->row, added->row);
    }
    if (parent) {
        parent->children.push_back(std::move(node));
    } else {
        m_root = std::move(node);
    }
    if (!m_building) {
        endInsertRows();
    }
    return added;
}

void CatalogueTreeModel::removeNode(TreeNode* node)
{
    TreeNode* parent = node->parent;
    Q_ASSERT(parent);
    const int row = node->row;
    beginRemoveRows(indexOf(parent), row, row);
    parent->children.erase(parent->children.begin() + row);
    for (std::size_t next = static_cast<std::size_t>(row); next < parent->children.size(); ++next) {
        parent->children[next]->row = static_cast<int>(next);
    }
    endRemoveRows();
}

void CatalogueTreeModel::setText(TreeNode* node, const QString& text)
{
    node->text = text;
    changed(node, Qt::DisplayRole);
}

void CatalogueTreeModel::setImage(TreeNode* node, TreeImage image)
{
    node->image = image;
    changed(node, Qt::DecorationRole);
}

void CatalogueTreeModel::setColours(TreeNode* node, QRgb background, QRgb foreground)
{
    node->background = background;
    node->foreground = foreground;
    changed(node, Qt::BackgroundRole);
}

void CatalogueTreeModel::setColoursOfNew(QRgb background, QRgb foreground)
{
    m_background = background;
    m_foreground = foreground;
}

void CatalogueTreeModel::changed(const TreeNode* node, int role)
{
    if (!m_building) {
        const QModelIndex index = indexOf(node);
        Q_EMIT dataChanged(index, index, {role});
    }
}

void CatalogueTreeModel::beginBuild()
{
    beginResetModel();
    m_building = true;
    m_root.reset();
}

void CatalogueTreeModel::endBuild()
{
    m_building = false;
    endResetModel();
}

void CatalogueTreeModel::beginAppending()
{
    m_building = true;
}

void CatalogueTreeModel::endAppending()
{
    m_building = false;
    Q_EMIT layoutAboutToBeChanged();
    Q_EMIT layoutChanged();
}

TreeNode* CatalogueTreeModel::nodeOf(const QModelIndex& index) const
{
    return index.isValid() ? static_cast<TreeNode*>(index.internalPointer()) : nullptr;
}

QModelIndex CatalogueTreeModel::indexOf(const TreeNode* node) const
{
    return node ? createIndex(node->row, 0, node) : QModelIndex();
}

QModelIndex CatalogueTreeModel::index(int row, int column, const QModelIndex& parent) const
{
    if (!hasIndex(row, column, parent)) {
        return {};
    }
    const TreeNode* above = nodeOf(parent);
    return createIndex(row, column, above ? above->children[static_cast<std::size_t>(row)].get() : m_root.get());
}

QModelIndex CatalogueTreeModel::parent(const QModelIndex& child) const
{
    const TreeNode* node = nodeOf(child);
    return node ? indexOf(node->parent) : QModelIndex();
}

int CatalogueTreeModel::rowCount(const QModelIndex& parent) const
{
    const TreeNode* node = nodeOf(parent);
    if (node) {
        return static_cast<int>(node->children.size());
    }
    return m_root ? 1 : 0;
}

int CatalogueTreeModel::columnCount(const QModelIndex& /*parent*/) const
{
    return 1;
}

QVariant CatalogueTreeModel::data(const QModelIndex& index, int role) const
{
    const TreeNode* node = nodeOf(index);
    if (!node) {
        return {};
    }
    switch (role) {
    case Qt::DisplayRole:
        return node->text;
    case Qt::DecorationRole:
        return m_images[static_cast<std::size_t>(node->image)];
    case Qt::BackgroundRole:
        return colourOf(node->background);
    case Qt::ForegroundRole:
        return colourOf(node->foreground);
    default:
        return {};
    }
}
