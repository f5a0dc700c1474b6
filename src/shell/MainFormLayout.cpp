#include "shell/MainFormLayout.h"

#include "look/LinedFrame.h"
#include "look/Measures.h"
#include "shell/BottomLine.h"
#include "shell/CatalogueTree.h"
#include "shell/ContentRoom.h"
#include "shell/PreviewGround.h"
#include "shell/ProgressFrames.h"
#include "shell/ShortcartButton.h"
#include "shell/TreePane.h"
#include "shell/Twips.h"

#include <QGridLayout>
#include <QIcon>
#include <QStackedLayout>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr int designMenuColumns = 2;
constexpr int betweenButtons = Measure::Tight;
constexpr int panelText = pixels(100) + Measure::Section; // where the text of a panel begins in its holder

QFrame* named(QFrame* frame, const char* name)
{
    frame->setObjectName(QLatin1String(name));
    return frame;
}

template <class Layout>
Layout* tightLayout(QWidget* widget, int spacing = 0)
{
    auto* layout = new Layout(widget);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(spacing);
    return layout;
}

// A frame that holds panels, all in the same cell; only one is visible at a time.
QFrame* panelHolder(const char* name, QWidget* parent)
{
    QFrame* holder = named(new QFrame(parent), name);
    auto* layout = tightLayout<QGridLayout>(holder);
    layout->setContentsMargins(pixels(100), 0, pixels(150), pixels(100));
    return holder;
}

} // namespace

MainFormLayout::MainFormLayout(QWidget* central, QWidget* preview, const ApplicationFolder& folder, LoadLog& log,
                               FatalErrorHandler& errors)
    : PreviewBrowser(preview)
{
    auto* column = tightLayout<QVBoxLayout>(central);
    makeToolbarFrame(central);
    column->addWidget(ToolbarFrame);
    makeCatalogue(central, errors);
    column->addWidget(imgSplitter, 1);
    makeDesign(central);
    column->addWidget(designPane, 1);
    PreviewBrowser->setParent(central);
    PreviewBrowser->setObjectName(u"PreviewBrowser"_s);
    new PreviewGround(PreviewBrowser);
    column->addWidget(PreviewBrowser, 1);
    makeCopyright(central, errors);
    column->addWidget(frmCopyright);
    makeButtons(folder, log);

    PrBar = new ShortProgressBar(central);
    SaveProgressFrame = new SaveFrame(central);
    ImportProgressFrame = new ImportFrame(central);
}

void MainFormLayout::makeToolbarFrame(QWidget* parent)
{
    ToolbarFrame = named(new LinedFrame(Qt::BottomEdge, parent), "ToolbarFrame");
    ToolbarFrame->setAutoFillBackground(true);
    ToolbarFrame->setBackgroundRole(QPalette::Light); // as the menu bar above it
    auto* row = tightLayout<QHBoxLayout>(ToolbarFrame, betweenButtons);
    row->setContentsMargins(8, 4, pixels(100), 4);
    LogoPic = new QLabel(ToolbarFrame);
    LogoPic->setObjectName(u"LogoPic"_s);
    LogoPic->setAccessibleName(u"Tarnwick"_s);
    LogoPic->setPixmap(QIcon(u":/icons/logo.svg"_s).pixmap(QSize(160, 48), parent->devicePixelRatioF()));
    row->addStretch(1);
    row->addWidget(LogoPic);
}

