#include "shell/MainForm.h"

#include "base/RuntimeError.h"
#include "editors/Panel.h"
#include "look/TreeLook.h"
#include "model/ShopClass.h"
#include "model/shop_file/ShopFile.h"
#include "model/shop_file/UnsavedShop.h"
#include "shell/BottomLine.h"
#include "shell/CatalogueTree.h"
#include "shell/ContentRoom.h"
#include "shell/EventTexts.h"
#include "shell/FrameFit.h"
#include "shell/PanelSet.h"
#include "shell/ProgressFrames.h"
#include "shell/ShortcartButton.h"
#include "shell/Twips.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QFileInfo>
#include <QGuiApplication>
#include <QIcon>
#include <QMouseEvent>
#include <QTimer>

#include <utility>

using namespace Qt::StringLiterals;

MainForm::MainForm(std::unique_ptr<ShopSession> session, std::unique_ptr<UnsavedShop> unsaved,
                   const PreviewFactory& makePreview, std::function<void()> startAgain, FatalErrorHandler& errors)
    : m_errors(errors),
      m_startAgain(std::move(startAgain)),
      m_session(std::move(session)),
      m_unsaved(std::move(unsaved)),
      m_templates(std::make_unique<Templates_Set>(m_session->folder, m_session->log, shopTemplateNames()))
{
    auto* room = new ContentRoom(this);
    m_preview = makePreview(room->content());
    m_parts = std::make_unique<MainFormLayout>(room->content(), m_preview.widget, m_session->folder, m_session->log,
                                               m_errors);
    setCentralWidget(room);

    m_previewPage = std::make_unique<PreviewPage>(*m_session, *m_templates, *m_preview.surface);
    m_navigation = std::make_unique<PreviewNavigation>(*m_session, *m_previewPage);
    m_preview.setNavigation(m_navigation.get());

    m_session->callbacks.SaveShop = [this] { SaveShop(); };
    makeMenus();
    connectParts();
    load();
}

// The browser goes first: it calls the navigation.
MainForm::~MainForm()
{
    delete m_preview.widget;
}

void MainForm::load()
{
    m_preview.surface->goBlank();
    ShopChanged = true;
    m_session->Cart = std::make_unique<clsCart>(m_session->services);
    setWindowTitle(applicationTitle());
    QGuiApplication::setWindowIcon(QIcon(u":/icons/tarnwick.svg"_s)); // of boxes ahead of the window, too
    m_parts->ShopToolbar->setVisible(true);
    m_parts->CategoryToolbar->setVisible(false);
    m_parts->ProductToolbar->setVisible(false);
    move(0, 0);
    InitUserControls();
    m_session->log.WriteLoadLog(u"User Controls Initialized"_s);
    new FrameFit(*this, QSize(pixels(11900), pixels(8550)));
    m_parts->arrangeOverlays(size());
    CreateShop();
    m_templates->parseTemplates();
    SetMode(CatalogueMode);
}

void MainForm::InitUserControls()
{
    m_panels = makePanels(*this, *m_parts);
    bindButtons(*m_parts, m_panels);
    CurrentToolbar = nullptr;
    m_parts->ShopToolbar->hide();
    ShopDefaultButton = button(ButtonName::ShopGeneralSBtn);
    CategoryDefaultButton = button(ButtonName::CategoryGeneralSBtn);
    ProductDefaultButton = button(ButtonName::ProductGeneralSBtn);
}

