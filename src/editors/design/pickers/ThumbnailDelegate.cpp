#include "editors/design/pickers/ThumbnailDelegate.h"

#include "look/Measures.h"
#include "look/Paint.h"
#include "look/Tones.h"
#include "look/Type.h"

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int leastCell = 112;
constexpr int mostKilobytes = 64 * 1024;
constexpr double offOpacity = 0.4;

// The part of the cell that the thumbnail stands in.
QRect thumbnailPlace(const QRect& cell)
{
    const QSize room = ThumbnailDelegate::thumbnailRoom();
    return {cell.left() + (cell.width() - room.width()) / 2, cell.top() + Measure::Gap, room.width(), room.height()};
}

QRect namePlace(const QRect& cell)
{
    return {QPoint(cell.left() + Measure::Tight, thumbnailPlace(cell).bottom() + 1),
            QPoint(cell.right() - Measure::Tight, cell.bottom())};
}

QString shortened(const QString& name, const QRect& cell)
{
    return QFontMetrics(smallFont()).elidedText(name, Qt::ElideMiddle, namePlace(cell).width());
}

void paintPicture(QPainter& painter, const QRect& place, const QPixmap& picture)
{
    QRectF target(QPointF(), picture.deviceIndependentSize());
    target.moveCenter(QRectF(place).center());
    target.moveTopLeft(target.topLeft().toPoint());
    painter.fillRect(target, Qt::white); // pictures are made for pages, which are light as a rule
    painter.drawPixmap(target.topLeft(), picture);
}

// What stands for a picture that is not shown: a sheet with a hill, and its size where that is known.
void paintPlainIcon(QPainter& painter, const QRect& place, const QSize& size)
{
    constexpr int width = 44;
    constexpr int height = 34;
    const QRect sheet(place.center().x() - width / 2, place.top() + Measure::Gap, width, height);
    drawRing(painter, sheet, Measure::Radius, Measure::Ring, tone(Tone::Edge));
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(tone(Tone::Edge), Measure::Ring, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPolyline(
        QPolygonF({{7, 26}, {17, 14}, {24, 22}, {29, 17}, {37, 26}}).translated(QPointF(sheet.topLeft())));
    painter.restore();
    const QString words = size.isEmpty() ? u"Cannot be shown"_s : u"%1 × %2"_s.arg(size.width()).arg(size.height());
    painter.setPen(tone(Tone::Muted));
    painter.drawText(QRect(QPoint(place.left(), sheet.bottom() + Measure::Tight), place.bottomRight()),
                     Qt::AlignHCenter | Qt::AlignTop, words);
}

} // namespace

ThumbnailDelegate::ThumbnailDelegate(QObject* parent) : QStyledItemDelegate(parent), m_thumbnails(mostKilobytes) {}

void ThumbnailDelegate::setThumbnail(const QString& name, const Thumbnail& thumbnail)
{
    const QSize pixels = thumbnail.picture.size();
    m_thumbnails.insert(name, new Thumbnail(thumbnail), 1 + pixels.width() * pixels.height() * 4 / 1024);
}

void ThumbnailDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    const QRect& cell = option.rect;
    const bool isOn = option.state.testFlag(QStyle::State_Enabled);
    const bool isChosen = option.state.testFlag(QStyle::State_Selected);
    if (isChosen) {
        fillRounded(*painter, cell, Measure::Radius, tone(isOn ? Tone::Soft : Tone::FieldOff));
        drawRing(*painter, cell, Measure::Radius, Measure::Ring, tone(isOn ? Tone::Accent : Tone::EdgeOff));
    } else if (isOn && option.state.testFlag(QStyle::State_MouseOver)) {
        fillRounded(*painter, cell, Measure::Radius, tone(Tone::Hover));
    }

    painter->save();
    painter->setFont(smallFont());
    const QString name = index.data().toString();
    if (const Thumbnail* thumbnail = m_thumbnails.object(name)) {
        painter->setOpacity(isOn ? 1 : offOpacity);
        if (thumbnail->picture.isNull()) {
            paintPlainIcon(*painter, thumbnailPlace(cell), thumbnail->size);
        } else {
            paintPicture(*painter, thumbnailPlace(cell), thumbnail->picture);
        }
        painter->setOpacity(1);
    } else {
        Q_EMIT thumbnailMissed(index);
    }
    painter->setPen(tone(isOn ? Tone::Text : Tone::Off));
    painter->drawText(namePlace(cell), Qt::AlignCenter, shortened(name, cell));
    painter->restore();
}

QSize ThumbnailDelegate::sizeHint(const QStyleOptionViewItem& /*option*/, const QModelIndex& /*index*/) const
{
    const int names = QFontMetrics(smallFont()).height() + 2 * Measure::Tight;
    return {leastCell, std::max(leastCell, Measure::Gap + thumbnailRoom().height() + names)};
}

bool ThumbnailDelegate::helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                                  const QModelIndex& index)
{
    const QString name = index.data().toString();
    if (event->type() != QEvent::ToolTip || shortened(name, option.rect) == name) {
        return QStyledItemDelegate::helpEvent(event, view, option, index);
    }
    QToolTip::showText(event->globalPos(), name, view);
    return true;
}
