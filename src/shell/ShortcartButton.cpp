#include "shell/ShortcartButton.h"

#include "base/ApplicationFolder.h"
#include "base/LoadLog.h"
#include "editors/SecondPress.h"
#include "look/Measures.h"
#include "look/Paint.h"
#include "look/Tones.h"
#include "shell/Twips.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr int pictureSize = 48; // pixels a side at 100%
constexpr int leastWidth = 108;
constexpr int longestLine = 112; // a title that is longer stands in two lines
constexpr int leastHeight = 80;
constexpr int besideTitle = Measure::Tight;
constexpr int titleTop = pictureSize;
constexpr int belowTitle = Measure::Tight;
constexpr int markWidth = 2; // of the line at the foot of the current button

QIcon builtInPicture(const char* name)
{
    return QIcon(u":/icons/%1.svg"_s.arg(QLatin1String(name)));
}

// The five main buttons act when they receive the focus, so Tab must not reach them. The menus have the same commands.
// No policy says that a press gives the focus: any mouse button would. The press of the left one sees to it itself.
Qt::FocusPolicy focusPolicyOf(ButtonFrame frame)
{
    return frame == ButtonFrame::ToolbarFrame ? Qt::NoFocus : Qt::TabFocus;
}

} // namespace

ShortcartButton::ShortcartButton(const ButtonRow& row, const ApplicationFolder& folder, LoadLog& log, QWidget* parent)
    : QWidget(parent),
      Code(row.code),
      m_title(QString::fromLatin1(row.title)),
      m_pictures(buttonPicturesOf(m_title)),
      m_picturesFolder(folder.picturesFolder()),
      IconImg(new QLabel(this)),
      TitleLbl(new QLabel(m_title, this))
{
    setObjectName(objectNameOf(row.name));
    setAccessibleName(m_title);
    setFocusPolicy(focusPolicyOf(row.frame));
    setMouseTracking(true);
    setAttribute(Qt::WA_Hover);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);

    IconImg->setObjectName(u"IconImg"_s);
    IconImg->setToolTip(m_title);
    IconImg->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    IconImg->setMouseTracking(true);
    TitleLbl->setObjectName(u"TitleLbl"_s);
    TitleLbl->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    TitleLbl->setWordWrap(true);
    TitleLbl->setAttribute(Qt::WA_TransparentForMouseEvents); // a press on the words is one on the picture
    showPicture(builtInPicture(row.icon));

    log.WriteLoadLog(u"UserControl "_s + m_title + u" loaded"_s);
}

void ShortcartButton::showPicture(const QIcon& icon)
{
    m_icon = icon;
    IconImg->setPixmap(m_icon.pixmap(QSize(pictureSize, pictureSize), devicePixelRatioF()));
}

void ShortcartButton::setCurrent(bool isCurrent)
{
    if (m_isCurrent != isCurrent) {
        m_isCurrent = isCurrent;
        setAccessibleDescription(isCurrent ? u"Current"_s : QString());
        update();
    }
}

// As wide as the title needs in two lines.
QSize ShortcartButton::sizeHint() const
{
    const QFontMetrics metrics = TitleLbl->fontMetrics();
    int words = metrics.horizontalAdvance(m_title);
    const bool isLong = words > longestLine;
    for (qsizetype blank = m_title.indexOf(u' '); isLong && blank >= 0; blank = m_title.indexOf(u' ', blank + 1)) {
        words = std::min(words, std::max(metrics.horizontalAdvance(m_title.first(blank)),
                                         metrics.horizontalAdvance(m_title.sliced(blank + 1))));
    }
    // The label breaks its lines a little early.
    return {std::max(leastWidth, words + 2 * besideTitle + 2),
            std::max(leastHeight, titleTop + 2 * metrics.lineSpacing() + belowTitle)};
}

void ShortcartButton::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    IconImg->setGeometry(rect());
    TitleLbl->setGeometry(rect().adjusted(besideTitle, titleTop, -besideTitle, 0));
}

void ShortcartButton::Activate()
{
    Q_EMIT frameRequested(ShortCartFrameToActivate, Code);
    Q_EMIT Click();
}

void ShortcartButton::OnMouseMove(int x, int y)
{
    // The result of the test is negated bit by bit, which is never zero: the branch is deliberately always taken.
    if (~static_cast<int>(IconImg->geometry().contains(x, y)) != 0) {
        hover(-1, -1);
    }
}

void ShortcartButton::mouseMoveEvent(QMouseEvent* event)
{
    const QPoint place = event->position().toPoint();
    if (IconImg->geometry().contains(place)) {
        IconImg->setCursor(Qt::PointingHandCursor);
        hover(place.x(), place.y());
    }
}

void ShortcartButton::hover(int x, int y)
{
    if (!m_pictures) {
        return;
    }
    const int farMargin = pixels(130);
    const bool outside = x < pixels(100) || y < pixels(100) || x > width() - farMargin || y > height() - farMargin;
    const char* picture = outside ? m_pictures->outside : m_pictures->inside;
    if (std::exchange(m_shown, picture) == picture) {
        return; // drawing one takes too long for every move of the mouse
    }
    showPicture(m_pictures->source == PictureSource::PicturesFolder ? QIcon(m_picturesFolder + QLatin1String(picture))
                                                                    : builtInPicture(picture));
}

void ShortcartButton::focusInEvent(QFocusEvent* event)
{
    QWidget::focusInEvent(event);
    update();
}

void ShortcartButton::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton) {
        return;
    }
    m_pressed = true;
    swallowSecondPress();
    update();
    // Only a press counts: the focus also comes back with the window's activation and from a box that closes.
    if (window()->focusWidget() != this) {
        setFocus(Qt::MouseFocusReason);
        Q_EMIT focusReceived();
    }
}

void ShortcartButton::mouseReleaseEvent(QMouseEvent* event)
{
    const bool clicked = m_pressed && event->button() == Qt::LeftButton && rect().contains(event->position().toPoint());
    m_pressed = false;
    update();
    if (!clicked) {
        return;
    }
    if (IconImg->geometry().contains(event->position().toPoint())) {
        Activate();
    } else {
        Q_EMIT Click();
    }
}

void ShortcartButton::keyPressEvent(QKeyEvent* event)
{
    const int key = event->key();
    if (key == Qt::Key_Space || key == Qt::Key_Return || key == Qt::Key_Enter) {
        Activate();
    } else {
        QWidget::keyPressEvent(event);
    }
}

void ShortcartButton::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    if (m_pressed) {
        fillRounded(painter, rect(), Measure::LargeRadius, tone(Tone::Pressed));
    } else if (m_isCurrent) {
        fillRounded(painter, rect(), Measure::LargeRadius, tone(Tone::Soft));
    } else if (underMouse()) {
        fillRounded(painter, rect(), Measure::LargeRadius, tone(Tone::Hover));
    }
    if (m_isCurrent) {
        drawRing(painter, rect(), Measure::LargeRadius, Measure::Hairline, tone(Tone::SoftLine));
        painter.setClipRect(rect().adjusted(0, height() - markWidth, 0, 0));
        fillRounded(painter, rect(), Measure::LargeRadius, tone(Tone::Accent));
        painter.setClipping(false);
    }
    if (hasFocus()) {
        drawRing(painter, rect(), Measure::LargeRadius, Measure::Ring, tone(Tone::Accent));
    }
}

void ShortcartButton::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::ScreenChangeInternal || event->type() == QEvent::StyleChange) {
        showPicture(m_icon);
    }
    QWidget::changeEvent(event);
}