void MainFormLayout::makeCatalogue(QWidget* parent, FatalErrorHandler& errors)
{
    imgSplitter = new QSplitter(Qt::Horizontal, parent);
    imgSplitter->setObjectName(u"imgSplitter"_s);
    imgSplitter->setChildrenCollapsible(false);
    imgSplitter->setOpaqueResize(false);

    CategoriesAndProductsTree = new CatalogueTree(errors, imgSplitter);
    treePane = new TreePane(CategoriesAndProductsTree, imgSplitter);
    imgSplitter->addWidget(treePane);

    auto* rightRoom = new ContentRoom(imgSplitter);
    rightRoom->setMinimumWidth(pixels(1500));
    imgSplitter->addWidget(rightRoom);
    imgSplitter->setStretchFactor(1, 1);
    imgSplitter->setSizes({pixels(2800), pixels(9100)});

    QWidget* right = rightRoom->content();
    auto* column = tightLayout<QVBoxLayout>(right);
    ContextToolbarFrame = named(new QFrame(right), "ContextToolbarFrame");
    ContextToolbarFrame->setMinimumHeight(pixels(980));
    ContextToolbarFrame->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    MainFrame = panelHolder("MainFrame", right);
    column->addWidget(ContextToolbarFrame);
    column->addWidget(MainFrame, 1);

    auto* toolbars = tightLayout<QGridLayout>(ContextToolbarFrame);
    for (auto [toolbar, name] : {std::pair(&ShopToolbar, "ShopToolbar"), std::pair(&CategoryToolbar, "CategoryToolbar"),
                                 std::pair(&ProductToolbar, "ProductToolbar")}) {
        *toolbar = named(new QFrame(ContextToolbarFrame), name);
        auto* row = tightLayout<QHBoxLayout>(*toolbar, betweenButtons);
        row->setContentsMargins(panelText, 6, 4, 0);
        row->addStretch(1);
        toolbars->addWidget(*toolbar, 0, 0);
    }
}

void MainFormLayout::makeDesign(QWidget* parent)
{
    designPane = new QWidget(parent);
    auto* row = tightLayout<QHBoxLayout>(designPane, 8);
    ShopDesignMenuFrame = named(new QFrame(designPane), "ShopDesignMenuFrame");
    auto* menu = tightLayout<QGridLayout>(ShopDesignMenuFrame, 4);
    menu->setContentsMargins(8, 12, 8, 8);
    menu->setRowStretch(static_cast<int>(buttonTable().size()), 1);
    ShopDesignFrame = panelHolder("ShopDesignFrame", designPane);
    row->addWidget(ShopDesignMenuFrame);
    row->addWidget(ShopDesignFrame, 1);
}

void MainFormLayout::makeCopyright(QWidget* parent, FatalErrorHandler& errors)
{
    frmCopyright = new BottomLine(errors, parent);
    lblCopyright = frmCopyright->notice();
}

QFrame* MainFormLayout::frameOf(ButtonFrame frame) const
{
    switch (frame) {
    case ButtonFrame::ToolbarFrame:
        return ToolbarFrame;
    case ButtonFrame::ShopToolbar:
        return ShopToolbar;
    case ButtonFrame::CategoryToolbar:
        return CategoryToolbar;
    case ButtonFrame::ProductToolbar:
        return ProductToolbar;
    case ButtonFrame::ShopDesignMenuFrame:
        return ShopDesignMenuFrame;
    }
    return nullptr;
}

void MainFormLayout::makeButtons(const ApplicationFolder& folder, LoadLog& log)
{
    QHash<QFrame*, int> count;
    for (const ButtonRow& row : buttonTable()) {
        QFrame* frame = frameOf(row.frame);
        auto* button = new ShortcartButton(row, folder, log, frame);
        const int place = count[frame]++;
        if (auto* grid = qobject_cast<QGridLayout*>(frame->layout())) {
            grid->addWidget(button, place / designMenuColumns, place % designMenuColumns);
        } else {
            qobject_cast<QHBoxLayout*>(frame->layout())->insertWidget(place, button, 0, Qt::AlignTop);
        }
        buttons.insert(row.name, button);
    }
}

void MainFormLayout::arrangeOverlays(const QSize& window) const
{
    if (!isArranged(window)) {
        return;
    }
    PrBar->setGeometry(pixels(50), frmCopyright->y() + 2, pixels(3000), frmCopyright->height() - 4);
    SaveProgressFrame->move(pixels(2160), pixels(2760));
    ImportProgressFrame->move(pixels(2160), pixels(2760));
}
