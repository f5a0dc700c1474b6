// The window's menu bar, the tree's pop-up menu, and the commands that work with files, open the upload dialog, or have
// a key and no menu.
#include "backup/BackUpCommands.h"
#include "editors/Panel.h"
#include "model/ProductClass.h"
#include "model/clsImporter.h"
#include "model/shop_file/UnsavedShop.h"
#include "publish/dialog/frmUpload.h"
#include "shell/BottomLine.h"
#include "shell/CatalogueTree.h"
#include "shell/EventTexts.h"
#include "shell/FindLine.h"
#include "shell/GuidePages.h"
#include "shell/ImportIntoTree.h"
#include "shell/MainForm.h"
#include "shell/TreePane.h"
#include "shell/WindowKeys.h"

#include <QDesktopServices>
#include <QFileInfo>
#include <QLocale>
#include <QMenu>
#include <QMenuBar>

using namespace Qt::StringLiterals;

namespace {

// The class of the active object, as a flag.
enum ObjectClass : unsigned int { Shop = 1, Category = 2, Product = 4 };

// One entry of the pop-up menu: what it asks for, and for which classes of active object it is offered.
struct PopUpRow
{
    const char* name;
    const char* caption;
    PanelName panel;
    PanelCode::Value code;
    unsigned int offeredFor;
};

constexpr std::array<PopUpRow, 5> popUpRows = {{
    {"mnuAddCategory", "Add Category", PanelName::CategoryGeneralPnl, PanelCode::NewCategory, Shop | Category},
    {"mnuAddProduct", "Add Product", PanelName::ProductGeneralPnl, PanelCode::NewProduct, Category},
    {"mnuRemoveCategory", "Remove Category", PanelName::CategoryGeneralPnl, PanelCode::RemoveCategory, Category},
    {"mnuRemoveProduct", "Remove Product", PanelName::CategoryGeneralPnl, PanelCode::RemoveProduct, Product},
    {"mnuDuplicateProduct", "Duplicate Product", PanelName::ProductGeneralPnl, PanelCode::DuplicateProduct, Product},
}};

bool isOffered(const PopUpRow& row, const CatalogueObject& object)
{
    return ((row.offeredFor & Shop) != 0 && std::holds_alternative<std::shared_ptr<ShopClass>>(object)) ||
           ((row.offeredFor & Category) != 0 && std::holds_alternative<std::shared_ptr<CategoryClass>>(object)) ||
           ((row.offeredFor & Product) != 0 && std::holds_alternative<std::shared_ptr<ProductClass>>(object));
}

} // namespace

QAction* MainForm::addEntry(QMenu* menu, const char* name, const QString& caption, void (MainForm::*handler)())
{
    QAction* action = menu->addAction(caption);
    action->setObjectName(QLatin1String(name));
    giveKey(*action);
    connectGuarded(m_errors, action, &QAction::triggered, this, [this, handler] { (this->*handler)(); });
    return action;
}

void MainForm::makeMenus()
{
    QMenu* shop = menuBar()->addMenu(u"&Shop"_s);
    shop->setObjectName(u"mnuShop"_s);
    addEntry(shop, "mnuSaveShop", u"&Save"_s, &MainForm::saveShopHandler);
    addEntry(shop, "mnuUpload", u"&Upload"_s, &MainForm::showUpload);
    shop->addSeparator()->setObjectName(u"itmSep"_s);
    addEntry(shop, "mnuImport", u"Import"_s, &MainForm::importHandler);
    shop->addSeparator()->setObjectName(u"itmSep2"_s);
    addEntry(shop, "mnuBackUp", u"BackUp"_s, &MainForm::backUpHandler);
    addEntry(shop, "mnuRestore", u"Restore"_s, &MainForm::restoreHandler);

    QMenu* tools = menuBar()->addMenu(u"&Tools"_s);
    tools->setObjectName(u"mnuTools"_s);
    m_modeActions[CatalogueMode - 1] =
        addEntry(tools, "mnuProductsCatalog", u"Products Ca&talog"_s, &MainForm::productCatalogHandler);
    m_modeActions[DesignMode - 1] = addEntry(tools, "mnuShopDesign", u"Shop &Design"_s, &MainForm::shopDesignHandler);
    m_modeActions[PreviewMode - 1] = addEntry(tools, "mnuShopPreview", u"Shop &Preview"_s, &MainForm::previewHandler);
    for (QAction* action : m_modeActions) {
        action->setCheckable(true);
    }
    makePopUp();
    makeCommands();
}

void MainForm::makePopUp()
{
    mnuPopUp = new QMenu(u"PopUp"_s, this);
    mnuPopUp->setObjectName(u"mnuPopUp"_s);
    for (const PopUpRow& row : popUpRows) {
        QAction* action = mnuPopUp->addAction(QString::fromLatin1(row.caption));
        action->setObjectName(QLatin1String(row.name));
        connectGuarded(m_errors, action, &QAction::triggered, this,
                       [this, &row] { ShowFrame(panel(row.panel), row.code); });
    }
}

