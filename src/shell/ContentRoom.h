// A room of the main window, such as all that is inside of its frame, and the content in it. The content fills the
// room, but is never squeezed: where the room is too small it is cut off. In a window below the smallest size at which
// the window is arranged at all it keeps its last layout. The room owns the content.
#pragma once

#include <QWidget>

class ContentRoom : public QWidget
{
    Q_OBJECT

public:
    explicit ContentRoom(QWidget* parent);

    // To be given a layout.
    QWidget* content() const { return m_content; }

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void fitContent();

    QWidget* m_content;
};
