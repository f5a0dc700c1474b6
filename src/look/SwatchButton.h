// A button that shows a swatch at its left and its words beside it, so that a column of such buttons can be read down.
#pragma once

#include <QPushButton>

class SwatchButton : public QPushButton
{
    Q_OBJECT

public:
    using QPushButton::QPushButton;

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
};
