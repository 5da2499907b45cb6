#include "scenario/properties.h"

#include "core/number_text.h"
#include "forms/controls.h"
#include "forms/form_registry.h"

#include <array>

namespace tav {
namespace {

using Value = std::optional<std::string>;

std::string Show(bool value) { return std::string(BooleanText(value)); }
std::string Show(int value) { return NumberText(value); }
std::string Show(Single value) { return NumberText(value); }
std::string Show(const std::string& value) { return value; }

std::string Show(Alignment alignment) {
    static constexpr std::array<std::string_view, 3> kNames = {"Left", "Right", "Center"};
    return std::string(kNames[static_cast<std::size_t>(alignment)]);
}

std::string Show(WindowState state) {
    static constexpr std::array<std::string_view, 3> kNames = {"Normal", "Minimised", "Maximised"};
    return std::string(kNames[static_cast<std::size_t>(state)]);
}

std::string Show(const Control* control) {
    if (control == nullptr) return {};
    return control->Index() < 0 ? control->Name()
                                : control->Name() + "(" + NumberText(control->Index()) + ")";
}

// Asks for one property after the other; the first that fits gives the value.
class Asked {
  public:
    explicit Asked(const PathPart& property) : property_(property) {}

    template <class T>
    Asked& Is(std::string_view name, const T& value) {
        if (!found_ && property_.Name == name && property_.Args.empty()) Take(Show(value));
        return *this;
    }

    // A property with one whole number, from 0 to below count.
    template <class Read>
    Asked& At(std::string_view name, int count, Read&& read) {
        if (found_ || property_.Name != name || property_.Args.size() != 1) return *this;
        const int index = Number(0);
        Take(index >= 0 && index < count ? Value(Show(read(index))) : std::nullopt);
        return *this;
    }

    template <class Read>
    Asked& Cell(int rows, int cols, Read&& read) {
        if (found_ || property_.Name != "Cell" || property_.Args.size() != 2) return *this;
        const int row = Number(0);
        const int col = Number(1);
        const bool inside = row >= 0 && row < rows && col >= 0 && col < cols;
        Take(inside ? Value(Show(read(row, col))) : std::nullopt);
        return *this;
    }

    Asked& Pressed(const Toolbar& toolbar) {
        if (found_ || property_.Name != "Pressed" || property_.Args.size() != 1) return *this;
        const ToolbarButton* const button = toolbar.Button(property_.Args[0]);
        if (button == nullptr) {
            throw NotPossible(toolbar.FullName() + " has no button " + property_.Args[0]);
        }
        Take(Show(button->Pressed));
        return *this;
    }

    Value Answer(const std::string& owner) const {
        if (!found_) throw NotPossible(owner + " has no property " + property_.Name);
        return value_;
    }

  private:
    void Take(Value value) {
        found_ = true;
        value_ = std::move(value);
    }

    int Number(std::size_t index) const {
        const std::optional<int> number = WholeNumber(property_.Args[index]);
        if (!number) throw NotPossible("\"" + property_.Args[index] + "\" is not a whole number");
        return *number;
    }

