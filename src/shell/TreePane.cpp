#include "shell/TreePane.h"

#include "shell/Twips.h"

#include <QFrame>

namespace {

constexpr int besideTree = pixels(80); // where the shadow shows

// The shadow falls on the window's background: on a dark one it is darker still, and its light edge only a little
// lighter.
struct ShadowTones
{
    QRgb white, gray, darkGray;
};
constexpr ShadowTones onLight = {qRgb(255, 255, 255), qRgb(198, 204, 216), qRgb(178, 186, 202)};
constexpr ShadowTones onDark = {qRgb(66, 73, 90), qRgb(20, 22, 28), qRgb(14, 16, 20)};

const ShadowTones& shadowOn(const QWidget* ground)
{
    return ground->palette().color(QPalette::Window).lightness() < 128 ? onDark : onLight;
}

QFrame* shadowFrame(const char* name, QRgb colour, QWidget* parent)
{
    auto* frame = new QFrame(parent);
    frame->setObjectName(QLatin1String(name));
    frame->setAutoFillBackground(true);
    QPalette palette = frame->palette();
    palette.setColor(QPalette::Window, QColor::fromRgb(colour));
    frame->setPalette(palette);
    return frame;
}

} // namespace

TreePane::TreePane(QWidget* tree, QWidget* parent)
    : QWidget(parent),
      m_tree(tree),
      frmTreeShadowWhite(shadowFrame("frmTreeShadowWhite", shadowOn(parent).white, this)),
      frmTreeShadowGray(shadowFrame("frmTreeShadowGray", shadowOn(parent).gray, this)),
      frmTreeShadowDarkGray(shadowFrame("frmTreeShadowDarkGray", shadowOn(parent).darkGray, this))
{
    m_tree->setParent(this);
    setMinimumWidth(pixels(1500) + besideTree);
    m_tree->raise();
}

void TreePane::showTree(bool flag)
{
    for (QWidget* widget : {static_cast<QWidget*>(frmTreeShadowWhite), static_cast<QWidget*>(frmTreeShadowGray),
                            static_cast<QWidget*>(frmTreeShadowDarkGray), m_tree}) {
        widget->setVisible(flag);
    }
}

void TreePane::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    const int treeTop = pixels(200);
    const int treeWidth = width() - besideTree;
    const int treeHeight = height() - treeTop - pixels(40);
    m_tree->setGeometry(0, treeTop, treeWidth, treeHeight);
    frmTreeShadowWhite->setGeometry(0, treeTop - pixels(30), treeWidth + pixels(30), treeHeight + pixels(40));
    frmTreeShadowGray->setGeometry(0, treeTop + pixels(20), treeWidth + pixels(80), treeHeight + pixels(20));
    frmTreeShadowDarkGray->setGeometry(0, treeTop + pixels(20), treeWidth + pixels(80), pixels(200));
}
