// The tree at the left of the window: shop, categories, products. It reports which node was clicked and where the
// pop-up menu was requested; the window does the rest.
#pragma once

#include "base/Guarded.h"
#include "editors/CatalogueTreeModel.h"

#include <QTreeView>

class CatalogueTree : public QTreeView
{
    Q_OBJECT

public:
    CatalogueTree(FatalErrorHandler& errors, QWidget* parent);

    CatalogueTreeModel& nodes() { return *m_model; }

    // The node that the view shows as selected; nullptr in an empty tree.
    TreeNode* selectedNode() const;
    void selectNode(const TreeNode* node);
    void expandNode(const TreeNode* node);
    // Does what a click on the node does.
    void clickNode(TreeNode* node);

    // Both paint the node in the tree's own colours. They do the same, but their callers mean two things by them. What
    // the user sees as selected comes from the view.
    void ColorSelectedNode(TreeNode* node);
    void ColorDeSelectedNode(TreeNode* node);

Q_SIGNALS:
    // The left button was pressed and released on this node, or the keyboard has moved to it. The listener makes it the
    // selected one.
    void nodeClicked(TreeNode* node);
    // The right button was released here, in global coordinates, or a key asked for the menu of the current row.
    // Nothing has been selected by that.
    void popUpRequested(const QPoint& position);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    void requestPopUpOfCurrentRow();
    // On the mark that opens and closes a node.
    bool isOnBranch(const QModelIndex& index, const QPoint& place) const;

    CatalogueTreeModel* m_model;
    QPersistentModelIndex m_pressed; // the node under the left button, until its release
    QPersistentModelIndex m_clicked; // the node that the last release clicked
};
