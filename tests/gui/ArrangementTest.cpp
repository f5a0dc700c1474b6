// Where the parts of the window stand: the splitter and its limits, a window that is too small, the overlays.
#include "shell/CatalogueTree.h"
#include "shell/ProgressFrames.h"
#include "shell/TreePane.h"
#include "support/WindowTest.h"

#include <QCoreApplication>
#include <QRubberBand>
#include <QSplitter>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

class Arrangement : public WindowTest
{
protected:
    void SetUp() override
    {
        useSampleShop();
        start();
    }

    void resizeTo(int width, int height)
    {
        window->resize(width, height);
        QCoreApplication::processEvents();
    }
    // Drags the splitter's bar to this position, in pixels from the window's left edge.
    void dragSplitterTo(int x)
    {
        QSplitter* splitter = window->parts().imgSplitter;
        QWidget* bar = splitter->handle(1);
        const QPoint start(bar->width() / 2, bar->height() / 2);
        QTest::mousePress(bar, Qt::LeftButton, {}, start);
        QTest::mouseMove(bar, start + QPoint(x - bar->x(), 0));
        EXPECT_TRUE(!splitter->findChildren<QRubberBand*>().isEmpty() ||
                    !window->findChildren<QRubberBand*>().isEmpty());
        QTest::mouseRelease(bar, Qt::LeftButton, {}, start + QPoint(x - bar->x(), 0));
        QCoreApplication::processEvents();
    }
    int treeWidth() const { return window->parts().treePane->width(); }
};

TEST_F(Arrangement, MovesTheSplitterWithARubberBand)
{
    dragSplitterTo(400);
    EXPECT_NEAR(treeWidth(), 400, 8);
    dragSplitterTo(250);
    EXPECT_NEAR(treeWidth(), 250, 8);
}

TEST_F(Arrangement, KeepsBothSidesOfTheSplitterWideEnough)
{
    dragSplitterTo(10);
    EXPECT_EQ(window->parts().CategoriesAndProductsTree->width(), 150); // 1500 twips, its shadow not counted
    dragSplitterTo(window->width() - 10);
    const QSplitter* splitter = window->parts().imgSplitter;
    EXPECT_GE(splitter->widget(1)->width(), 150);
    EXPECT_LE(treeWidth(), window->width() - 150);
}

TEST_F(Arrangement, KeepsItsLastLayoutInAWindowThatIsTooSmall)
{
    resizeTo(1000, 700);
    const QRect main = window->parts().MainFrame->geometry();
    const QRect tree = window->parts().treePane->geometry();
    for (const QSize& size : {QSize(624, 700), QSize(1000, 299), QSize(200, 100)}) {
        resizeTo(size.width(), size.height());
        EXPECT_EQ(window->size(), size);
        EXPECT_EQ(window->parts().MainFrame->geometry(), main);
        EXPECT_EQ(window->parts().treePane->geometry(), tree);
    }
    resizeTo(1100, 750);
    EXPECT_EQ(window->parts().MainFrame->width(), main.width() + 100);
    EXPECT_EQ(window->parts().MainFrame->height(), main.height() + 50);
}

TEST_F(Arrangement, ShowsTheProgressBarsOverTheContent)
{
    resizeTo(1100, 750);
    EXPECT_EQ(find("PrBar")->x(), 5);
    EXPECT_EQ(find("PrBar")->width(), 300);
    EXPECT_EQ(find("SaveProgressFrame")->pos(), QPoint(216, 276));
    // The bar stands on the line of the maker's notice, at the bottom of the window.
    EXPECT_TRUE(isShown("lblCopyright"));
    EXPECT_TRUE(find("frmCopyright")->geometry().contains(find("PrBar")->geometry().center()));
    EXPECT_GE(find("frmCopyright")->y(), window->parts().treePane->geometry().bottom());
}

TEST_F(Arrangement, CutsOffWhatDoesNotFitAndSqueezesNothing)
{
    resizeTo(630, 310);
    EXPECT_EQ(window->size(), QSize(630, 310));
    for (const char* name : {"ToolbarFrame", "ContextToolbarFrame", "ShopGeneralPnl"}) {
        const auto* part = find<QWidget>(name);
        EXPECT_GE(part->width(), part->minimumSizeHint().width()) << name;
        EXPECT_GE(part->height(), part->minimumSizeHint().height()) << name;
    }
}

} // namespace
