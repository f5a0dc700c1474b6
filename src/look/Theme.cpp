#include "look/Theme.h"

#include "look/DesktopScheme.h"
#include "look/ShopStyle.h"

#include <QApplication>
#include <QTimer>
#include <QToolTip>

namespace {

struct RoleRow
{
    QPalette::ColorRole role;
    Tone tone;
    Tone off; // of what is not in use
};

// A role that is left out would keep a colour of Qt's own: the disabled Base white, the placeholder half of black.
constexpr RoleRow roles[] = {
    {QPalette::Window, Tone::Ground, Tone::Ground},
    {QPalette::WindowText, Tone::Text, Tone::Off},
    {QPalette::Base, Tone::Field, Tone::FieldOff},
    {QPalette::AlternateBase, Tone::Hover, Tone::FieldOff},
    {QPalette::Text, Tone::Text, Tone::Off},
    {QPalette::PlaceholderText, Tone::Placeholder, Tone::Off},
    {QPalette::Button, Tone::Button, Tone::Ground},
    {QPalette::ButtonText, Tone::Text, Tone::Off},
    {QPalette::BrightText, Tone::Error, Tone::Off},
    {QPalette::Highlight, Tone::Accent, Tone::FieldOff},
    {QPalette::HighlightedText, Tone::OnAccent, Tone::Off},
    {QPalette::Link, Tone::Link, Tone::Off},
    {QPalette::LinkVisited, Tone::Link, Tone::Off},
    {QPalette::ToolTipBase, Tone::Field, Tone::Field},
    {QPalette::ToolTipText, Tone::Text, Tone::Text},
    {QPalette::Light, Tone::Chrome, Tone::Chrome},
    {QPalette::Midlight, Tone::Hover, Tone::Hover},
    {QPalette::Mid, Tone::Line, Tone::Line},
    {QPalette::Dark, Tone::Edge, Tone::EdgeOff},
    {QPalette::Shadow, Tone::Edge, Tone::EdgeOff},
};

} // namespace

QPalette paletteOf(Scheme scheme)
{
    QPalette palette;
    for (const RoleRow& row : roles) {
        palette.setColor(QPalette::Active, row.role, toneIn(scheme, row.tone));
        palette.setColor(QPalette::Inactive, row.role, toneIn(scheme, row.tone));
        palette.setColor(QPalette::Disabled, row.role, toneIn(scheme, row.off));
    }
    return palette;
}

void applyTheme(QApplication& application)
{
    const Scheme desktop = schemeOf(application.palette());
    QApplication::setStyle(newShopStyle());
    showScheme(desktop);
}

void showScheme(Scheme scheme)
{
    const QPalette palette = paletteOf(scheme);
    QApplication::setPalette(palette);
    QToolTip::setPalette(palette);
}

void followDesktop(QApplication& application)
{
    auto* desktop = new DesktopScheme(&application);
    QObject::connect(desktop, &DesktopScheme::told, &application, [](Scheme scheme) {
        if (scheme != currentScheme()) {
            showScheme(scheme);
        }
    });
    QTimer::singleShot(0, desktop, [desktop] { desktop->follow(QDBusConnection::sessionBus()); });
}
