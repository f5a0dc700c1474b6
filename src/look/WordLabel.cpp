#include "look/WordLabel.h"

#include "look/Type.h"

#include <QApplication>
#include <QEvent>

namespace {

QFont fontOf(WordLabel::Kind kind)
{
    switch (kind) {
    case WordLabel::Kind::Title:
        return largeFont();
    case WordLabel::Kind::Heading:
        return boldFont();
    case WordLabel::Kind::Quiet:
        return QApplication::font();
    case WordLabel::Kind::Small:
        return smallFont();
    }
    return {};
}

bool isQuiet(WordLabel::Kind kind)
{
    return kind == WordLabel::Kind::Quiet || kind == WordLabel::Kind::Small;
}

} // namespace

WordLabel::WordLabel(Kind kind, const QString& text, QWidget* parent)
    : QLabel(text, parent), m_kind(kind), m_tone(isQuiet(kind) ? Tone::Muted : Tone::Text)
{
    setTextFormat(Qt::PlainText);
    dress();
}

void WordLabel::setTone(Tone tone)
{
    m_tone = tone;
    dress();
}

bool WordLabel::event(QEvent* event)
{
    if (event->type() == QEvent::ApplicationFontChange || event->type() == QEvent::PaletteChange) {
        dress();
    }
    return QLabel::event(event);
}

void WordLabel::dress()
{
    const QFont letters = fontOf(m_kind);
    if (font() != letters) {
        setFont(letters);
    }
    const QColor colour = tone(m_tone);
    if (palette().color(QPalette::Active, QPalette::WindowText) != colour) { // which is a change of the palette, too
        QPalette colours = palette();
        colours.setColor(QPalette::Active, QPalette::WindowText, colour);
        colours.setColor(QPalette::Inactive, QPalette::WindowText, colour);
        setPalette(colours);
    }
}
