// Paints the bars: of scrolling, of the splitter, of progress, and of tabs. The style calls these.
#pragma once

#include <QRect>
#include <QStyle>

class QPainter;
class QStyleOption;
class QStyleOptionProgressBar;
class QStyleOptionSlider;
class QStyleOptionTab;

// A thumb and nothing else: no arrows, no groove.
void paintScrollBar(const QStyleOptionSlider& option, QPainter& painter, const QStyle& style, const QWidget* widget);
// Where the parts of a scroll bar stand in it.
QRect scrollBarPart(const QStyleOptionSlider& option, QStyle::SubControl part);

void paintSplitter(const QStyleOption& option, QPainter& painter);
void paintProgress(const QStyleOptionProgressBar& option, QPainter& painter);

void paintTab(const QStyleOptionTab& option, QPainter& painter);
// The words of a tab: those of the open one are bold.
void paintTabLabel(const QStyleOptionTab& option, QPainter& painter, const QStyle& style);
QSize tabSize(const QStyleOptionTab& option);
// The line that the tabs stand on.
void paintTabLine(const QStyleOption& option, QPainter& painter);
