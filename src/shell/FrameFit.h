// Fits the window with its frame to the screen. What frame the desktop puts around it is known only after it has been
// shown; until then an estimate stands in. The window owns it.
#pragma once

#include <QMargins>
#include <QObject>
#include <QSize>

class QWidget;

class FrameFit : public QObject
{
public:
    // Gives the window that size, or what the screen leaves inside of a usual frame; once more when its own frame is
    // known, unless somebody else has changed the size by then. Sizes are those inside of the frame.
    FrameFit(QWidget& window, const QSize& wanted);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void fit(const QMargins& frame);

    QWidget& m_window;
    QSize m_wanted;
    QSize m_given;
};
