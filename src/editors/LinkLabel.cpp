#include "editors/LinkLabel.h"

#include "look/Measures.h"

#include <QKeyEvent>
#include <QPainter>
#include <QStyleOptionFocusRect>

namespace {

// Pixels beside the text, room for the focus ring.
constexpr int sideMargin = 3;

} // namespace

LinkLabel::LinkLabel(const char* name, const QString& text, QWidget* parent) : QAbstractButton(parent)
{
    setObjectName(QLatin1String(name));
    setText(text);
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::PointingHandCursor);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize LinkLabel::sizeHint() const
{
    const int words = fontMetrics().size(Qt::TextSingleLine, text()).width();
    return {std::max(words + 2 * sideMargin, Measure::Target), rowHeight(fontMetrics())};
}

void LinkLabel::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    QFont underlined = font();
    underlined.setUnderline(isEnabled());
    painter.setFont(underlined);
    painter.setPen(isEnabled() ? palette().color(QPalette::Link)
                               : palette().color(QPalette::Disabled, QPalette::WindowText));
    painter.drawText(rect().adjusted(sideMargin, 0, -sideMargin, 0),
                     Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, text());
    if (hasFocus()) {
        QStyleOptionFocusRect option;
        option.initFrom(this);
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
    }
}

void LinkLabel::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        click();
        return;
    }
    QAbstractButton::keyPressEvent(event);
}
