#include "shell/TreePane.h"

#include "look/Tones.h"
#include "shell/Twips.h"

#include <QEvent>
#include <QFrame>

namespace {

constexpr int besideTree = pixels(80); // where the shadow shows

QFrame* shadowFrame(const char* name, QWidget* parent)
{
    auto* frame = new QFrame(parent);
    frame->setObjectName(QLatin1String(name));
    frame->setAutoFillBackground(true);
    return frame;
}

void fill(QFrame* frame, Tone ground)
{
    QPalette palette = frame->palette();
    palette.setColor(QPalette::Window, tone(ground));
    frame->setPalette(palette);
}

} // namespace

TreePane::TreePane(QWidget* tree, QWidget* parent)
    : QWidget(parent),
      m_tree(tree),
      frmTreeShadowWhite(shadowFrame("frmTreeShadowWhite", this)),
      frmTreeShadowGray(shadowFrame("frmTreeShadowGray", this)),
      frmTreeShadowDarkGray(shadowFrame("frmTreeShadowDarkGray", this))
{
    colourShadow();
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

void TreePane::colourShadow()
{
    fill(frmTreeShadowWhite, Tone::ShadowWhite);
    fill(frmTreeShadowGray, Tone::ShadowGray);
    fill(frmTreeShadowDarkGray, Tone::ShadowDarkGray);
}

void TreePane::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::PaletteChange) {
        colourShadow();
    }
    QWidget::changeEvent(event);
}

void TreePane::setFoot(QWidget* foot)
{
    m_foot = foot;
    m_foot->setParent(this);
    m_foot->installEventFilter(this);
    arrange();
}

bool TreePane::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::ShowToParent || event->type() == QEvent::HideToParent) {
        arrange();
    }
    return QWidget::eventFilter(watched, event);
}

void TreePane::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    arrange();
}

void TreePane::arrange()
{
    const int treeTop = pixels(200);
    const int treeWidth = width() - besideTree;
    const int treeHeight = height() - treeTop - pixels(40);
    const int footHeight = m_foot && !m_foot->isHidden() ? m_foot->sizeHint().height() : 0;
    m_tree->setGeometry(0, treeTop, treeWidth, treeHeight - footHeight);
    if (m_foot) {
        m_foot->setGeometry(0, treeTop + treeHeight - footHeight, treeWidth, footHeight);
        m_foot->raise();
    }
    frmTreeShadowWhite->setGeometry(0, treeTop - pixels(30), treeWidth + pixels(30), treeHeight + pixels(40));
    frmTreeShadowGray->setGeometry(0, treeTop + pixels(20), treeWidth + pixels(80), treeHeight + pixels(20));
    frmTreeShadowDarkGray->setGeometry(0, treeTop + pixels(20), treeWidth + pixels(80), pixels(200));
}
