// The one window. It owns the session and the templates, and shows the shop in three modes: catalogue, preview, design.
// Its centre is ShowFrame: every change of panel goes through it.
#pragma once

#include "base/Guarded.h"
#include "editors/PanelHost.h"
#include "model/ObjectsCollection.h"
#include "model/ShopSession.h"
#include "pages/preview/PreviewNavigation.h"
#include "pages/preview/PreviewPage.h"
#include "shell/MainFormLayout.h"
#include "shell/PanelErrors.h"
#include "shell/PreviewParts.h"
#include "template_engine/Templates_Set.h"

#include <QMainWindow>

#include <array>
#include <functional>
#include <memory>

class CatalogueTreeFill;
class Panel;
class QMenu;
class UnsavedShop;
class frmUpload;
struct TreeNode;

class MainForm : public QMainWindow, public PanelHost
{
    Q_OBJECT

public:
    // Makes the window with all its parts and runs the load: reads the shop and the templates and goes to the
    // catalogue. The window is not shown yet. The unsaved shop is the session's. startAgain starts the program anew,
    // which follows a restore. The session's prompts and clock, and the error handler, outlive the window.
    MainForm(std::unique_ptr<ShopSession> session, std::unique_ptr<UnsavedShop> unsaved,
             const PreviewFactory& makePreview, std::function<void()> startAgain, FatalErrorHandler& errors);
    ~MainForm() override;

    enum Mode : qint16 { CatalogueMode = 1, PreviewMode = 2, DesignMode = 3 };

    ShopSession& session() override { return *m_session; }
    Templates_Set& CurrentTemplatesSet() override { return *m_templates; }
    FatalErrorHandler& errorHandler() override { return m_errors; }
    const MainFormLayout& parts() const { return *m_parts; }

    Panel* VisibleFrame = nullptr;
    // What the visible panel was bound to, or what the next one will be.
    CatalogueObject ActiveObject;
    // Makes the exit offer to save. No edit sets it and no save clears it: the question deliberately comes every time.
    // Only a restore clears it.
    bool ShopChanged = true;
    QFrame* CurrentToolbar = nullptr;
    TreeNode* SelectedNode = nullptr; // the tree's current row
    qint16 WorkMode = 0;

    // Saves, unbinds and hides the visible panel, runs the catalogue command that the code (a PanelCode) stands for,
    // and shows and binds the next panel, if there is one.
    void ShowFrame(Panel* ActiveFrame, qint16 Code);
    void ShowToolbar(QFrame* toolbar);
    // A value that is none of the three modes changes no pane.
    void SetMode(qint16 mode);

    void CreateShop();
    // Writes the shop file. What the visible panel shows has to be gathered first.
    void SaveShop();

    // Rebuilds ObjectsCollection and the whole tree, and selects the shop. ErrorNumber::DuplicateKey when an id stands
    // twice.
    void AddShopToTheTree();
    // Shows the category with all its contents, or the product, behind the children of the node. The model has entered
    // it in ObjectsCollection.
    TreeNode* AddCategoryToTheTree(TreeNode* ParentNode, const std::shared_ptr<CategoryClass>& category);
    TreeNode* AddProductToTheTree(TreeNode* ParentNode, const std::shared_ptr<ProductClass>& Product);

    void ApplyActivePanel() override;
    void ResetActivePanel() override;
    void setNodeText(const QString& key, const QString& text) override;

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void load();
    void InitUserControls();
    void connectParts();
    QAction* addEntry(QMenu* menu, const char* name, const QString& caption, void (MainForm::*handler)());
    void makeMenus();
    void makePopUp();
    void makeCommands();

    // ShowFrame, before the unsaved shop is brought up to date.
    void changeFrame(Panel* ActiveFrame, qint16 Code);
    void applyVisiblePanel();
    void markCurrentButtons();
    void ShowCataloguePane(bool flag);
    void ShowPreviewPane(bool flag);
    void ShowDesignPane(bool flag);

    // The handlers of the main buttons and of the menu entries of the same meaning.
    void saveShopHandler();
    void productCatalogHandler();
    void shopDesignHandler();
    void previewHandler();
    void uploadShopHandler();
    void showUpload();
    void importHandler();
    void backUpHandler();
    void restoreHandler();
    // Opens the page of the guide that belongs to what is on the screen.
    void showGuide();

    // The pop-up menu of the tree offers what fits the active object.
    void showPopUp(const QPoint& position);
    // The mouse is at this position of a part of the window, outside the buttons.
    void ClearButtonHover(int x, int y);

    CatalogueTreeFill catalogueFill() const;
    void treeNodeClicked(TreeNode* node);
    // The one way to change SelectedNode: the tree's current row goes with it.
    void selectNode(TreeNode* node);

    // The catalogue's commands. False when the user refuses. ActiveFrame, the panel to show next, may become another.
    bool runCatalogueCommand(Panel*& ActiveFrame, qint16 Code);
    void addNewCategory();
    void addNewProduct();
    void duplicateActiveProduct();
    bool removeActiveProduct();
    bool removeActiveCategory(Panel*& ActiveFrame);
    void selectNewNode(TreeNode* node);
    void removeSelectedNode();

    ShortcartButton* button(ButtonName name) const;
    Panel* panel(PanelName name) const;

    PanelErrors m_errors;
    std::function<void()> m_startAgain;
    std::unique_ptr<ShopSession> m_session;
    std::unique_ptr<UnsavedShop> m_unsaved;
    bool m_isShopMissing = false; // none could be read
    bool m_isToBeKept = false;    // the shop was read, and the window was not painted yet
    std::unique_ptr<Templates_Set> m_templates;
    std::unique_ptr<MainFormLayout> m_parts;
    PreviewParts m_preview;
    std::unique_ptr<PreviewPage> m_previewPage;
    std::unique_ptr<PreviewNavigation> m_navigation;
    QHash<PanelName, Panel*> m_panels;
    std::array<QAction*, 3> m_modeActions{}; // mnuProductsCatalog, mnuShopPreview, mnuShopDesign: by mode less one
    QMenu* mnuPopUp = nullptr;
    frmUpload* m_upload = nullptr; // made when it is first asked for, and used again
    ShortcartButton* ShopDefaultButton = nullptr;
    ShortcartButton* CategoryDefaultButton = nullptr;
    ShortcartButton* ProductDefaultButton = nullptr;
};
