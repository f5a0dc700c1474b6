// Paints a picture of the pickers as a cell: its thumbnail and its name below. It owns the thumbnails that were made
// and tells which ones are missing while it paints, so that only those on the screen are ever made.
#pragma once

#include "editors/design/pickers/Thumbnail.h"

#include <QCache>
#include <QStyledItemDelegate>

class ThumbnailDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    explicit ThumbnailDelegate(QObject* parent);

    // Where the thumbnail of a cell stands, at most.
    static QSize thumbnailRoom() { return {100, 76}; }

    bool hasThumbnail(const QString& name) const { return m_thumbnails.contains(name); }
    void setThumbnail(const QString& name, const Thumbnail& thumbnail);
    void dropThumbnail(const QString& name) { m_thumbnails.remove(name); }

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    // The whole name of a cell that has no room for it.
    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override;

Q_SIGNALS:
    // A cell was painted without its thumbnail.
    void thumbnailMissed(const QModelIndex& index) const;

private:
    QCache<QString, Thumbnail> m_thumbnails; // by name; the cost is kilobytes
};
