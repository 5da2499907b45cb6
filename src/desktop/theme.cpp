#include "desktop/theme.h"

#include "desktop/program_style.h"

#include <QApplication>
#include <QFontDatabase>
#include <QPalette>

namespace tav {
namespace {

struct Colours {
    QColor Window, Base, Alternate, Text, Faint, Button, Border, Accent, OnAccent, Refusal,
        OnRefusal;
};

const Colours kLight = {
    .Window = QColor(0xf4, 0xf5, 0xf3),
    .Base = QColor(0xff, 0xff, 0xff),
    .Alternate = QColor(0xf7, 0xf9, 0xf6),
    .Text = QColor(0x1f, 0x29, 0x24),
    .Faint = QColor(0x8a, 0x93, 0x8d),
    .Button = QColor(0xfb, 0xfc, 0xfa),
    .Border = QColor(0xc5, 0xcc, 0xc6),
    .Accent = QColor(0x2e, 0x7d, 0x4f),
    .OnAccent = QColor(0xff, 0xff, 0xff),
    .Refusal = QColor(0xfd, 0xec, 0xea),
    .OnRefusal = QColor(0x8c, 0x1d, 0x18),
};

const Colours kDark = {
    .Window = QColor(0x3a, 0x40, 0x3d),
    .Base = QColor(0x1f, 0x23, 0x21),
    .Alternate = QColor(0x25, 0x2a, 0x27),
    .Text = QColor(0xe6, 0xea, 0xe7),
    .Faint = QColor(0x93, 0x9c, 0x96),
    .Button = QColor(0x46, 0x4d, 0x49),
    .Border = QColor(0x5a, 0x62, 0x5d),
    .Accent = QColor(0x4c, 0xa8, 0x73),
    .OnAccent = QColor(0x0c, 0x14, 0x10),
    .Refusal = QColor(0x4a, 0x21, 0x1e),
    .OnRefusal = QColor(0xff, 0xc9, 0xc4),
};

bool IsDark(const QPalette& desktop) {
    // A desktop that is told its theme by name only says so in the variable that its own programs
    // go by.
    const QString theme = qEnvironmentVariable("GTK_THEME").toLower();
    if (!theme.isEmpty()) return theme.endsWith(QLatin1String("dark"));
    return desktop.color(QPalette::Window).lightness() <
           desktop.color(QPalette::WindowText).lightness();
}

QPalette PaletteOf(const Colours& colours) {
    QPalette palette(colours.Text, colours.Button, colours.Button.lighter(115),
                     colours.Border.darker(120), colours.Border, colours.Text, colours.OnAccent,
                     colours.Base, colours.Window);
    palette.setColor(QPalette::AlternateBase, colours.Alternate);
    palette.setColor(QPalette::ButtonText, colours.Text);
    palette.setColor(QPalette::PlaceholderText, colours.Text);
    palette.setColor(QPalette::Highlight, colours.Accent);
    palette.setColor(QPalette::HighlightedText, colours.OnAccent);
    palette.setColor(QPalette::Link, colours.Accent);
    palette.setColor(QPalette::ToolTipBase, colours.Base);
    palette.setColor(QPalette::ToolTipText, colours.Text);
    for (const auto role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::PlaceholderText}) {
        palette.setColor(QPalette::Disabled, role, colours.Faint);
    }
    palette.setColor(QPalette::Disabled, QPalette::Base, colours.Window);
    return palette;
}

// Narrow letters with clear figures: the screens were laid out for such.
QFont ProgramFont() {
    QFont font(QStringList{QStringLiteral("Segoe UI"), QStringLiteral("Open Sans"),
                           QStringLiteral("Liberation Sans"), QStringLiteral("Arial")});
    font.setPixelSize(12);
    return font;
}

const Colours* inUse = &kLight;

}  // namespace

void ApplyTheme() {
    inUse = IsDark(QApplication::palette()) ? &kDark : &kLight;
    QApplication::setStyle(new ProgramStyle);
    QApplication::setPalette(PaletteOf(*inUse));
    QApplication::setFont(ProgramFont());
}

QPalette RefusalPalette() {
    QPalette palette = QApplication::palette();
    palette.setColor(QPalette::Window, inUse->Refusal);
    palette.setColor(QPalette::WindowText, inUse->OnRefusal);
    return palette;
}

}  // namespace tav
