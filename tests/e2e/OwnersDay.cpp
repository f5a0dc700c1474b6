#include "e2e/OwnersDay.h"

#include "editors/Panel.h"
#include "model/CategoryClass.h"
#include "model/ProductClass.h"
#include "model/ShopClass.h"
#include "shell/BrowserPreview.h"
#include "shell/CatalogueTree.h"
#include "shell/browser/PreviewBrowser.h"
#include "support/Hands.h"
#include "support/KeyHands.h"

#include <QApplication>
#include <QCheckBox>
#include <QDialog>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTabWidget>
#include <QTest>
#include <QTimer>
#include <QWebEngineView>

using namespace Qt::StringLiterals;

namespace {

constexpr int patience = 60000; // milliseconds
constexpr int mostHits = 20;

Qt::Key keyOfMainButton(QLatin1String button)
{
    static const QHash<QLatin1String, Qt::Key> keys = {{"SaveShopSBtn"_L1, Qt::Key_S},
                                                       {"ProductCatalogSBtn"_L1, Qt::Key_1},
                                                       {"PreviewBrowserSBtn"_L1, Qt::Key_2},
                                                       {"ShopDesignSBtn"_L1, Qt::Key_3}};
    return keys.value(button, Qt::Key_unknown);
}

} // namespace

class OwnersDay::MouseWatch : public QObject
{
public:
    explicit MouseWatch(int& presses) : m_presses(presses) { QApplication::instance()->installEventFilter(this); }

    bool eventFilter(QObject* /*watched*/, QEvent* event) override
    {
        m_presses += event->type() == QEvent::MouseButtonPress ? 1 : 0;
        return false;
    }

private:
    int& m_presses;
};

OwnersDay::~OwnersDay()
{
    EXPECT_TRUE(errors.numbers.empty()) << "run-time error " << errors.numbers.front();
    window.reset(); // the browser goes ahead of the server and of the errors
}

void OwnersDay::SetUp()
{
    m_watch = std::make_unique<MouseWatch>(m_mousePresses);
    useSampleShop();
    ASSERT_TRUE(server.start()) << server.why().toStdString();
}

PreviewParts OwnersDay::makePreview(QWidget* parent)
{
    PreviewParts parts = browserPreview(files.folder(), errors)(parent);
    browser = qobject_cast<PreviewBrowser*>(parts.widget);
    visitor.drive(browser);
    return parts;
}

// The main buttons act on the receipt of the focus, which only the active window's have. There is no window manager
// here that makes the window active again when a dialog has closed.
void OwnersDay::activate() const
{
    window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
}

void OwnersDay::pressKey(Qt::Key key, Qt::KeyboardModifiers modifiers) const
{
    QWidget* focus = window->focusWidget();
    QTest::keyClick(focus ? focus : window.get(), key, modifiers);
}

void OwnersDay::click(const char* button)
{
    activate();
    const Qt::Key key = keyOfMainButton(QLatin1String(button));
    if (!byKeys()) {
        WindowTest::click(button);
    } else if (key != Qt::Key_unknown) {
        pressKey(key, Qt::ControlModifier);
    } else {
        KeyHands::press(find(button));
    }
}

void OwnersDay::trigger(const char* entry)
{
    if (byKeys()) {
        activate();
        KeyHands::takeEntry(*window, find<QAction>(entry));
    } else {
        WindowTest::trigger(entry);
    }
}

void OwnersDay::clickNode(const QString& key)
{
    if (!byKeys()) {
        WindowTest::clickNode(key);
        return;
    }
    CatalogueTree* tree = window->parts().CategoriesAndProductsTree;
    if (key == u"ID_SHOP"_s) {
        KeyHands::tabTo(tree);
        QTest::keyClick(tree, Qt::Key_Home);
    } else {
        activate();
        pressKey(Qt::Key_F, Qt::ControlModifier);
        auto* line = find<QLineEdit>("CatalogueFindTxt");
        ASSERT_EQ(window->focusWidget(), line);
        Hands::pressKeys(line, tree->nodes().nodeWithKey(key)->text);
        for (int hit = 0; hit < mostHits && window->SelectedNode->key != key; ++hit) {
            QTest::keyClick(line, Qt::Key_Return);
        }
        QTest::keyClick(line, Qt::Key_Escape);
    }
    ASSERT_EQ(window->SelectedNode->key, key);
}

void OwnersDay::press(QWidget* button) const
{
    byKeys() ? KeyHands::press(button) : Hands::press(button);
}

void OwnersDay::type(QWidget* field, const QString& text) const
{
    byKeys() ? KeyHands::type(field, text) : Hands::type(field, text);
}

void OwnersDay::tick(QCheckBox* box) const
{
    byKeys() ? KeyHands::press(box) : Hands::tick(box);
}

void OwnersDay::openTab(QTabWidget* tabs, int index) const
{
    byKeys() ? KeyHands::openTab(tabs, index) : tabs->setCurrentIndex(index);
}

void OwnersDay::append(QPlainTextEdit* text, const QString& more) const
{
    if (byKeys()) {
        KeyHands::tabTo(text);
        QTest::keyClick(text, Qt::Key_End, Qt::ControlModifier);
    } else {
        text->moveCursor(QTextCursor::End);
    }
    Hands::pressKeys(text, more);
}

QWidget& OwnersDay::panel() const
{
    return *window->VisibleFrame;
}

void OwnersDay::visit(const QString& selector)
{
    if (byKeys()) {
        visitor.tabTo(selector);
        visitor.enterToNewPage();
    } else {
        visitor.clickToNewPage(selector);
    }
}

void OwnersDay::fillIn(const QString& selector, const QString& text)
{
    if (byKeys()) {
        visitor.tabTo(selector);
        QWidget* page = browser->view()->focusProxy();
        QTest::keyClick(page, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(page, text);
        visitor.waitUntil(u"document.activeElement.value == '%1'"_s.arg(text));
    } else {
        visitor.type(selector, text);
    }
}

void OwnersDay::inNextDialog(const std::function<void(QDialog& dialog)>& work)
{
    auto* timer = new QTimer(window.get());
    QObject::connect(timer, &QTimer::timeout, timer, [timer, work] {
        if (auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
            timer->stop();
            timer->deleteLater();
            work(*dialog);
        }
    });
    timer->start(20);
}

QWidget* OwnersDay::part(const QWidget& dialog, const char* name)
{
    auto* widget = dialog.findChild<QWidget*>(QLatin1String(name));
    EXPECT_NE(widget, nullptr) << name;
    return widget;
}

bool OwnersDay::waitUntil(const std::function<bool()>& condition)
{
    QElapsedTimer time;
    time.start();
    while (!condition() && time.elapsed() < patience) {
        BrowserDriver::pause(10);
    }
    return condition();
}

ShopClass& OwnersDay::shop() const
{
    return *window->session().shop;
}

QString OwnersDay::keyOf(const QString& name) const
{
    for (const CatalogueObject& object : window->session().objects.items()) {
        if (const auto* category = std::get_if<std::shared_ptr<CategoryClass>>(&object);
            category && (*category)->name == name) {
            return u"ID"_s + (*category)->id;
        }
        if (const auto* product = std::get_if<std::shared_ptr<ProductClass>>(&object);
            product && (*product)->name == name) {
            return u"ID"_s + (*product)->id;
        }
    }
    ADD_FAILURE() << "not in the catalogue: " << name.toStdString();
    return {};
}
