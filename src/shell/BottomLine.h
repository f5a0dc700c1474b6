// The line at the window's foot: the maker's notice at its left, at its right what happened last and, while the preview
// is on the screen, three buttons for the width of its page. The layout owns it and says what is shown.
#pragma once

#include "base/Guarded.h"
#include "look/LinedFrame.h"
#include "look/WordLabel.h"

class BottomLine : public LinedFrame
{
    Q_OBJECT

public:
    // Starts with no event, and with the full width chosen. The error handler outlives it.
    BottomLine(FatalErrorHandler& errors, QWidget* parent);

    QLabel* notice() const { return m_notice; }

    // What happened last. It stays until the next one.
    void tell(const QString& event);
    // The same for work that stopped.
    void tellFailure(const QString& event);

    void showPageWidths(bool flag);

Q_SIGNALS:
    // In pixels of the window; 0 for all the room there is.
    void pageWidthChosen(int width);

protected:
    void changeEvent(QEvent* event) override;

private:
    void makePageWidths(FatalErrorHandler& errors);
    void setLineHeight();

    WordLabel* m_notice;
    WordLabel* m_event;
    QWidget* m_pageWidths;
};
