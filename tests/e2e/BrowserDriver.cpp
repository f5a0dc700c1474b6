#include "e2e/BrowserDriver.h"

#include "shell/browser/PreviewBrowser.h"

#include <QElapsedTimer>
#include <QEventLoop>
#include <QPointer>
#include <QTest>
#include <QTimer>
#include <QWebEnginePage>
#include <QWebEngineView>

#include <gtest/gtest.h>
#include <memory>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

constexpr int PatienceInMilliseconds = 30000;

QString quoted(QString text)
{
    return u'\'' + text.replace(u'\\', u"\\\\"_s).replace(u'\'', u"\\'"_s) + u'\'';
}

} // namespace

QVariant BrowserDriver::script(const QString& javaScript)
{
    const auto result = std::make_shared<std::optional<QVariant>>();
    QEventLoop loop;
    QTimer::singleShot(PatienceInMilliseconds, &loop, &QEventLoop::quit);
    const QPointer<QEventLoop> waiting = &loop;
    m_driven->page()->runJavaScript(javaScript, [result, waiting](const QVariant& value) {
        *result = value;
        if (waiting != nullptr) {
            waiting->quit();
        }
    });
    if (!result->has_value()) {
        loop.exec();
    }
    EXPECT_TRUE(result->has_value()) << "no answer to: " << javaScript.toStdString();
    return result->value_or(QVariant());
}

void BrowserDriver::waitUntil(const QString& condition)
{
    QElapsedTimer time;
    time.start();
    while (!script(condition).toBool()) {
        if (time.elapsed() > PatienceInMilliseconds) {
            ADD_FAILURE() << "never true: " << condition.toStdString();
            return;
        }
        pause(10);
    }
}

void BrowserDriver::markPage()
{
    script(u"window.isOldPage = true"_s);
}

void BrowserDriver::waitForNewPage()
{
    waitUntil(u"!window.isOldPage && document.readyState == 'complete'"_s);
}

void BrowserDriver::pause(int milliseconds)
{
    QEventLoop loop;
    QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
    loop.exec();
}

QPoint BrowserDriver::middleOf(const QString& selector)
{
    const QVariantList middle =
        script(u"(function() { const element = document.querySelector(%1);"
               "if (!element) return [];"
               "element.scrollIntoView({block: 'center', behavior: 'instant'});"
               "const box = element.getBoundingClientRect();"
               "return [box.x + box.width / 2, box.y + box.height / 2]; })()"_s.arg(quoted(selector)))
            .toList();
    EXPECT_EQ(middle.size(), 2) << "not on the page: " << selector.toStdString();
    return middle.size() == 2 ? QPointF(middle[0].toDouble(), middle[1].toDouble()).toPoint() : QPoint();
}

void BrowserDriver::click(const QString& selector, Qt::MouseButton button)
{
    const QPoint place = middleOf(selector);
    pause(50);
    QTest::mouseClick(m_driven->view()->focusProxy(), button, {}, place);
}

void BrowserDriver::clickToNewPage(const QString& selector)
{
    markPage();
    click(selector);
    waitForNewPage();
}

void BrowserDriver::type(const QString& selector, const QString& text)
{
    click(selector);
    waitUntil(u"document.activeElement == document.querySelector(%1)"_s.arg(quoted(selector)));
    script(u"document.activeElement.select()"_s);
    QTest::keyClicks(m_driven->view()->focusProxy(), text);
    waitUntil(u"document.activeElement.value == %1"_s.arg(quoted(text)));
}

void BrowserDriver::pressEnter()
{
    QTest::keyClick(m_driven->view()->focusProxy(), Qt::Key_Return);
}

void BrowserDriver::enterToNewPage()
{
    markPage();
    pressEnter();
    waitForNewPage();
}

void BrowserDriver::tabTo(const QString& selector)
{
    const QString isThere = u"document.activeElement.matches(%1)"_s.arg(quoted(selector));
    const QString place = u"[...document.querySelectorAll('*')].indexOf(document.activeElement)"_s;
    for (int key = 0; key < 100 && !script(isThere).toBool(); ++key) {
        const int before = script(place).toInt();
        QTest::keyClick(m_driven->view()->focusProxy(), Qt::Key_Tab);
        waitUntil(u"%1 != %2"_s.arg(place).arg(before));
    }
    EXPECT_TRUE(script(isThere).toBool()) << "Tab does not lead to " << selector.toStdString();
}

QString BrowserDriver::textOf(const QString& selector)
{
    return script(u"(document.querySelector(%1) || {textContent: 'NOT ON THE PAGE'}).textContent.trim()"_s.arg(
                      quoted(selector)))
        .toString();
}

int BrowserDriver::countOf(const QString& selector)
{
    return script(u"document.querySelectorAll(%1).length"_s.arg(quoted(selector))).toInt();
}

bool BrowserDriver::shows(const QString& text)
{
    return script(u"document.body.innerText.includes(%1)"_s.arg(quoted(text))).toBool();
}
