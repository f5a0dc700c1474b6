#include "Tour.h"

#include "base/Clock.h"
#include "shell/BrowserPreview.h"
#include "shell/CatalogueTree.h"
#include "shell/ShortcartButton.h"
#include "shell/StartUp.h"

#include <QDirIterator>
#include <QEventLoop>
#include <QPixmap>
#include <QTest>
#include <QTextStream>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

const SystemClock systemClock;

void copyFolder(const QString& from, const QString& to)
{
    QDirIterator entries(from, QDir::Files, QDirIterator::Subdirectories);
    while (entries.hasNext()) {
        const QString file = entries.next();
        const QString target = to + file.mid(from.size());
        QDir().mkpath(QFileInfo(target).path());
        QFile::copy(file, target);
        QFile::setPermissions(target, QFile::ReadOwner | QFile::WriteOwner);
    }
}

TreeNode* nodeOf(TreeNode* node, const QString& key)
{
    if (node->key == key) {
        return node;
    }
    for (const auto& child : node->children) {
        if (TreeNode* found = nodeOf(child.get(), key)) {
            return found;
        }
    }
    return nullptr;
}

} // namespace

Tour::Tour(const QString& outputFolder, UserPrompts& prompts, FatalErrorHandler& errors) : m_output(outputFolder)
{
    m_output.mkpath(u"."_s);
    copyFolder(QStringLiteral(TARNWICK_APPLICATION_FOLDER), m_shopFolder.path());
    const ProgramServices services{ApplicationFolder(m_shopFolder.path()), prompts, systemClock, errors, [] {}};
    m_window = startProgram(services, browserPreview(services.folder, errors));
    // The main buttons act on the receipt of the focus, which only the active window's have.
    m_window->activateWindow();
    if (!QTest::qWaitForWindowActive(m_window.get())) {
        qWarning("the window is not active: the main buttons will not act");
    }
}

void Tour::walk()
{
    walkCatalogue();
    walkDesign();
    walkPreview();
    walkExit();
}

void Tour::walkCatalogue()
{
    keep(u"catalogue_shop"_s);
    TreeNode* root = m_window->parts().CategoriesAndProductsTree->nodes().rootNode();
    if (root->children.empty()) {
        return;
    }
    TreeNode* category = root->children.front().get();
    clickNode(category->key);
    m_window->parts().CategoriesAndProductsTree->expandNode(category);
    keep(u"catalogue_category"_s);
    while (!category->children.empty() && category->children.front()->image != TreeImage::Product) {
        category = category->children.front().get();
    }
    if (!category->children.empty()) {
        clickNode(category->children.front()->key);
        keep(u"catalogue_product"_s);
    }
    clickNode(root->key);
    for (const char* button : {"ShopDiscountSBtn", "ShopTaxesSBtn", "ShippingChargesSBtn"}) {
        click(button);
        keep(u"catalogue_"_s + QLatin1String(button).chopped(4));
    }
    // The frame stands for a third of a second, in which events run.
    QTimer::singleShot(150, m_window.get(), [this] { keep(u"saving"_s); });
    click("SaveShopSBtn");
}

void Tour::walkDesign()
{
    click("ShopDesignSBtn");
    keep(u"design_main_page"_s);
    click("HeaderDesignSBtn");
    keep(u"design_header"_s);
}

void Tour::walkPreview()
{
    click("PreviewBrowserSBtn");
    keep(u"preview_main_page"_s);
}

void Tour::walkExit()
{
    click("ProductCatalogSBtn");
    keep(u"catalogue_again"_s);
}

void Tour::click(const char* button)
{
    auto* shortcart = m_window->findChild<ShortcartButton*>(QLatin1String(button));
    QTest::mouseClick(shortcart->findChild<QLabel*>(u"IconImg"_s), Qt::LeftButton);
}

void Tour::clickNode(const QString& key)
{
    CatalogueTree* tree = m_window->parts().CategoriesAndProductsTree;
    TreeNode* node = nodeOf(tree->nodes().rootNode(), key);
    for (TreeNode* above = node->parent; above; above = above->parent) {
        tree->expandNode(above);
    }
    const QModelIndex index = tree->nodes().indexOf(node);
    tree->scrollTo(index);
    QTest::mouseClick(tree->viewport(), Qt::LeftButton, {}, tree->visualRect(index).center());
}

void Tour::keep(const QString& name)
{
    // Long enough for the browser to paint the page and its pictures.
    pause(m_window->WorkMode == MainForm::PreviewMode ? 900 : 60);
    const QString file = u"%1_%2.png"_s.arg(++m_number, 2, 10, QChar(u'0')).arg(name);
    m_window->grab().save(m_output.filePath(file));
    QTextStream(stdout) << file << Qt::endl;
}

void Tour::pause(int milliseconds)
{
    QEventLoop loop;
    QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
    loop.exec();
}