void MainForm::connectParts()
{
    for (ShortcartButton* shortcart : m_parts->buttons) {
        connectGuarded(m_errors, shortcart, &ShortcartButton::frameRequested, this, &MainForm::ShowFrame);
    }
    // These four act when a press gives them the focus, before the click, and only if they did not have it yet.
    connectGuarded(m_errors, button(ButtonName::SaveShopSBtn), &ShortcartButton::focusReceived, this,
                   &MainForm::saveShopHandler);
    connectGuarded(m_errors, button(ButtonName::ProductCatalogSBtn), &ShortcartButton::focusReceived, this,
                   &MainForm::productCatalogHandler);
    connectGuarded(m_errors, button(ButtonName::ShopDesignSBtn), &ShortcartButton::focusReceived, this,
                   &MainForm::shopDesignHandler);
    connectGuarded(m_errors, button(ButtonName::PreviewBrowserSBtn), &ShortcartButton::focusReceived, this,
                   &MainForm::previewHandler);
    connectGuarded(m_errors, button(ButtonName::UploadShopSBtn), &ShortcartButton::Click, this,
                   &MainForm::uploadShopHandler);
    connectGuarded(m_errors, m_parts->CategoriesAndProductsTree, &CatalogueTree::nodeClicked, this,
                   &MainForm::treeNodeClicked);
    connectGuarded(m_errors, m_parts->CategoriesAndProductsTree, &CatalogueTree::popUpRequested, this,
                   &MainForm::showPopUp);

    connectGuarded(m_errors, m_parts->frmCopyright, &BottomLine::pageWidthChosen, this,
                   [this](int width) { m_preview.setPageWidth(width); });

    // Where the line at the foot stands is known when it has been laid out.
    m_parts->frmCopyright->installEventFilter(this);
    for (QWidget* surface : {static_cast<QWidget*>(this), m_parts->ToolbarFrame->parentWidget(),
                             static_cast<QWidget*>(m_parts->ToolbarFrame), static_cast<QWidget*>(m_parts->ShopToolbar),
                             m_parts->CategoriesAndProductsTree->viewport()}) {
        surface->setMouseTracking(true);
        surface->installEventFilter(this);
    }
}

ShortcartButton* MainForm::button(ButtonName name) const
{
    return m_parts->buttons.value(name);
}

Panel* MainForm::panel(PanelName name) const
{
    return m_panels.value(name);
}

// The shop ----------------------------------------------------------------------------------------------------------

void MainForm::CreateShop()
{
    m_isShopMissing = !loadShop(*m_session, m_unsaved.get());
    if (m_isShopMissing) {
        return;
    }
    AddShopToTheTree();
    m_isToBeKept = true;
    setTreeGround(*m_parts->CategoriesAndProductsTree);
    m_session->log.WriteLoadLog(u"End Sub CreateShop"_s);
}

void MainForm::SaveShop()
{
    // The empty shop in its place must not go over a file that a small change would mend.
    if (m_isShopMissing && QFileInfo::exists(m_session->folder.shopFile())) {
        throw RuntimeError(ErrorNumber::ObjectNotSet)
            .because(u"No shop could be read from shop.xml, so that the file is left as it is. Mend it, or restore a "
                     u"backup."_s);
    }
    m_parts->SaveProgressFrame->begin();
    m_unsaved->shopWasSaved(writeShopFile(*m_session));
    m_parts->SaveProgressFrame->finish();
    m_parts->frmCopyright->tell(EventTexts::saved(m_session->clock.now().time()));
}

// Panels ------------------------------------------------------------------------------------------------------------

void MainForm::ShowFrame(Panel* ActiveFrame, qint16 Code)
{
    changeFrame(ActiveFrame, Code);
    m_unsaved->keep();
}

void MainForm::changeFrame(Panel* ActiveFrame, qint16 Code)
{
    if (VisibleFrame) {
        if (Code == PanelCode::GatherOnly) {
            VisibleFrame->SaveActiveObject();
            return;
        }
        if (Code != PanelCode::RemoveProduct && Code != PanelCode::RemoveCategory) {
            // Saved twice, deliberately: a panel's save must be repeatable.
            applyVisiblePanel();
            VisibleFrame->SaveActiveObject();
            VisibleFrame->ClearActiveObject();
        }
        VisibleFrame->hide();
    }
    if (!ActiveFrame) {
        VisibleFrame = nullptr;
        m_errors.setOpenPanel(nullptr, {});
        markCurrentButtons();
        return;
    }
    if (!runCatalogueCommand(ActiveFrame, Code)) {
        if (VisibleFrame) {
            VisibleFrame->show();
        }
        return;
    }
    ActiveFrame->raise();
    ActiveFrame->show();
    m_errors.setOpenPanel(ActiveFrame, ActiveObject);
    ActiveFrame->SetActiveObject(ActiveObject);
    VisibleFrame = ActiveFrame;
    markCurrentButtons();
    if (Code == PanelCode::NewCategory || Code == PanelCode::NewProduct) {
        ActiveFrame->selectName();
    }
    // Everything has its place before the first paint: what wraps or scrolls asks for room in several rounds.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
}

