#include "editors/design/pickers/PictureGrid.h"

#include "editors/design/pickers/PictureFiles.h"
#include "editors/design/pickers/ThumbnailDelegate.h"
#include "look/Measures.h"
#include "look/Tones.h"

#include <QPaintEvent>
#include <QPainter>

using namespace Qt::StringLiterals;

PictureGrid::PictureGrid(const QString& folder, QWidget* parent)
    : QListWidget(parent), m_folder(folder), m_delegate(new ThumbnailDelegate(this))
{
    setItemDelegate(m_delegate);
    setFlow(QListView::LeftToRight);
    setWrapping(true);
    setResizeMode(QListView::Adjust);
    setUniformItemSizes(true);
    setSpacing(Measure::Tight / 2); // on either side of a cell
    setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn); // the columns stay where they are
    viewport()->setAcceptDrops(true);

    m_turn.setSingleShot(true);
    connect(&m_turn, &QTimer::timeout, this, &PictureGrid::makeNextThumbnail);
    connect(m_delegate, &ThumbnailDelegate::thumbnailMissed, this, [this](const QModelIndex& index) {
        m_missing.append(index);
        if (!m_turn.isActive()) {
            m_turn.start(0);
        }
    });
}

// Thumbnails ----------------------------------------------------------------------------------------------------------

void PictureGrid::makeNextThumbnail()
{
    // What has been scrolled out of sight meanwhile, or filtered out, is not made.
    while (!m_missing.isEmpty()) {
        const QPersistentModelIndex index = m_missing.takeFirst();
        const QString name = index.data().toString();
        if (m_delegate->hasThumbnail(name) || !isVisible() || isIndexHidden(index) ||
            !visualRect(index).intersects(viewport()->rect())) {
            continue;
        }
        m_delegate->setThumbnail(
            name, readThumbnail(m_folder + name, ThumbnailDelegate::thumbnailRoom(), devicePixelRatioF()));
        ++m_made;
        update(index);
        break;
    }
    if (!m_missing.isEmpty()) {
        m_turn.start(0);
    }
}

void PictureGrid::refresh(const QString& name)
{
    m_delegate->dropThumbnail(name);
    viewport()->update();
}

void PictureGrid::paintEvent(QPaintEvent* event)
{
    QListWidget::paintEvent(event);
    if (firstShown().isValid()) {
        return;
    }
    QPainter painter(viewport());
    painter.setPen(tone(isEnabled() ? Tone::Muted : Tone::Off));
    painter.drawText(viewport()->rect().adjusted(Measure::Section, 0, -Measure::Section, 0),
                     Qt::AlignCenter | Qt::TextWordWrap,
                     count() == 0 ? u"There are no pictures yet. Add one, or drop picture files here."_s
                                  : u"No picture has such a name."_s);
}

void PictureGrid::showEvent(QShowEvent* event)
{
    QListWidget::showEvent(event);
    if (currentIndex().isValid()) {
        scrollTo(currentIndex(), PositionAtCenter); // its place is known now
    }
}

// The filter ----------------------------------------------------------------------------------------------------------

void PictureGrid::filter(const QString& text)
{
    m_isFiltered = !text.isEmpty();
    for (int row = 0; row < count(); ++row) {
        setRowHidden(row, m_isFiltered && !item(row)->text().contains(text, Qt::CaseInsensitive));
    }
    viewport()->update();
    if (currentItem() && !currentItem()->isHidden()) {
        scrollToItem(currentItem());
    }
}

QModelIndex PictureGrid::firstShown() const
{
    int row = 0;
    while (row < count() && isRowHidden(row)) {
        ++row;
    }
    return model()->index(row, 0);
}

QModelIndex PictureGrid::lastShown() const
{
    int row = count() - 1;
    while (row >= 0 && isRowHidden(row)) {
        --row;
    }
    return model()->index(row, 0);
}

QModelIndex PictureGrid::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers)
{
    // A view by itself goes to entries that are hidden: at its ends, and from one that is hidden.
    if (action == MoveHome || (currentIndex().isValid() && isIndexHidden(currentIndex()))) {
        return firstShown();
    }
    return action == MoveEnd ? lastShown() : QListWidget::moveCursor(action, modifiers);
}

void PictureGrid::keyboardSearch(const QString& search)
{
    if (!m_isFiltered) {
        QListWidget::keyboardSearch(search);
        return;
    }
    for (int step = 1; step <= count(); ++step) {
        const int row = (std::max(0, currentRow()) + step) % count();
        if (!isRowHidden(row) && item(row)->text().startsWith(search, Qt::CaseInsensitive)) {
            setCurrentRow(row);
            return;
        }
    }
}

// Drops ---------------------------------------------------------------------------------------------------------------

void PictureGrid::dragEnterEvent(QDragEnterEvent* event)
{
    acceptPictures(*event);
}

void PictureGrid::dragMoveEvent(QDragMoveEvent* event)
{
    acceptPictures(*event);
}

void PictureGrid::dropEvent(QDropEvent* event)
{
    takePictures(*event, this, [this](const QStringList& files) { Q_EMIT filesDropped(files); });
}
