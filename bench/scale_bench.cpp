// A day with a large shop: 20,000 products and 5,000 pictures in the real window, without a screen. Each step is timed,
// and so is the longest while in which the window could do nothing else: more than a second needs a sign of progress on
// the window. Backup and restore hold the window with the wait cursor; they are timed and not judged.
#include "CupShop.h"
#include "Measuring.h"
#include "NoBrowser.h"
#include "NoPrompts.h"
#include "base/Clock.h"
#include "base/FileBytes.h"
#include "editors/Panel.h"
#include "look/Theme.h"
#include "model/CategoryClass.h"
#include "model/ProductClass.h"
#include "model/shop_file/ShopFile.h"
#include "publish/dialog/PhpServer.h"
#include "shell/CatalogueTree.h"
#include "shell/MainForm.h"
#include "shell/ShortcartButton.h"
#include "shell/StartUp.h"
#include "shell/WindowKeys.h"

#include <QAction>
#include <QApplication>
#include <QBuffer>
#include <QDialog>
#include <QDir>
#include <QElapsedTimer>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <functional>

using namespace Qt::StringLiterals;

namespace {

constexpr int productCount = 20'000;
constexpr int pictureCount = 5'000;
constexpr qint64 longestHold = 1'000; // milliseconds
constexpr double longestKey = 50;     // milliseconds, of a key in the line that finds

class PreparedPrompts : public NoPrompts
{
public:
    void showMessage(const QString& title, const QString& text, PromptIcon /*icon*/) override
    {
        if (title == u"Error" || title.startsWith(u"Error ")) {
            giveUp(text);
        }
    }
    std::optional<QString> askText(const QString& /*title*/, const QString& /*prompt*/) override { return u"scale"_s; }
    QString chooseFile(const QString& /*folder*/, const QString& /*filter*/) override { return file; }
    bool askYesNo(const QString& /*title*/, const QString& /*text*/) override { return saysYes; }

    QString file;
    bool saysYes = false;
};

// Beats as long as events run: the longest time between two beats is how long the window was held.
class HeartBeat : public QObject
{
public:
    HeartBeat()
    {
        m_timer.callOnTimeout(this, [this] { beat(); });
        m_timer.start(5);
        m_sinceBeat.start();
    }

    void begin()
    {
        m_longest = 0;
        m_sinceBeat.restart();
        m_step.start();
        progressSeen = false;
    }
    qint64 end()
    {
        beat();
        return m_step.elapsed();
    }
    qint64 longest() const { return m_longest; }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        progressSeen = progressSeen || (event->type() == QEvent::Show && qobject_cast<QProgressBar*>(watched));
        return false;
    }

    bool progressSeen = false;

private:
    void beat()
    {
        m_longest = std::max(m_longest, m_sinceBeat.elapsed());
        m_sinceBeat.restart();
    }

    QTimer m_timer;
    QElapsedTimer m_sinceBeat;
    QElapsedTimer m_step;
    qint64 m_longest = 0;
};

void makeShop(const ApplicationFolder& folder)
{
    makeProgramFolder(folder);
    QImage image(240, 180, QImage::Format_RGB32);
    image.fill(Qt::darkCyan);
    QByteArray picture;
    QBuffer buffer(&picture);
    image.save(&buffer, "PNG");
    for (int i = 0; i < pictureCount; ++i) {
        writeFileBytes(folder.picturesFolder() + u"cup-%1.png"_s.arg(i), picture);
    }

    NoPrompts prompts;
    const SystemClock clock;
    ShopSession session(folder, prompts, clock);
    fillShop(session, productCount);
    int number = 0;
    for (const auto& root : session.shop->categories) {
        for (const auto& shelf : root->categories) {
            for (const auto& product : shelf->products) {
                product->selectedImage()->imageFileName = u"cup-%1.png"_s.arg(number++ % pictureCount);
            }
        }
    }
    writeShopFile(session);
}

QByteArray importText()
{
    QByteArray text;
    for (int i = 0; i < productCount; ++i) {
        text += "Saucer " + QByteArray::number(i) + ",\"Goes with cup " + QByteArray::number(i) + "\",Saucers\\Shelf " +
                QByteArray::number(i / 200) + "\n";
    }
    return text;
}

class Day
{
public:
    explicit Day(const ApplicationFolder& folder) : m_folder(folder) {}

    // True when no step held the window for too long.
    bool run();

private:
    enum class Judged { No, Yes };