void MainForm::ShowToolbar(QFrame* toolbar)
{
    if (CurrentToolbar) {
        CurrentToolbar->hide();
        ShowFrame(nullptr, PanelCode::Show);
    }
    CurrentToolbar = toolbar;
    CurrentToolbar->show();
}

void MainForm::ApplyActivePanel()
{
    applyVisiblePanel();
    m_unsaved->keep();
}

void MainForm::applyVisiblePanel()
{
    m_parts->PrBar->run();
    if (VisibleFrame) {
        VisibleFrame->SaveActiveObject();
    }
}

void MainForm::ResetActivePanel()
{
    if (VisibleFrame) {
        m_errors.setOpenPanel(VisibleFrame, ActiveObject);
        VisibleFrame->SetActiveObject(ActiveObject);
    }
}

// Window ------------------------------------------------------------------------------------------------------------

bool MainForm::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::MouseMove) {
        const QPoint place = static_cast<QMouseEvent*>(event)->position().toPoint();
        ClearButtonHover(place.x(), place.y());
    }
    // It makes the whole text of the shop, which the first painted window need not wait for.
    if (event->type() == QEvent::Paint && std::exchange(m_isToBeKept, false)) {
        QTimer::singleShot(0, this, [this] { m_unsaved->begin(); });
    }
    if (watched == m_parts->frmCopyright && (event->type() == QEvent::Move || event->type() == QEvent::Resize)) {
        m_parts->arrangeOverlays(size());
    }
    return QMainWindow::eventFilter(watched, event);
}

void MainForm::ClearButtonHover(int x, int y)
{
    // Deliberately only these eight: the others stay lit until the mouse moves over them again.
    using enum ButtonName;
    for (const ButtonName name : {ShopTaxesSBtn, ShopDiscountSBtn, ShopGeneralSBtn, PreviewBrowserSBtn, ShopDesignSBtn,
                                  ProductCatalogSBtn, SaveShopSBtn, CategoryDiscountSBtn}) {
        button(name)->OnMouseMove(x, y);
    }
}

void MainForm::keyPressEvent(QKeyEvent* event)
{
    // Deliberate, needless as it looks.
    if (WorkMode == PreviewMode && event->key() == Qt::Key_Left && event->modifiers() == Qt::AltModifier) {
        guarded(m_errors, [&] { m_session->prompts.showMessage(applicationTitle(), u"SS"_s, PromptIcon::None); });
        return;
    }
    QMainWindow::keyPressEvent(event);
}

void MainForm::closeEvent(QCloseEvent* event)
{
    guarded(m_errors, [&] {
        PromptAnswer answer = PromptAnswer::No;
        if (ShopChanged) {
            answer = m_session->prompts.askYesNoCancel(applicationTitle(), u"Do you want save changes?"_s);
        }
        if (answer == PromptAnswer::Yes) {
            saveShopHandler();
        }
        if (ShopChanged && answer == PromptAnswer::No) {
            m_unsaved->giveUp();
        }
        event->setAccepted(answer != PromptAnswer::Cancel);
        // Deliberately also after Cancel: the window then goes on without a cart, and the preview's cart pages fail.
        m_session->Cart.reset();
    });
}

void MainForm::resizeEvent(QResizeEvent* event)
{
    QMainWindow::resizeEvent(event);
    m_parts->arrangeOverlays(size());
}
