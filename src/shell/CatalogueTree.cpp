#include "shell/CatalogueTree.h"

#include "look/TreeLook.h"

#include <QKeyEvent>
#include <QMouseEvent>

#include <utility>

using namespace Qt::StringLiterals;

CatalogueTree::CatalogueTree(FatalErrorHandler& errors, QWidget* parent)
    : QTreeView(parent), m_model(new CatalogueTreeModel(this))
{
    setObjectName(u"CategoriesAndProductsTree"_s);
    setAccessibleName(u"Categories and products"_s);
    m_model->setColoursOfNew(TreeColour, TreeTextColour); // those of a node that is not selected
    setModel(m_model);
    setHeaderHidden(true);
    setUniformRowHeights(true);
    setEditTriggers(NoEditTriggers);
    setExpandsOnDoubleClick(true);
    setFrameShape(QFrame::NoFrame);
    setTextElideMode(Qt::ElideRight);

    dressTree(*this);

    connectGuarded(errors, this, &QTreeView::expanded, this,
                   [this](const QModelIndex& index) { m_model->setImage(m_model->nodeOf(index), TreeImage::Opened); });
    connectGuarded(errors, this, &QTreeView::collapsed, this,
                   [this](const QModelIndex& index) { m_model->setImage(m_model->nodeOf(index), TreeImage::Closed); });
}

TreeNode* CatalogueTree::selectedNode() const
{
    return m_model->nodeOf(currentIndex());
}

void CatalogueTree::selectNode(const TreeNode* node)
{
    setCurrentIndex(m_model->indexOf(node));
}

void CatalogueTree::expandNode(const TreeNode* node)
{
    expand(m_model->indexOf(node));
}

void CatalogueTree::clickNode(TreeNode* node)
{
    Q_EMIT nodeClicked(node);
}

void CatalogueTree::ColorSelectedNode(TreeNode* node)
{
    m_model->setColours(node, TreeColour, TreeTextColour);
}

void CatalogueTree::ColorDeSelectedNode(TreeNode* node)
{
    m_model->setColours(node, TreeColour, TreeTextColour);
}

// The mouse never reaches the view's own handling, which moves the current row on any press and any drag: a node is
// only current when it was clicked.
void CatalogueTree::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton) {
        return;
    }
    m_pressed = QModelIndex();
    const QPoint place = event->position().toPoint();
    const QModelIndex index = indexAt(place);
    if (isOnBranch(index, place)) {
        setExpanded(index, !isExpanded(index));
    } else {
        m_pressed = index;
    }
}

void CatalogueTree::mouseMoveEvent(QMouseEvent* event)
{
    if (event->buttons() == Qt::NoButton) {
        QTreeView::mouseMoveEvent(event);
    }
}

void CatalogueTree::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::RightButton) {
        Q_EMIT popUpRequested(event->globalPosition().toPoint());
    } else if (event->button() == Qt::LeftButton) {
        const QModelIndex pressed = std::exchange(m_pressed, QModelIndex());
        m_clicked = pressed.isValid() && indexAt(event->position().toPoint()) == pressed ? pressed : QModelIndex();
        if (m_clicked.isValid()) {
            clickNode(m_model->nodeOf(m_clicked));
        }
    }
}

// The second press of a double click opens or closes the node that the first one clicked.
void CatalogueTree::mouseDoubleClickEvent(QMouseEvent* event)
{
    const QPoint place = event->position().toPoint();
    const QModelIndex index = indexAt(place);
    if (event->button() != Qt::LeftButton || isOnBranch(index, place)) {
        return;
    }
    if (m_clicked.isValid() && index == m_clicked) {
        setExpanded(index, m_model->hasChildren(index) && !isExpanded(index));
    } else {
        mousePressEvent(event);
    }
}

bool CatalogueTree::isOnBranch(const QModelIndex& index, const QPoint& place) const
{
    const int left = visualRect(index).left();
    return index.isValid() && m_model->hasChildren(index) && place.x() < left && place.x() >= left - indentation();
}

void CatalogueTree::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_F10 && event->modifiers() == Qt::ShiftModifier) { // for keyboards without a menu key
        requestPopUpOfCurrentRow();
        return;
    }
    const TreeNode* before = selectedNode();
    QTreeView::keyPressEvent(event);
    TreeNode* after = selectedNode();
    if (after && after != before) {
        clickNode(after);
    }
}

// The menu of the mouse comes with the release of the right button.
void CatalogueTree::contextMenuEvent(QContextMenuEvent* event)
{
    if (event->reason() == QContextMenuEvent::Keyboard) {
        requestPopUpOfCurrentRow();
    }
}

void CatalogueTree::requestPopUpOfCurrentRow()
{
    const QModelIndex row = currentIndex();
    if (row.isValid()) {
        scrollTo(row);
        const QRect place = visualRect(row).intersected(viewport()->rect());
        Q_EMIT popUpRequested(viewport()->mapToGlobal(place.center()));
    }
}