    void step(const char* name, const std::function<void()>& work, Judged judged = Judged::Yes);
    void openProgram();
    void press(const char* button) const { m_window->findChild<ShortcartButton*>(QLatin1String(button))->Activate(); }
    void trigger(const char* entry) const { m_window->findChild<QAction*>(QLatin1String(entry))->trigger(); }
    void clickNode(const QString& key) const;
    // Types a text into the line that finds, and judges the processor time of its slowest key, with all that is painted
    // for it.
    void find(const char* name, const QString& text);
    // Closes the next dialog that is opened, when it is there.
    void closeNextDialog(const std::function<void(QDialog& dialog)>& work);
    void upload();
    void goTo(const QString& query) const { m_navigation->act(u"http://previewmode/"_s + query); }

    ApplicationFolder m_folder;
    PreparedPrompts m_prompts;
    SystemClock m_clock;
    GiveUpOnErrors m_errors;
    HeartBeat m_heart;
    std::unique_ptr<MainForm> m_window;
    NoBrowser* m_preview = nullptr;
    PreviewNavigation* m_navigation = nullptr;
    bool m_held = false;
};

void Day::step(const char* name, const std::function<void()>& work, Judged judged)
{
    QCoreApplication::processEvents();
    m_heart.begin();
    work();
    QCoreApplication::processEvents();
    const qint64 time = m_heart.end();
    const bool held = m_heart.longest() > longestHold && !m_heart.progressSeen;
    m_held = m_held || (held && judged == Judged::Yes);
    const char* verdict = judged == Judged::No ? "-" : held ? "FAIL" : "PASS";
    std::printf("%-44s %8.2f s %8.2f s %9s  %s\n", name, static_cast<double>(time) / 1000,
                static_cast<double>(m_heart.longest()) / 1000, m_heart.progressSeen ? "yes" : "no", verdict);
    std::fflush(stdout);
}

void Day::find(const char* name, const QString& text)
{
    m_window->findChild<QAction*>(QLatin1String(findCommand))->trigger();
    auto* line = m_window->findChild<QLineEdit*>(u"CatalogueFindTxt"_s);
    line->clear();
    QCoreApplication::processEvents();
    double slowest = 0;
    for (const QChar letter : text) {
        const double before = processorSeconds();
        QTest::keyClick(line, letter.toLatin1());
        QCoreApplication::processEvents();
        slowest = std::max(slowest, 1000 * (processorSeconds() - before));
    }
    if (m_window->findChild<QLabel*>(u"lblFound"_s)->text().isEmpty()) {
        giveUp(u"Nothing was looked for"_s);
    }
    QTest::keyClick(line, Qt::Key_Escape);
    m_held = !judgeAtMost(name, slowest, longestKey) || m_held;
}

void Day::openProgram()
{
    m_window.reset();
    m_window = startProgram({m_folder, m_prompts, m_clock, m_errors, [] {}}, [this](QWidget* parent) {
        m_preview = new NoBrowser(parent);
        return PreviewParts{m_preview, m_preview, [this](PreviewNavigation* navigation) { m_navigation = navigation; }};
    });
}

void Day::clickNode(const QString& key) const
{
    CatalogueTree* tree = m_window->parts().CategoriesAndProductsTree;
    const std::function<TreeNode*(TreeNode*)> below = [&](TreeNode* node) -> TreeNode* {
        if (node->key == key) {
            return node;
        }
        for (const auto& child : node->children) {
            if (TreeNode* found = below(child.get())) {
                return found;
            }
        }
        return nullptr;
    };
    TreeNode* node = below(tree->nodes().rootNode());
    for (TreeNode* above = node->parent; above; above = above->parent) {
        tree->expandNode(above);
    }
    const QModelIndex index = tree->nodes().indexOf(node);
    tree->scrollTo(index);
    QTest::mouseClick(tree->viewport(), Qt::LeftButton, {}, tree->visualRect(index).center());
}

void Day::closeNextDialog(const std::function<void(QDialog& dialog)>& work)
{
    QTimer::singleShot(0, m_window.get(), [work] {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (!dialog) {
            giveUp(u"A dialog is missing"_s);
        }
        work(*dialog);
    });
}