void MainForm::showPopUp(const QPoint& position)
{
    bool any = false;
    for (const PopUpRow& row : popUpRows) {
        const bool offered = isOffered(row, ActiveObject);
        mnuPopUp->findChild<QAction*>(QLatin1String(row.name))->setVisible(offered);
        any = any || offered;
    }
    if (any) {
        mnuPopUp->popup(position);
    }
}

void MainForm::uploadShopHandler()
{
    if (m_session->prompts.askYesNo(applicationTitle(), u"Do you want save changes?"_s)) {
        saveShopHandler();
    }
    showUpload();
}

void MainForm::showUpload()
{
    if (!m_upload) {
        const auto openUrl = [](const QUrl& url) { QDesktopServices::openUrl(url); };
        m_upload = new frmUpload(m_session->folder, m_session->prompts, m_errors, openUrl, this);
    }
    m_upload->exec();
}

void MainForm::backUpHandler()
{
    const std::optional<BackUpReport> report =
        backUpFromMenu({m_session->folder, m_session->prompts, m_session->clock, m_session->log, applicationTitle()});
    if (report) {
        m_parts->frmCopyright->tell(EventTexts::backedUp(*report));
    }
}

void MainForm::restoreHandler()
{
    // The restored shop is the one to keep.
    if (!restoreFromMenu({m_session->folder, m_session->prompts, m_session->clock, m_session->log, applicationTitle()},
                         [this] { m_unsaved->giveUp(); })) {
        return;
    }
    // The window closes without asking, and the new process loads the restored shop.
    ShopChanged = false;
    m_startAgain();
    close();
}

void MainForm::importHandler()
{
    const QString fileName = m_session->prompts.chooseFile(
        m_session->folder.path(), u"Text files"_s + u" (*.txt *.csv);;"_s + u"All files"_s + u" (*)"_s);
    if (fileName.isEmpty()) {
        return;
    }
    int products = 0;
    int line = 0;
    std::optional<RuntimeError> failure;
    {
        ImportIntoTree import(*this);
        clsImporter importer(*m_session, import.progress());
        try {
            importer.Import(fileName);
        } catch (const RuntimeError& error) {
            failure = error;
        }
        products = importer.productCount;
        line = importer.line;
    }
    m_unsaved->keep();
    if (!failure) {
        m_parts->frmCopyright->tell(EventTexts::imported(products));
        return;
    }
    QString text = failure->description();
    if (line > 0) {
        m_parts->frmCopyright->tellFailure(EventTexts::notUnderstood(line));
        text = u"Line %1: %2\n%3"_s.arg(QLocale().toString(line), text, EventTexts::imported(products));
    }
    m_session->prompts.showMessage(applicationTitle(), text, PromptIcon::Warning);
}

// Commands that stand in no menu: each belongs to the parts that it works on, and its key acts while one of them shows.
void MainForm::makeCommands()
{
    const auto codeOf = [this](const QString& key) {
        const KeyedCollection<CatalogueObject>& objects = m_session->objects.items();
        const int place = objects.indexOf(key);
        const auto* product = place > 0 ? std::get_if<std::shared_ptr<ProductClass>>(&objects.Item(place)) : nullptr;
        return product ? (*product)->Code : QString();
    };
    auto* findLine = new FindLine(*m_parts->CategoriesAndProductsTree, codeOf, m_errors, m_parts->treePane);
    m_parts->treePane->setFoot(findLine);

    const auto addCommand = [this](const char* name, const QString& text, std::initializer_list<QWidget*> parts) {
        auto* command = new QAction(text, this);
        command->setObjectName(QLatin1String(name));
        giveKey(*command);
        for (QWidget* part : parts) {
            part->addAction(command);
        }
        return command;
    };
    const QAction* find = addCommand(findCommand, u"Find in the catalogue"_s, {m_parts->CategoriesAndProductsTree});
    connectGuarded(m_errors, find, &QAction::triggered, findLine, [findLine] { findLine->ask(); });
    const QAction* guide =
        addCommand(guideCommand, u"Guide"_s, {m_parts->MainFrame, m_parts->ShopDesignFrame, m_parts->PreviewBrowser});
    connectGuarded(m_errors, guide, &QAction::triggered, this, [this] { showGuide(); });
}

void MainForm::showGuide()
{
    const char* page = firstGuidePage;
    if (WorkMode == PreviewMode) {
        page = guidePageOfPreview;
    } else if (VisibleFrame) {
        page = guidePageOf(m_panels.key(VisibleFrame));
    }
    const QString file = guideFile(m_session->folder, page);
    if (!QFileInfo(file).isFile() || !QDesktopServices::openUrl(QUrl::fromLocalFile(file))) {
        m_session->prompts.showMessage(applicationTitle(), u"The guide cannot be opened:\n"_s + file, PromptIcon::None);
    }
}
