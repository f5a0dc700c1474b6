#include "editors/design/pickers/PictureBox.h"

#include "base/RuntimeError.h"
#include "editors/design/pickers/PictureFiles.h"
#include "look/Measures.h"
#include "look/Paint.h"
#include "look/Tones.h"

#include <QDragEnterEvent>
#include <QImageReader>
#include <QPainter>

using namespace Qt::StringLiterals;

namespace {

constexpr int longestSide = 1200; // pixels that are kept of a picture

} // namespace

PictureBox::PictureBox(const QString& invalidText, QWidget* parent) : QFrame(parent), m_invalidText(invalidText)
{
    setFrameShape(QFrame::StyledPanel);
    setMinimumSize(120, 100);
    setAcceptDrops(true);
    clear();
}

void PictureBox::showFile(const QString& path)
{
    clear();
    QImageReader reader(path);
    reader.setDecideFormatFromContent(true); // what a file is tells its content, whatever its name ends in
    reader.setAutoTransform(false);          // the page's size is that of the file
    const QSize size = reader.size();
    if (!size.isValid() || size.isEmpty()) {
        setMessage(m_invalidText);
        return;
    }
    try {
        m_size = narrowedImageSize(size.width(), size.height());
    } catch (const RuntimeError&) {
        setMessage(m_invalidText); // no slot can hold its size
        return;
    }
    if (static_cast<qint64>(size.width()) * size.height() > MostPixels) {
        setMessage(u"%1 x %2 pixels: too large to show"_s.arg(size.width()).arg(size.height()));
        return;
    }
    if (size.width() > longestSide || size.height() > longestSide) {
        reader.setScaledSize(size.scaled(longestSide, longestSide, Qt::KeepAspectRatio).expandedTo(QSize(1, 1)));
    }
    m_image = reader.read();
    if (m_image.isNull()) {
        m_size = {};
        setMessage(m_invalidText);
        return;
    }
    setMessage(QString());
}

void PictureBox::clear()
{
    m_size = {};
    m_image = QImage();
    setMessage(u"No picture"_s);
}

void PictureBox::setMessage(const QString& message)
{
    m_message = message;
    setAccessibleDescription(message);
    update();
}

void PictureBox::setBackground(const QColor& colour)
{
    m_background = colour;
    update();
}

void PictureBox::paintEvent(QPaintEvent* event)
{
    QPainter painter(this);
    // Only a picture stands on a page's ground: an empty box would be a white spot in the dark look.
    fillRounded(painter, rect(), Measure::Radius, m_image.isNull() ? tone(Tone::Field) : m_background);
    const QRect place = contentsRect().adjusted(6, 6, -6, -6);
    if (m_image.isNull()) {
        painter.setPen(tone(Tone::Muted));
        painter.drawText(place, Qt::AlignCenter | Qt::TextWordWrap, m_message);
    } else {
        QSize shown = QSize(m_size.width, m_size.height);
        if (shown.width() > place.width() || shown.height() > place.height()) {
            shown.scale(place.size(), Qt::KeepAspectRatio);
        }
        QRect target(QPoint(), shown);
        target.moveCenter(place.center());
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawImage(target, m_image);
    }
    painter.end();
    QFrame::paintEvent(event);
}

void PictureBox::dragEnterEvent(QDragEnterEvent* event)
{
    acceptPictures(*event);
}

void PictureBox::dropEvent(QDropEvent* event)
{
    takePictures(*event, this, [this](const QStringList& files) { Q_EMIT filesDropped(files); });
}
