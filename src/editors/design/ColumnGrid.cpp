#include "editors/design/ColumnGrid.h"

#include <QEvent>

#include <algorithm>

namespace {

constexpr int columnGap = 16; // pixels

} // namespace

ColumnGrid::ColumnGrid(int mostColumns, int rowGap, QWidget* parent)
    : QWidget(parent), m_mostColumns(mostColumns), m_rowGap(rowGap)
{
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Minimum);
}

void ColumnGrid::add(QWidget* widget)
{
    widget->setParent(this);
    m_widgets.push_back(widget);
    updateGeometry();
}

QSize ColumnGrid::minimumSizeHint() const
{
    return {cell().width(), sizeOf(m_mostColumns).height()};
}

QSize ColumnGrid::sizeHint() const
{
    return sizeOf(m_mostColumns);
}

int ColumnGrid::heightForWidth(int width) const
{
    return sizeOf(fittingColumns(width)).height();
}

bool ColumnGrid::event(QEvent* event)
{
    // One of the widgets wants another size, or has been hidden.
    if (event->type() == QEvent::LayoutRequest) {
        updateGeometry();
        arrange();
    }
    return QWidget::event(event);
}

void ColumnGrid::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    arrange();
}

QSize ColumnGrid::cell() const
{
    QSize largest(0, 0);
    for (const QWidget* widget : m_widgets) {
        largest = largest.expandedTo(widget->sizeHint());
    }
    return largest;
}

int ColumnGrid::fittingColumns(int width) const
{
    return std::clamp((width + columnGap) / (cell().width() + columnGap), 1, m_mostColumns);
}

QSize ColumnGrid::sizeOf(int columns) const
{
    const int count = static_cast<int>(m_widgets.size());
    const int rows = (count + columns - 1) / columns;
    const QSize one = cell();
    return {std::max(0, columns * (one.width() + columnGap) - columnGap),
            std::max(0, rows * (one.height() + m_rowGap) - m_rowGap)};
}

void ColumnGrid::arrange()
{
    const int columns = fittingColumns(width());
    const int height = cell().height();
    // The last column ends at the right edge, whatever remains of the division.
    const auto left = [&](int column) { return column * (width() + columnGap) / columns; };
    for (std::size_t i = 0; i < m_widgets.size(); ++i) {
        const int column = static_cast<int>(i) % columns;
        const int row = static_cast<int>(i) / columns;
        m_widgets[i]->setGeometry(left(column), row * (height + m_rowGap), left(column + 1) - columnGap - left(column),
                                  height);
    }
}
