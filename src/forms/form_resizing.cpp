#include "forms/form_resizing.h"

#include "core/platform.h"
#include "core/runtime_error.h"
#include "forms/form_registry.h"
#include "forms/tab_control.h"

#include <vector>

namespace tav {
namespace {

constexpr int kDesignPixelsX = 800;
constexpr int kDesignPixelsY = 600;
constexpr int kDesignUnitsPerPixel = 15;
constexpr int kDesignTabsWidth = 12120;  // of the tab control, which fills its form
constexpr int kDesignTabsHeight = 7380;
constexpr int kMostNumericHeight = 360;

Single ScaleOf(Number clientArea, int unitsPerPixel, int designPixels) {
    const std::int16_t units = ToInteger(unitsPerPixel);
    const std::int16_t pixels = ToInteger((clientArea / units).Value());
    return Number(pixels) / designPixels * (Number(units) / kDesignUnitsPerPixel);
}

// Runs one line of the scaling; a value that the property can't hold leaves it as it was.
template <class Line>
void Try(Line&& line) {
    try {
        line();
    } catch (const RuntimeError&) {
        return;
    }
}

// The next smaller of the sizes in which a screen is set: 8, 10 and 12 points, and 14 on the terms
// of use.
Number SteppedFontSize(Number size, bool onTerms) {
    if (size < 8) return 8;
    if (size > 8 && size < 10) return 8;
    if (size > 10 && size < 12) return 10;
    if (size > 12 && size < 14) return 12;
    if (onTerms) return (size > 14 && size < 16) || size > 16 ? Number(14) : size;
    return size > 14 ? Number(12) : size;
}

// A combo box keeps its height, a picture box its place.
void ScalePlace(Control& control, Single scaleX, Single scaleY) {
    switch (control.Kind()) {
        case ControlKind::PictureBox: break;
        case ControlKind::ComboBox:
            Try([&] { control.Left = control.Left * scaleX; });
            Try([&] { control.Top = control.Top * scaleY; });
            Try([&] { control.Width = control.Width * scaleX; });
            break;
        default:
            Try([&] {
                control.Move(control.Left * scaleX, control.Top * scaleY, control.Width * scaleX,
                             control.Height * scaleY);
            });
            break;
    }
}

void ScaleFont(Control& control, Number average) {
    const bool onTerms = control.Owner().Name() == "frmSplash";
    Try([&] { control.FontSize = control.FontSize * average; });
    control.FontSize = SteppedFontSize(control.FontSize, onTerms);
}

void ScaleControl(Control& control, Single scaleX, Single scaleY, Number average) {
    if (control.HasPlace()) ScalePlace(control, scaleX, scaleY);
    if (control.HasFont()) ScaleFont(control, average);
    if (control.Kind() == ControlKind::NumericTextBox && control.Height > kMostNumericHeight) {
        control.Height = kMostNumericHeight;
    }
}

// The controls of the pages that aren't on show, which stand far to the left of their places.
std::vector<Control*> ParkedControls(const Form& form) {
    std::vector<Control*> parked;
    for (Control* const control : form.Controls()) {
        if (control->HasPlace() && control->Left < 0) parked.push_back(control);
    }
    return parked;
}

TabControl* TabsOf(const Form& form) {
    TabControl* tabs = nullptr;
    for (Control* const control : form.Controls()) {
        if (auto* const found = dynamic_cast<TabControl*>(control)) tabs = found;
    }
    return tabs;
}

}  // namespace

ScreenScale ScaleOfMainWindow() {
    const Form* const parent = TheForms().Find("frmParent");
    if (parent == nullptr) return {};
    const ScreenSize screen = ThePlatform().Screen();
    return {ScaleOf(parent->ClientWidth(), screen.UnitsPerPixelX, kDesignPixelsX),
            ScaleOf(parent->ClientHeight(), screen.UnitsPerPixelY, kDesignPixelsY)};
}

void ResizeScreen(Form& form) {
    const ScreenScale scale = ScaleOfMainWindow();
    ScaleControls(scale.X, scale.Y, form);
}

void ScaleControls(Single scaleX, Single scaleY, Form& form) {
    const std::vector<Control*> parked = ParkedControls(form);
    TabControl* const tabs = TabsOf(form);
    Number ratioW = 0;
    Number ratioH = 0;
    if (tabs != nullptr) {
        ratioW = tabs->Width / kDesignTabsWidth;
        ratioH = tabs->Height / kDesignTabsHeight;
        tabs->Visible = false;
    }
    const Number average = (scaleX + scaleY) / 2;
    for (Control* const control : form.Controls())
        ScaleControl(*control, scaleX, scaleY, average);
    for (Control* const control : parked) {
        // Scaling has moved the parking place as well; the tabs count on its distance.
        if (control->Left >= 0) continue;
        Try([&] {
            control->Left = control->Left + scaleX * TabControl::kParking - TabControl::kParking;
        });
    }
    if (tabs == nullptr) return;
    tabs->Visible = true;
    Try([&] { tabs->Width = form.Width * ratioW; });
    Try([&] { tabs->Height = form.Height * ratioH; });
}

}  // namespace tav
