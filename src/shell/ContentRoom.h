// An area of the main window and the content in it, which it owns. The content fills the area but is never squeezed:
// where the area is too small, the content is cut off. In a window too small to be arranged at all it keeps its last
// layout.
#pragma once

#include <QWidget>

class ContentRoom : public QWidget
{
    Q_OBJECT

public:
    explicit ContentRoom(QWidget* parent);

    // The caller gives it a layout.
    QWidget* content() const { return m_content; }

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void fitContent();

    QWidget* m_content;
};
