// All colours of the window, each under the word that says what it is for, for the light and for the dark look. This is
// the one table of them; docs/look.md shows it to people. A few stand outside of the two looks and are the same in
// both.
#pragma once

#include <QColor>

#include <span>

class QPalette;

enum class Scheme { Light, Dark };

enum class Tone {
    // Surfaces
    Ground,
    Chrome,
    Field,
    FieldOff,
    Header,
    Button,
    Soft,
    Hover,
    Pressed,
    // Texts
    Text,
    Muted,
    Placeholder,
    Off,
    Link,
    Error,
    // Lines and the accent
    Line,
    Edge,
    EdgeOff,
    ButtonLine,
    Accent,
    OnAccent,
    SoftLine,
    // The tree's shadow
    ShadowWhite,
    ShadowGray,
    ShadowDarkGray,
    // The tree
    TreeGround,
    TreeHover,
    TreeSelected,
    TreeText,
    TreeThumb,
    FindLine,
    // The date fields
    DateInUse,
    DateText,
    DatePlaceholder,
    DateOff,
    DateOffText,
};

struct ToneRow
{
    Tone tone;
    const char* name; // as docs/look.md spells it
    QRgb light;
    QRgb dark;
};

// In the order of the enumeration.
std::span<const ToneRow> toneTable();

QColor toneIn(Scheme scheme, Tone tone);

// The look that a palette belongs to: ours, or the desktop's own.
Scheme schemeOf(const QPalette& palette);
// The look that the program shows, which the application's palette tells.
Scheme currentScheme();
// The colour in that look.
QColor tone(Tone tone);
