#include "editors/DateField.h"

#include "base/Dates.h"
#include "base/RuntimeError.h"

#include <QAbstractItemView>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScreen>
#include <QTextCharFormat>
#include <QToolButton>

#include <optional>

using namespace Qt::StringLiterals;

namespace {

constexpr QRgb inUseColour = qRgb(255, 255, 255);
constexpr QRgb greyedColour = qRgb(192, 192, 192);
// Both backgrounds are light, whatever the palette.
constexpr QRgb textColour = qRgb(31, 37, 51);
constexpr QRgb placeholderColour = qRgb(84, 92, 110);

constexpr QRgb weekendOnLight = qRgb(178, 36, 36);
constexpr QRgb weekendOnDark = qRgb(255, 148, 138);

std::optional<QDate> dateIn(const QString& text)
{
    try {
        return dateFromLocalText(text);
    } catch (const RuntimeError&) {
        return {};
    }
}

// A key that changes a text, and no key of the calendar's own.
bool isTyping(const QKeyEvent& event)
{
    const QString text = event.text();
    return event.key() == Qt::Key_Backspace || event.key() == Qt::Key_Delete ||
           (!text.isEmpty() && text.front().isPrint() &&
            !(event.modifiers() & (Qt::ControlModifier | Qt::AltModifier)));
}

} // namespace

DateField::DateField(MonthCalendar& calendar, QWidget* parent) : QLineEdit(parent), m_calendar(calendar)
{
    setInUse(true);
}

void DateField::setInUse(bool inUse)
{
    setReadOnly(!inUse);
    QPalette colours = palette();
    for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        colours.setColor(group, QPalette::Base, inUse ? inUseColour : greyedColour);
        colours.setColor(group, QPalette::Text, textColour);
        colours.setColor(group, QPalette::PlaceholderText, placeholderColour);
    }
    setPalette(colours);
}

void DateField::mouseReleaseEvent(QMouseEvent* event)
{
    QLineEdit::mouseReleaseEvent(event);
    if (event->button() == Qt::LeftButton && rect().contains(event->pos()) && !isReadOnly()) {
        m_calendar.openUnder(*this);
    }
}

void DateField::keyPressEvent(QKeyEvent* event)
{
    if ((event->key() == Qt::Key_Down || event->key() == Qt::Key_F4) && !isReadOnly()) {
        m_calendar.openUnder(*this);
        return;
    }
    QLineEdit::keyPressEvent(event);
}

MonthCalendar::MonthCalendar(const Clock& clock, QWidget* parent)
    : QCalendarWidget(parent), m_clock(clock), m_days(findChild<QAbstractItemView*>())
{
    setObjectName(u"DateMV"_s);
    setAccessibleName(u"Month calendar"_s);
    setWindowFlags(Qt::Popup);
    setDateEditEnabled(false);
    setGridVisible(false);
    setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
    setDateRange(QDate(100, 1, 1), QDate(9999, 12, 31));
    m_days->installEventFilter(this);
    dress();

    const auto pick = [this](const QDate& date) {
        if (m_field) {
            m_field->setText(localDateText(date));
        }
        hide();
    };
    connect(this, &QCalendarWidget::clicked, this, pick);   // with the mouse
    connect(this, &QCalendarWidget::activated, this, pick); // with the Enter key
}

// Plain arrows on the bar in the place of the style's own, and a weekend that is readable in either palette.
void MonthCalendar::dress()
{
    for (const auto& [name, arrow] :
         {std::pair("qt_calendar_prevmonth", u"\u2039"), {"qt_calendar_nextmonth", u"\u203a"}}) {
        if (auto* button = findChild<QToolButton*>(QLatin1String(name))) {
            button->setIcon(QIcon());
            button->setText(QString::fromUtf16(arrow));
            QFont font = button->font();
            font.setPointSizeF(font.pointSizeF() * 1.5);
            font.setBold(true);
            button->setFont(font);
            QPalette colours = palette();
            // The bar's ground is that of a selection.
            colours.setColor(QPalette::ButtonText, colours.color(QPalette::HighlightedText));
            button->setPalette(colours);
        }
    }
    const bool isDark = palette().color(QPalette::Base).lightness() < 128;
    QTextCharFormat weekend;
    weekend.setForeground(QColor::fromRgb(isDark ? weekendOnDark : weekendOnLight));
    setWeekdayTextFormat(Qt::Saturday, weekend);
    setWeekdayTextFormat(Qt::Sunday, weekend);
}

void MonthCalendar::openUnder(QLineEdit& field)
{
    m_field = &field;
    setSelectedDate(dateIn(field.text()).value_or(m_clock.today()));
    adjustSize();
    QPoint place = field.mapToGlobal(QPoint(0, field.height()));
    if (const QScreen* screen = field.screen()) {
        // Inside the screen, when there is no room below.
        const QRect room = screen->availableGeometry();
        place.setX(qMax(room.left(), qMin(place.x(), room.right() - width())));
        place.setY(qMax(room.top(), qMin(place.y(), room.bottom() - height())));
    }
    move(place);
    show();
    m_days->setFocus();
}

bool MonthCalendar::eventFilter(QObject* watched, QEvent* event)
{
    // While the year is typed, the calendar watches the whole program: only what is typed over the days is for the
    // field.
    if (watched == m_days && event->type() == QEvent::KeyPress && m_field) {
        auto* key = static_cast<QKeyEvent*>(event);
        if (key->key() == Qt::Key_Escape) {
            hide();
            return true;
        }
        if (isTyping(*key)) {
            hide();
            m_field->setFocus();
            QCoreApplication::sendEvent(m_field, key);
            return true;
        }
    }
    return QCalendarWidget::eventFilter(watched, event);
}
