#include "editors/DateField.h"

#include "base/Dates.h"
#include "base/RuntimeError.h"
#include "look/Measures.h"
#include "look/Paint.h"
#include "look/Tones.h"
#include "look/Type.h"

#include <QAbstractItemView>
#include <QAction>
#include <QBoxLayout>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>
#include <QScreen>
#include <QTextCharFormat>
#include <QToolButton>

#include <optional>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

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

DateField::DateField(const Clock& clock, std::function<MonthCalendar&()> calendar, QWidget* parent)
    : QLineEdit(parent), m_clock(clock), m_calendar(std::move(calendar))
{
    setInUse(true);
}

bool DateField::event(QEvent* event)
{
    if (event->type() == QEvent::ToolTip) { // on the day on which it is shown
        setToolTip(u"A date such as %1, or nothing for an open end"_s.arg(localDateText(m_clock.today())));
    }
    return QLineEdit::event(event);
}

void DateField::fill(const QString& text)
{
    m_former = text;
    setText(text);
}

void DateField::settle()
{
    if (text().isEmpty() || dateIn(text())) {
        m_former = text();
    } else if (text() != m_former) {
        setText(m_former);
    }
}

void DateField::focusOutEvent(QFocusEvent* event)
{
    QLineEdit::focusOutEvent(event);
    // Opening its calendar or its context menu does not count as leaving the field.
    if (event->reason() != Qt::PopupFocusReason) {
        settle();
    }
}

void DateField::setInUse(bool inUse)
{
    setReadOnly(!inUse);
    QPalette colours = palette();
    for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        colours.setColor(group, QPalette::Base, tone(inUse ? Tone::DateInUse : Tone::DateOff));
        colours.setColor(group, QPalette::Text, tone(inUse ? Tone::DateText : Tone::DateOffText));
        colours.setColor(group, QPalette::PlaceholderText, tone(inUse ? Tone::DatePlaceholder : Tone::DateOffText));
    }
    setPalette(colours);
}

void DateField::mouseReleaseEvent(QMouseEvent* event)
{
    QLineEdit::mouseReleaseEvent(event);
    if (event->button() == Qt::LeftButton && rect().contains(event->pos()) && !isReadOnly()) {
        m_calendar().openUnder(*this);
    }
}