    const PathPart& property_;
    bool found_ = false;
    Value value_;
};

void Ask(Asked& asked, const TextBox& box) {
    asked.Is("Text", box.Text).Is("Alignment", box.Alignment);
    asked.Is("MultiLine", box.MultiLine).Is("ReadOnly", box.ReadOnly);
}

void Ask(Asked& asked, const NumericTextBox& box) {
    asked.Is("Text", box.Text).Is("Minimum", box.Minimum).Is("Maximum", box.Maximum);
    asked.Is("Units", box.Units).Is("Format", box.Format).Is("Alignment", box.Alignment);
}

void Ask(Asked& asked, const ListBox& list) {
    asked.Is("Text", list.Text()).Is("ListIndex", list.ListIndex());
    asked.Is("ListCount", list.ListCount());
    asked.At("List", list.ListCount(), [&](int index) { return list.List(index); });
    asked.At("Selected", list.ListCount(), [&](int index) { return list.Selected(index); });
}

void Ask(Asked& asked, const ComboBox& box) {
    asked.Is("Text", box.Text()).Is("ListIndex", box.ListIndex()).Is("ListCount", box.ListCount());
    asked.At("List", box.ListCount(), [&](int index) { return box.List(index); });
}

void Ask(Asked& asked, const OptionButton& option) {
    asked.Is("Value", option.Value()).Is("Checked", option.Value());
}

void Ask(Asked& asked, const CheckBox& box) {
    asked.Is("Value", box.Value).Is("Checked", box.Value);
}

void Ask(Asked& asked, const CommandButton& button) {
    asked.Is("Default", button.Default).Is("Cancel", button.Cancel);
}

void Ask(Asked& asked, const MenuItem& entry) { asked.Is("Checked", entry.Checked); }

void Ask(Asked& asked, const Label& label) { asked.Is("Alignment", label.Alignment); }

void Ask(Asked& asked, const Timer& timer) { asked.Is("Interval", timer.Interval); }

void Ask(Asked& asked, const Grid& grid) {
    asked.Is("Rows", grid.Rows()).Is("Cols", grid.Cols()).Is("ComboList", grid.ComboList);
    asked.Is("Row", grid.Row()).Is("Col", grid.Col()).Is("EditText", grid.EditText);
    asked.Cell(grid.Rows(), grid.Cols(),
               [&](int row, int col) { return grid.TextMatrix(row, col); });
}

void Ask(Asked& asked, const TabControl& tabs) { asked.Is("Tab", tabs.Tab()); }

void Ask(Asked& asked, const Toolbar& toolbar) { asked.Pressed(toolbar); }

void Ask(Asked& asked, const DriveList& list) { asked.Is("Drive", list.Drive()); }

void Ask(Asked& asked, const FolderList& list) { asked.Is("Path", list.Path()); }

void Ask(Asked& asked, const FileList& list) {
    asked.Is("Path", list.Path()).Is("Pattern", list.Pattern()).Is("FileName", list.FileName());
    Ask(asked, static_cast<const ListBox&>(list));
}

void Ask(Asked& asked, const DocumentPane& pane) {
    asked.Is("Zoom", pane.Zoom).Is("ZoomMode", static_cast<int>(pane.ZoomMode));
    asked.Is("PreviewPage", pane.PreviewPage()).Is("PageCount", pane.PageCount());
}

// Asks the control as the first of the kinds that it is.
template <class... Kinds>
void AskAs(Asked& asked, const Control& control) {
    (void)((dynamic_cast<const Kinds*>(&control) != nullptr
                ? (Ask(asked, dynamic_cast<const Kinds&>(control)), true)
                : false) ||
           ...);
}

}  // namespace

std::optional<std::string> PropertyOf(const Control& control, const PathPart& property) {
    Asked asked(property);
    asked.Is("Enabled", control.Enabled).Is("Visible", control.Visible);
    asked.Is("Left", control.Left).Is("Top", control.Top);
    asked.Is("Width", control.Width).Is("Height", control.Height);
    asked.Is("FontSize", control.FontSize).Is("ToolTip", control.ToolTip);
    if (const auto* const captioned = dynamic_cast<const CaptionedControl*>(&control)) {
        asked.Is("Caption", captioned->Caption);
    }
    AskAs<TextBox, NumericTextBox, FileList, ListBox, ComboBox, OptionButton, CheckBox,
          CommandButton, MenuItem, Label, Timer, Grid, TabControl, Toolbar, DriveList, FolderList,
          DocumentPane>(asked, control);
    return asked.Answer(control.FullName());
}

std::optional<std::string> PropertyOf(const Form& form, const PathPart& property) {
    Asked asked(property);
    asked.Is("Caption", form.Caption).Is("Enabled", form.Enabled).Is("Visible", form.Visible());
    asked.Is("Left", form.Left).Is("Top", form.Top).Is("Width", form.Width);
    asked.Is("Height", form.Height).Is("ClientWidth", Single(form.ClientWidth()));
    asked.Is("ClientHeight", Single(form.ClientHeight())).Is("Modal", form.IsModal());
    asked.Is("Focus", static_cast<const Control*>(form.Focus())).Is("WindowState", form.State());
    return asked.Answer(form.Name());
}

}  // namespace tav
