// The one kind of button of the main window: a picture with a title over its foot that lights up under the mouse and
// opens a panel. The picture's label covers the whole of it, so that a press on the title is one on the picture. It
// knows its panel and its code and asks for the change of panel by a signal; it knows nothing of the catalogue.
#pragma once

#include "shell/ButtonPictures.h"
#include "shell/ButtonTable.h"

#include <QIcon>
#include <QLabel>
#include <QWidget>

class ApplicationFolder;
class LoadLog;
class Panel;

class ShortcartButton : public QWidget
{
    Q_OBJECT

public:
    // Takes the button's properties from its row and logs that. Buttons with a few of the titles have their pictures in
    // the folder.
    ShortcartButton(const ButtonRow& row, const ApplicationFolder& folder, LoadLog& log, QWidget* parent);

    // Does what a click on the picture does.
    void Activate();
    // The parent reports that the mouse is at this position of its own, outside the button. The button always goes
    // dark, deliberately also when the position lies over its picture.
    void OnMouseMove(int x, int y);

    QString ShortCartTitle() const { return m_title; }

    // Marks the button of the mode or of the panel that is on screen, with a ground and a line.
    void setCurrent(bool isCurrent);
    bool isCurrent() const { return m_isCurrent; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

    Panel* ShortCartFrameToActivate = nullptr;
    qint16 Code = 0;

Q_SIGNALS:
    // A press of the mouse has given the button the input focus, which it did not have. Comes before the click.
    void focusReceived();
    // The picture was clicked: the button asks for this panel, with this code.
    void frameRequested(Panel* panel, qint16 code);
    // The button was clicked anywhere. After a click on the picture it follows frameRequested.
    void Click();

protected:
    void focusInEvent(QFocusEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void hover(int x, int y);
    void showPicture(const QIcon& icon);

    QString m_title;
    QIcon m_icon; // what is shown now
    const ButtonPictureRow* m_pictures;
    const char* m_shown = nullptr; // of its two pictures; none before the mouse has moved
    QString m_picturesFolder;
    QLabel* IconImg;
    QLabel* TitleLbl;
    bool m_pressed = false;
    bool m_isCurrent = false;
};