void DateField::keyPressEvent(QKeyEvent* event)
{
    if ((event->key() == Qt::Key_Down || event->key() == Qt::Key_F4) && !isReadOnly()) {
        m_calendar().openUnder(*this);
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

    const auto pick = [this](const QDate& date) { write(localDateText(date)); };
    auto* noDate = new QPushButton(u"No date"_s, this);
    noDate->setObjectName(u"NoDateBtn"_s);
    auto* foot = new QHBoxLayout;
    foot->setContentsMargins(Measure::Gap, Measure::Tight, Measure::Gap, Measure::Gap);
    foot->addWidget(noDate);
    qobject_cast<QVBoxLayout*>(layout())->addLayout(foot);
    connect(noDate, &QPushButton::clicked, this, [this] { write(QString()); });
    connect(this, &QCalendarWidget::clicked, this, pick);   // with the mouse
    connect(this, &QCalendarWidget::activated, this, pick); // with the Enter key
}

// The bar of month and year on the ground of the days, with plain angles, and a weekend like any day.
void MonthCalendar::dress()
{
    setContentsMargins(Measure::FieldFrame, Measure::FieldFrame, Measure::FieldFrame, Measure::FieldFrame);
    if (auto* bar = findChild<QWidget*>(u"qt_calendar_navigationbar"_s)) {
        bar->setBackgroundRole(QPalette::Base);
        QPalette colours = bar->palette(); // its buttons write in the colour of a selected text
        colours.setColor(QPalette::HighlightedText, tone(Tone::Text));
        bar->setPalette(colours);
        bar->layout()->setContentsMargins(Measure::Tight, Measure::Tight, Measure::Tight, Measure::Tight);
    }
    for (const auto& [name, arrow] :
         {std::pair("qt_calendar_prevmonth", Qt::LeftArrow), {"qt_calendar_nextmonth", Qt::RightArrow}}) {
        if (auto* button = findChild<QToolButton*>(QLatin1String(name))) {
            button->setIcon(QIcon());
            button->setArrowType(arrow);
            button->setFixedSize(Measure::Target + Measure::Tight, Measure::Target);
        }
    }
    for (const char* name : {"qt_calendar_monthbutton", "qt_calendar_yearbutton"}) {
        if (auto* button = findChild<QToolButton*>(QLatin1String(name))) {
            button->setMinimumHeight(Measure::Target);
            button->setFont(boldFont());
        }
    }
    for (int day = Qt::Monday; day <= Qt::Sunday; ++day) {
        QTextCharFormat format;
        format.setForeground(tone(Tone::Text));
        setWeekdayTextFormat(static_cast<Qt::DayOfWeek>(day), format);
    }
    QTextCharFormat heads;
    heads.setForeground(tone(Tone::Muted));
    setHeaderTextFormat(heads);
}

void MonthCalendar::paintCell(QPainter* painter, const QRect& room, QDate date) const
{
    const bool isChosen = date == selectedDate();
    const bool isOfMonth = date.month() == monthShown() && date.year() == yearShown();
    if (isChosen) {
        fillSharp(*painter, room, tone(Tone::Field)); // over the ground that a view gives what is chosen
        fillRounded(*painter, QRectF(room).adjusted(2, 1, -2, -1), Measure::Radius, tone(Tone::Accent));
    }
    painter->save();
    painter->setFont(date == m_clock.today() ? boldFont() : font());
    painter->setPen(tone(isChosen ? Tone::OnAccent : isOfMonth ? Tone::Text : Tone::Muted));
    painter->drawText(room, Qt::AlignCenter, locale().toString(date.day()));
    painter->restore();
}

void MonthCalendar::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    fillSharp(painter, rect(), tone(Tone::Field));
    drawRing(painter, rect(), 0, Measure::Hairline, tone(Tone::Edge));
}

void MonthCalendar::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::PaletteChange && m_days) {
        dress();
    }
    QCalendarWidget::changeEvent(event);
}

// With the longest of its months.
int MonthCalendar::widthOfBar() const
{
    const auto* bar = findChild<const QWidget*>(u"qt_calendar_navigationbar"_s);
    const auto* month = findChild<const QToolButton*>(u"qt_calendar_monthbutton"_s);
    const QFontMetrics letters = month->fontMetrics();
    int longest = 0;
    for (const QAction* entry : month->menu()->actions()) {
        longest = qMax(longest, letters.horizontalAdvance(entry->text()));
    }
    return bar->sizeHint().width() - letters.horizontalAdvance(month->text()) + longest;
}

// Seven rows of seven days between the bar and the button for no date. The names of the days and of the months need
// more room in some languages.
QSize MonthCalendar::sizeOfMonth() const
{
    const auto* bar = findChild<const QWidget*>(u"qt_calendar_navigationbar"_s);
    const auto* button = findChild<const QWidget*>(u"NoDateBtn"_s);
    const int row = rowHeight(fontMetrics());
    const int foot = Measure::Tight + button->sizeHint().height() + Measure::Gap;
    const int frame = 2 * Measure::FieldFrame;
    const int width = qMax(7 * (row + Measure::Section), widthOfBar()) + frame;
    return {qMax(width, minimumSizeHint().width()), bar->sizeHint().height() + 7 * row + foot + frame};
}

void MonthCalendar::write(const QString& text)
{
    if (m_field) {
        m_field->setText(text);
    }
    hide();
}

void MonthCalendar::openUnder(QLineEdit& field)
{
    m_field = &field;
    setSelectedDate(dateIn(field.text()).value_or(m_clock.today()));
    setFixedSize(sizeOfMonth());
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
