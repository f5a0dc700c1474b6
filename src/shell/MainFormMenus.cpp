// The window's menu bar, the tree's pop-up menu, and the commands that work with files or open the upload dialog.
#include "backup/BackUpCommands.h"
#include "editors/Panel.h"
#include "model/clsImporter.h"
#include "publish/dialog/frmUpload.h"
#include "shell/ImportIntoTree.h"
#include "shell/MainForm.h"

#include <QDesktopServices>
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
    backUpFromMenu({m_session->folder, m_session->prompts, m_session->clock, m_session->log, applicationTitle()});
}

void MainForm::restoreHandler()
{
    if (!restoreFromMenu(
            {m_session->folder, m_session->prompts, m_session->clock, m_session->log, applicationTitle()})) {
        return;
    }
    // The restored shop is the one to keep: the window closes without asking, and the new process loads it.
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
    try {
        ImportIntoTree import(*this);
        clsImporter(*m_session, import.progress()).Import(fileName);
    } catch (const RuntimeError& error) {
        m_session->prompts.showMessage(applicationTitle(), error.description(), PromptIcon::Warning);
    }
}
