#include "shell/CatalogueTree.h"

#include "shell/Theme.h"

#include <QKeyEvent>
#include <QMouseEvent>

using namespace Qt::StringLiterals;

namespace {

// The background of the selected node: darker than the tree, so that the light pictures stay clear on it.
constexpr QRgb selectionColour = qRgb(38, 51, 82);

} // namespace

CatalogueTree::CatalogueTree(FatalErrorHandler& errors, QWidget* parent)
    : QTreeView(parent), m_errors(errors), m_model(new CatalogueTreeModel(this))
{
    setObjectName(u"CategoriesAndProductsTree"_s);
    setAccessibleName(u"Categories and products"_s);
    m_model->setColoursOfNew(TreeColour, TreeTextColour); // those of a node that is not selected
    setModel(m_model);
    setHeaderHidden(true);
    setUniformRowHeights(true);
    setEditTriggers(NoEditTriggers);
    setExpandsOnDoubleClick(true);
    setIconSize(QSize(20, 20));
    setFrameShape(QFrame::NoFrame);
    setTextElideMode(Qt::ElideRight);

    QPalette colours = palette();
    for (const QPalette::ColorRole role : {QPalette::Text, QPalette::WindowText, QPalette::HighlightedText}) {
        colours.setColor(role, QColor::fromRgb(TreeTextColour));
    }
    colours.setColor(QPalette::Highlight, QColor::fromRgb(selectionColour));
    setPalette(colours);

    connectGuarded(m_errors, this, &QTreeView::expanded, this,
                   [this](const QModelIndex& index) { m_model->setImage(m_model->nodeOf(index), TreeImage::Opened); });
    connectGuarded(m_errors, this, &QTreeView::collapsed, this,
                   [this](const QModelIndex& index) { m_model->setImage(m_model->nodeOf(index), TreeImage::Closed); });
    connectGuarded(m_errors, this, &QTreeView::clicked, this,
                   [this](const QModelIndex& index) { Q_EMIT nodeClicked(m_model->nodeOf(index)); });
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

void CatalogueTree::ColorSelectedNode(TreeNode* node)
{
    m_model->setColours(node, TreeColour, TreeTextColour);
}

void CatalogueTree::ColorDeSelectedNode(TreeNode* node)
{
    m_model->setColours(node, TreeColour, TreeTextColour);
}

void CatalogueTree::mousePressEvent(QMouseEvent* event)
{
    // A right press would select the node under it.
    if (event->button() != Qt::RightButton) {
        QTreeView::mousePressEvent(event);
    }
}

void CatalogueTree::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::RightButton) {
        Q_EMIT popUpRequested(event->globalPosition().toPoint());
    } else {
        QTreeView::mouseReleaseEvent(event);
    }
}

void CatalogueTree::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (event->button() != Qt::RightButton) {
        QTreeView::mouseDoubleClickEvent(event);
    }
}

void CatalogueTree::keyPressEvent(QKeyEvent* event)
{
    const TreeNode* before = selectedNode();
    QTreeView::keyPressEvent(event);
    TreeNode* after = selectedNode();
    if (after && after != before) {
        Q_EMIT nodeClicked(after);
    }
}
