#include "editors/LinkLabel.h"

#include <QKeyEvent>
#include <QPainter>
#include <QStyleOptionFocusRect>

namespace {

// Pixels around the text, room for the focus frame. At the sides hardly any, so that a link stands in line with the
// texts above it.
constexpr int sideMargin = 1;
constexpr int margin = 3;

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
    return fontMetrics().size(Qt::TextSingleLine, text()) + QSize(2 * sideMargin, 2 * margin);
}

void LinkLabel::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    QFont underlined = font();
    underlined.setUnderline(isEnabled());
    painter.setFont(underlined);
    painter.setPen(isEnabled() ? palette().color(QPalette::Link)
                               : palette().color(QPalette::Disabled, QPalette::WindowText));
    painter.drawText(rect(), Qt::AlignCenter | Qt::TextSingleLine, text());
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
