// A field for a local date text and the month calendar that opens under it. What is typed and is no date goes back to
// the former text when the field is left; a text of the model is never refused. A form owns its fields and one
// calendar, which serves them all.
#pragma once

#include "base/Clock.h"

#include <QCalendarWidget>
#include <QLineEdit>

#include <functional>

class MonthCalendar;
class QAbstractItemView;

class DateField : public QLineEdit
{
    Q_OBJECT

public:
    // calendar() gives the form's calendar, and is asked each time that it is to open. The clock must outlive the
    // field.
    DateField(const Clock& clock, std::function<MonthCalendar&()> calendar, QWidget* parent = nullptr);

    // Shows a text of the model, whether it is a date or not.
    void fill(const QString& text);
    // Takes the former text back when a text was typed that is neither empty nor a date. To be called before the text
    // is saved; a field that loses the focus does it by itself.
    void settle();

    // A field that is not in use is grey and takes no text.
    void setInUse(bool inUse);

protected:
    bool event(QEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    const Clock& m_clock;
    std::function<MonthCalendar&()> m_calendar;
    QString m_former; // the last text that was taken
};

// Closes on a pick, on its button for no date, on Esc and on a click elsewhere. What is typed while it is open goes
// into the field.
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
    int widthOfBar() const;
    QSize sizeOfMonth() const;

    void write(const QString& text);

    const Clock& m_clock;
    QAbstractItemView* m_days = nullptr; // the part with the keyboard's focus
    QLineEdit* m_field = nullptr;
};
