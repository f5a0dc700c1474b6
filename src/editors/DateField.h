// A field for a local date text and the month calendar that opens under it. The text stays free: what is no date is
// kept. A form owns its fields and one calendar, which serves them all.
#pragma once

#include "base/Clock.h"

#include <QCalendarWidget>
#include <QLineEdit>

class MonthCalendar;
class QAbstractItemView;

class DateField : public QLineEdit
{
    Q_OBJECT

public:
    // The calendar must outlive the field.
    DateField(MonthCalendar& calendar, QWidget* parent = nullptr);

    // A field that is not in use is grey and takes no text.
    void setInUse(bool inUse);

protected:
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    MonthCalendar& m_calendar;
};

// Closes on a pick, on Esc and on a click elsewhere. What is typed while it is open goes into the field.
class MonthCalendar : public QCalendarWidget
{
    Q_OBJECT

public:
    // The clock must outlive it.
    MonthCalendar(const Clock& clock, QWidget* parent);

    // Opens at the left of the field, below it, with the field's date selected, or today when it holds none.
    void openUnder(QLineEdit& field);

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void paintCell(QPainter* painter, const QRect& room, QDate date) const override;
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void dress();
    QSize sizeOfMonth() const;

    const Clock& m_clock;
    QAbstractItemView* m_days = nullptr; // the part with the keyboard's focus
    QLineEdit* m_field = nullptr;
};
