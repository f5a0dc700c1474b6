// Holds the groups of a panel and scrolls them when the window is too low. Its content is as wide as the room for it
// and never lower than it needs to be at that width, so that texts which wrap are not squeezed. A hairline at its foot
// says that there is more below.
#pragma once

#include <QScrollArea>

class ScrollColumn : public QScrollArea
{
    Q_OBJECT

public:
    // Owns the content, which must have a layout.
    ScrollColumn(QWidget* content, QWidget* parent);

protected:
    bool event(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void giveContentItsHeight();
};
