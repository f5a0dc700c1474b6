// The nodes of the catalogue's tree: a key that leads to the object behind the node, a text, a picture and colours.
// Owned by the tree's view. It knows nothing of the catalogue's classes.
#pragma once

#include <QAbstractItemModel>
#include <QIcon>
#include <QRgb>

#include <array>
#include <memory>
#include <vector>

enum class TreeImage : quint8 { Closed, Opened, Product };

struct TreeNode
{
    QString key;
    QString text;
    TreeNode* parent = nullptr;
    std::vector<std::unique_ptr<TreeNode>> children;
    int row = 0;         // among its siblings, 0-based
    QRgb background = 0; // 0: the view's own
    QRgb foreground = 0;
    TreeImage image = TreeImage::Closed;
};

class CatalogueTreeModel : public QAbstractItemModel
{
    Q_OBJECT

public:
    explicit CatalogueTreeModel(QObject* parent = nullptr);

    // Appends a node behind its siblings; without a parent it is the root, of which there is one.
    TreeNode* addNode(TreeNode* parent, QString key, QString text, TreeImage image);
    // Removes a node with all below it. Not for the root.
    void removeNode(TreeNode* node);
    void setText(TreeNode* node, const QString& text);
    void setImage(TreeNode* node, TreeImage image);
    void setColours(TreeNode* node, QRgb background, QRgb foreground);
    // The colours of nodes that are added from now on.
    void setColoursOfNew(QRgb background, QRgb foreground);

    // Between these two the model tells its view nothing: a whole tree is built in one go, starting from none.
    void beginBuild();
    void endBuild();
    // Between these two nodes are only added, and the view learns of all of them at the end. Its selection and what it
    // has expanded stay.
    void beginAppending();
    void endAppending();

    TreeNode* rootNode() const { return m_root.get(); }
    // nullptr when there is none. Looks at every node.
    TreeNode* nodeWithKey(const QString& key) const;
    TreeNode* nodeOf(const QModelIndex& index) const;
    QModelIndex indexOf(const TreeNode* node) const;

    QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    QModelIndex parent(const QModelIndex& child) const override;
    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;

private:
    void changed(const TreeNode* node, int role);

    std::unique_ptr<TreeNode> m_root;
    std::array<QIcon, 3> m_images;
    QRgb m_background = 0; // of new nodes
    QRgb m_foreground = 0;
    bool m_building = false;
};