void Day::upload()
{
    PhpServer server;
    if (!server.start()) {
        giveUp(server.why());
    }
    closeNextDialog([&server](const QDialog& dialog) {
        dialog.findChild<QLineEdit*>(u"txtURL"_s)->setText(server.address());
        dialog.findChild<QLineEdit*>(u"txtLogin"_s)->setText(u"anna"_s);
        dialog.findChild<QLineEdit*>(u"txtPassword"_s)->setText(u"s3cret"_s);
        dialog.findChild<QAbstractButton*>(u"OkBtn"_s)->click();
    });
    trigger("mnuUpload");
    if (!QFile::exists(server.path(u"pictures/cup-%1.png"_s.arg(pictureCount - 1)))) {
        giveUp(u"The upload failed"_s);
    }
}

bool Day::run()
{
    std::printf("%-44s %10s %10s %9s\n", "20,000 products, 5,000 pictures", "time", "held for", "progress");
    QApplication::instance()->installEventFilter(&m_heart);
    step("start, up to the shown window", [this] { openProgram(); });
    find("ms, slowest key to find what is everywhere", u"espresso"_s);
    find("ms, slowest key to find what is nowhere", u"anchor"_s);
    step("import of 20,000 products", [this] {
        m_prompts.file = m_folder.path() + u"/saucers.txt"_s;
        trigger("mnuImport");
    });
    if (m_window->session().shop->GetProductCount() != 2 * productCount) {
        giveUp(u"Not all lines were imported"_s);
    }
    const QString category = m_window->session().shop->categories.Item(1)->categories.Item(1)->id;
    const QString product = m_window->session().shop->categories.Item(1)->categories.Item(1)->products.Item(1)->id;
    step("a category's panel", [&] { clickNode(u"ID"_s + category); });
    step("its discounts", [this] { press("CategoryDiscountSBtn"); });
    step("Submit, and the push down the tree", [this] { m_window->ApplyActivePanel(); });
    step("the shop's discounts and the push", [this] {
        clickNode(shopNodeKey());
        press("ShopDiscountSBtn");
        m_window->ApplyActivePanel();
    });
    step("a product's panel", [&] { clickNode(u"ID"_s + product); });
    step("the picker of pictures", [this] {
        closeNextDialog([](QDialog& dialog) { dialog.reject(); });
        m_window->VisibleFrame->findChild<QAbstractButton*>(u"BrowseBtnLbl"_s)->click();
    });
    step("its related products", [this] { press("ProductRelatedSBtn"); });
    step("a new product", [&] {
        clickNode(u"ID"_s + category);
        press("NewProductSBtn");
        m_window->ShowFrame(nullptr, PanelCode::Show);
    });
    step("the design", [this] { trigger("mnuShopDesign"); });
    step("a page's manager", [this] { press("CategoryPageDesignSBtn"); });
    step("the preview's main page", [this] { trigger("mnuShopPreview"); });
    step("a category's page", [&] { goTo(u"ACTION=category.php&id="_s + category); });
    step("a search that finds 20,000 products", [this] { goTo(u"?ACTION=search.php&where=0&what=espresso"_s); });
    step("a search that finds nothing", [this] { goTo(u"?ACTION=search.php&where=0&what=anchor"_s); });
    step("back to the catalogue", [this] { trigger("mnuProductsCatalog"); });
    step("saving", [this] { trigger("mnuSaveShop"); });
    step("publishing all of it", [this] { upload(); });
    step(
        "backup", [this] { trigger("mnuBackUp"); }, Judged::No);
    step(
        "restore",
        [this] {
            m_prompts.file = m_folder.path() + u"/backups/scale.kvb"_s;
            trigger("mnuRestore");
        },
        Judged::No);
    step("the start after it", [this] { openProgram(); });
    m_prompts.saysYes = true;
    step("removing a category of 20,000 products", [this] {
        const KeyedCollection<std::shared_ptr<CategoryClass>>& categories = m_window->session().shop->categories;
        clickNode(nodeKey(categories.Item(categories.Count())->id)); // that of the import
        press("RemoveCategorySBtn");
    });
    if (m_window->session().shop->GetProductCount() != productCount + 1) { // a new one was made
        giveUp(u"The category is still there"_s);
    }
    std::printf("%-44s %8.0f MB at the most\n", "memory", static_cast<double>(memoryOf("VmHWM:")) / (1 << 20));
    return !m_held;
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QLocale::setDefault(QLocale(u"en_US"_s));
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    applyTheme(application);
    const QTemporaryDir directory;
    const ApplicationFolder folder(directory.path());
    makeShop(folder);
    writeFileBytes(folder.path() + u"/saucers.txt"_s, importText());
    return Day(folder).run() ? 0 : 1;
}
