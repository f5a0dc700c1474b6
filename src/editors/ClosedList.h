// A list of choices that leaves the wheel to the panel around it, which scrolls, while it is closed. A form owns it.
#pragma once

#include <QComboBox>
#include <QWheelEvent>

class ClosedList : public QComboBox
{
public:
    using QComboBox::QComboBox;

protected:
    void wheelEvent(QWheelEvent* event) override { event->ignore(); }
};
