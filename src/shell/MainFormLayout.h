// The parts of the main window and where they stand. Built once by the window, which owns them all and says what they
// do.
#pragma once

#include "base/Guarded.h"
#include "shell/ButtonTable.h"

#include <QFrame>
#include <QHash>
#include <QLabel>
#include <QPushButton>
#include <QSplitter>

class ApplicationFolder;
class BottomLine;
class CatalogueTree;
class ImportFrame;
class LoadLog;
class SaveFrame;
class ShortcartButton;
class ShortProgressBar;
class TreePane;

struct MainFormLayout
{
    // Makes everything inside the given widget, the content of the window. The browser's widget is taken over as
    // PreviewBrowser. Each button logs that it was made.
    MainFormLayout(QWidget* central, QWidget* preview, const ApplicationFolder& folder, LoadLog& log,
                   FatalErrorHandler& errors);

    QFrame* ToolbarFrame = nullptr;
    QLabel* LogoPic = nullptr;

    QSplitter* imgSplitter = nullptr; // between the tree and the right side
    TreePane* treePane = nullptr;
    CatalogueTree* CategoriesAndProductsTree = nullptr;
    QFrame* ContextToolbarFrame = nullptr;
    QFrame* ShopToolbar = nullptr;
    QFrame* CategoryToolbar = nullptr;
    QFrame* ProductToolbar = nullptr;
    QFrame* MainFrame = nullptr;

    QWidget* designPane = nullptr;
    QFrame* ShopDesignMenuFrame = nullptr;
    QFrame* ShopDesignFrame = nullptr;

    QWidget* PreviewBrowser = nullptr;

    BottomLine* frmCopyright = nullptr;
    QLabel* lblCopyright = nullptr;

    ShortProgressBar* PrBar = nullptr;
    SaveFrame* SaveProgressFrame = nullptr;
    ImportFrame* ImportProgressFrame = nullptr;

    QHash<ButtonName, ShortcartButton*> buttons;

    // Places the parts that lie over the content; layouts place the others. In a window too small to be arranged,
    // nothing moves.
    void arrangeOverlays(const QSize& window) const;

private:
    QFrame* frameOf(ButtonFrame frame) const;
    void makeToolbarFrame(QWidget* parent);
    void makeCatalogue(QWidget* parent, FatalErrorHandler& errors);
    void makeDesign(QWidget* parent);
    void makeCopyright(QWidget* parent, FatalErrorHandler& errors);
    void makeButtons(const ApplicationFolder& folder, LoadLog& log);
};
