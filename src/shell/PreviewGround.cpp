#include "shell/PreviewGround.h"

#include "look/Tones.h"

#include <QEvent>
#include <QWidget>

PreviewGround::PreviewGround(QWidget* preview) : QObject(preview), m_preview(preview)
{
    m_preview->setAutoFillBackground(true);
    m_preview->installEventFilter(this);
    colour();
}

bool PreviewGround::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::PaletteChange) {
        colour();
    }
    return QObject::eventFilter(watched, event);
}

void PreviewGround::colour()
{
    QPalette colours = m_preview->palette();
    if (colours.color(QPalette::Window) != tone(Tone::Header)) { // which is a change of the palette, too
        colours.setColor(QPalette::Window, tone(Tone::Header));
        m_preview->setPalette(colours);
    }
}
