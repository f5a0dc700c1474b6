#include "shell/FrameFit.h"

#include <QEvent>
#include <QScreen>
#include <QWidget>
#include <QWindow>

namespace {

constexpr QMargins usualFrame(8, 32, 8, 8); // pixels

} // namespace

FrameFit::FrameFit(QWidget& window, const QSize& wanted) : QObject(&window), m_window(window), m_wanted(wanted)
{
    fit(usualFrame);
    m_window.installEventFilter(this);
}

void FrameFit::fit(const QMargins& frame)
{
    m_given = m_wanted.boundedTo(m_window.screen()->availableSize().shrunkBy(frame));
    m_window.resize(m_given);
}

// A desktop without frames never tells of one, and the estimate stays.
bool FrameFit::eventFilter(QObject* watched, QEvent* event)
{
    const bool mayKnow =
        event->type() == QEvent::Move || event->type() == QEvent::Resize || event->type() == QEvent::WindowActivate;
    const QWindow* native = m_window.windowHandle();
    if (mayKnow && native && native->isVisible() && !native->frameMargins().isNull()) {
        m_window.removeEventFilter(this);
        if (m_window.size() == m_given) {
            fit(native->frameMargins());
        }
    }
    return QObject::eventFilter(watched, event);
}
