// A text that looks like a link and acts like a button, with the mouse and with the keyboard.
#pragma once

#include <QAbstractButton>

class LinkLabel : public QAbstractButton
{
    Q_OBJECT

public:
    LinkLabel(const char* name, const QString& text, QWidget* parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
};
