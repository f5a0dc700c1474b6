// Shows a picture file, scaled down to the place there is, or says that there is none or that it cannot be shown. The
// file is read when it is shown; a picture that is too large is not decoded. Picture files can be dropped onto a box;
// what becomes of them is its owner's matter.
#pragma once

#include "design/ImageSize.h"

#include <QFrame>
#include <QImage>

class PictureBox : public QFrame
{
    Q_OBJECT

public:
    // A picture with more pixels is not decoded: that would take seconds.
    static constexpr qint64 MostPixels = 100'000'000;

    // What stands in the place of a picture that cannot be read.
    PictureBox(const QString& invalidText, QWidget* parent = nullptr);

    // A file that cannot be read leaves the box without a picture.
    void showFile(const QString& path);
    void clear();

    bool hasPicture() const { return m_size.width != 0; }
    // The true size of the picture in pixels; 0 by 0 without one.
    ImageSize pictureSize() const { return m_size; }
    // What stands in the place of the picture; empty when the picture itself does.
    QString message() const { return m_message; }

    // What a picture stands on; white until it is set.
    void setBackground(const QColor& colour);

    QSize sizeHint() const override { return {144, 144}; }

Q_SIGNALS:
    // Files were dropped that can be pictures. The signal comes from the event loop: who dragged them does not wait.
    void filesDropped(const QStringList& files);

protected:
    void paintEvent(QPaintEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void setMessage(const QString& message);

    QString m_invalidText;
    QString m_message;
    QImage m_image;                  // scaled down while it was read
    QColor m_background = Qt::white; // pictures are made for pages, which are light as a rule
    ImageSize m_size;
};
