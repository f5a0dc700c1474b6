#include "look/Tones.h"

#include "look/TreeLook.h"

#include <QGuiApplication>
#include <QPalette>

#include <array>

namespace {

constexpr QRgb rgb(QRgb hex)
{
    return 0xff000000U | hex;
}

constexpr ToneRow both(Tone tone, const char* name, QRgb colour)
{
    return {tone, name, rgb(colour), rgb(colour)};
}

constexpr std::array table = {
    ToneRow{Tone::Ground, "ground", rgb(0xF4F5F8), rgb(0x1D212A)},
    ToneRow{Tone::Chrome, "chrome", rgb(0xFFFFFF), rgb(0x252A35)},
    ToneRow{Tone::Field, "field", rgb(0xFFFFFF), rgb(0x15181F)},
    ToneRow{Tone::FieldOff, "field-off", rgb(0xE9ECF1), rgb(0x232832)},
    ToneRow{Tone::Header, "header", rgb(0xEBEEF4), rgb(0x2A303C)},
    ToneRow{Tone::Button, "button", rgb(0xFFFFFF), rgb(0x2A303C)},
    ToneRow{Tone::Soft, "soft", rgb(0xE2E8F4), rgb(0x2D3A56)},
    ToneRow{Tone::Hover, "hover", rgb(0xEBEFF6), rgb(0x323A49)},
    ToneRow{Tone::Pressed, "pressed", rgb(0xD3DCEE), rgb(0x384869)},

    ToneRow{Tone::Text, "text", rgb(0x1F2533), rgb(0xE7EAF1)},
    ToneRow{Tone::Muted, "muted", rgb(0x566074), rgb(0xA9B1C2)},
    ToneRow{Tone::Placeholder, "placeholder", rgb(0x687186), rgb(0x8C95A9)},
    ToneRow{Tone::Off, "off", rgb(0x7C8598), rgb(0x7D869A)},
    ToneRow{Tone::Link, "link", rgb(0x2E549E), rgb(0x9AB8F2)},
    ToneRow{Tone::Error, "error", rgb(0xB3261E), rgb(0xF2A19B)},

    ToneRow{Tone::Line, "line", rgb(0xDCE0E8), rgb(0x363D4B)},
    ToneRow{Tone::Edge, "edge", rgb(0x828B9F), rgb(0x6B768E)},
    ToneRow{Tone::EdgeOff, "edge-off", rgb(0xCDD2DC), rgb(0x3A4150)},
    ToneRow{Tone::ButtonLine, "button-line", rgb(0xB4BBC9), rgb(0x4A5366)},
    ToneRow{Tone::Accent, "accent", rgb(0x485D88), rgb(0x8EABE6)},
    ToneRow{Tone::OnAccent, "on-accent", rgb(0xFFFFFF), rgb(0x15181F)},
    ToneRow{Tone::SoftLine, "soft-line", rgb(0xA9B8D8), rgb(0x566C9C)},

    ToneRow{Tone::ShadowWhite, "shadow-white", rgb(0xFFFFFF), rgb(0x39404E)},
    ToneRow{Tone::ShadowGray, "shadow-gray", rgb(0xDDE1E9), rgb(0x14171D)},
    ToneRow{Tone::ShadowDarkGray, "shadow-dark-gray", rgb(0xCBD1DD), rgb(0x0F1116)},

    both(Tone::TreeGround, "tree", TreeColour),
    both(Tone::TreeHover, "tree-hover", 0x54699A),
    both(Tone::TreeSelected, "tree-selected", 0x26324F),
    both(Tone::TreeText, "tree-text", TreeTextColour),
    both(Tone::TreeThumb, "tree-thumb", 0xA9B8D8),
    both(Tone::FindLine, "find-line", 0x35456B),

    both(Tone::DateInUse, "date", 0xFFFFFF),
    both(Tone::DateText, "date-text", 0x1F2533),
    both(Tone::DatePlaceholder, "date-placeholder", 0x687186),
    both(Tone::DateOff, "date-off", 0xC0C0C0),
    both(Tone::DateOffText, "date-off-text", 0x3B4352),
};

} // namespace

std::span<const ToneRow> toneTable()
{
    return table;
}

QColor toneIn(Scheme scheme, Tone tone)
{
    const ToneRow& row = table[static_cast<std::size_t>(tone)];
    return QColor::fromRgb(scheme == Scheme::Dark ? row.dark : row.light);
}

Scheme schemeOf(const QPalette& palette)
{
    return palette.color(QPalette::Window).lightness() < 128 ? Scheme::Dark : Scheme::Light;
}

Scheme currentScheme()
{
    return schemeOf(QGuiApplication::palette());
}

QColor tone(Tone tone)
{
    return toneIn(currentScheme(), tone);
}
