// The pictures of the shop, to be looked at: a list whose entries are their names and whose cells show thumbnails. A
// thumbnail is made when its cell comes into view, one in a turn of the event loop, so that keys and the wheel never
// wait for more than one. PicturesList owns it.
#pragma once

#include <QListWidget>
#include <QTimer>

class ThumbnailDelegate;

class PictureGrid : public QListWidget
{
    Q_OBJECT

public:
    // The folder of the pictures, with a separator at its end.
    PictureGrid(const QString& folder, QWidget* parent);

    // Hides the names that do not hold the text, whatever its case. The entries, their order and the chosen one stay.
    void filter(const QString& text);
    // The file of that name is another now.
    void refresh(const QString& name);

    // How many thumbnails were made so far.
    int thumbnailsMade() const { return m_made; }

Q_SIGNALS:
    // Files were dropped that can be pictures. The signal comes from the event loop: who dragged them does not wait.
    void filesDropped(const QStringList& files);

protected:
    void paintEvent(QPaintEvent* event) override;
    void showEvent(QShowEvent* event) override;
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    void keyboardSearch(const QString& search) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void makeNextThumbnail();
    QModelIndex firstShown() const;
    QModelIndex lastShown() const;

    QString m_folder;
    ThumbnailDelegate* m_delegate;
    QTimer m_turn;
    QList<QPersistentModelIndex> m_missing; // painted without a thumbnail, in the order of painting
    bool m_isFiltered = false;
    int m_made = 0;
};
