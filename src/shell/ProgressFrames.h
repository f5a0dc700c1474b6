// The signs of work that lie over the window's content: the short bar that acknowledges a change of panel, the frame
// that shows that the shop is saved (both are feedback only and measure nothing), and the frame of a long import.
#pragma once

#include <QFrame>
#include <QLabel>
#include <QProgressBar>

// Shown for a moment at the bottom left.
class ShortProgressBar : public QProgressBar
{
    Q_OBJECT

public:
    explicit ShortProgressBar(QWidget* parent);

    // Shows the bar, runs it from 0 to 100 in steps of 5 with a millisecond at each, and hides it.
    void run();
};

// A caption over a bar.
class CaptionedProgress : public QFrame
{
    Q_OBJECT

public:
    CaptionedProgress(const QString& caption, QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override;

    QLabel* Label1;
    QProgressBar* m_bar;
};

// "Saving the shop".
class SaveFrame : public CaptionedProgress
{
    Q_OBJECT

public:
    explicit SaveFrame(QWidget* parent);

    // Comes to the front at 0. Pending events run.
    void begin();
    // Runs the bar from 0 to 100 with 3 milliseconds at each step, in which pending events run, and hides the frame.
    void finish();
};

// "Importing products".
class ImportFrame : public CaptionedProgress
{
    Q_OBJECT

public:
    explicit ImportFrame(QWidget* parent);

    // Comes to the front, if it is not there yet, and shows how many percent are done.
    void report(int percent);
};
