#include "editors/catalogue/GridPictures.h"

#include "look/Measures.h"
#include "look/Paint.h"
#include "look/Tones.h"

#include <QIcon>
#include <QPixmapCache>
#include <QStyle>
#include <QStyledItemDelegate>

using namespace Qt::StringLiterals;

// A static library's resources must be registered by hand, in a function outside all namespaces.
static void takePictures()
{
    Q_INIT_RESOURCE(catalogue);
}

namespace {

constexpr int pictureSize = 18; // pixels

class GridDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        QStyledItemDelegate::paint(painter, option, index);
        if (const auto picture = index.data(Qt::DecorationRole).value<QPixmap>(); !picture.isNull()) {
            const QStyle& style = *option.widget->style();
            const bool isOn = option.state.testFlag(QStyle::State_Enabled);
            style.drawItemPixmap(painter, option.rect, Qt::AlignCenter,
                                 isOn ? picture : style.generatedIconPixmap(QIcon::Disabled, picture, &option));
        }
        if (index.data(MarkedRole).toBool()) {
            // Inside the ring of the focus, so that both show.
            const int inset = option.state.testFlag(QStyle::State_HasFocus) ? Measure::Ring : 0;
            const QRect room = option.rect.adjusted(inset, inset, -inset, -inset - Measure::Hairline);
            drawRing(*painter, room, 0, Measure::Ring, tone(Tone::Error));
        }
    }

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        // The style would put the picture beside a text, and take its pixels for those of the window.
        option->features.setFlag(QStyleOptionViewItem::HasDecoration, false);
        option->icon = QIcon();
        if (!option->state.testFlag(QStyle::State_Enabled)) {
            const QBrush grey = option->widget->palette().brush(QPalette::Disabled, QPalette::Text);
            option->palette.setBrush(QPalette::Disabled, QPalette::Text, grey);
            option->font.setUnderline(false); // as any link that is off
        }
    }
};

} // namespace

// The application's cache of pixmaps holds the two.
QPixmap usePicture(bool isChecked, const QWidget& grid)
{
    const QString file = isChecked ? u":/catalogue/check_on.svg"_s : u":/catalogue/check_off.svg"_s;
    const QString key = u"CustomGrid%1@%2"_s.arg(file).arg(grid.devicePixelRatioF());
    QPixmap picture;
    if (!QPixmapCache::find(key, &picture)) {
        takePictures();
        picture = QIcon(file).pixmap(QSize(pictureSize, pictureSize), grid.devicePixelRatioF());
        QPixmapCache::insert(key, picture);
    }
    return picture;
}

QAbstractItemDelegate* newGridDelegate(QObject* parent)
{
    return new GridDelegate(parent);
}
