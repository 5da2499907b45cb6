// The design of a screen, seen without drawing it: nothing overlaps, nothing is cut, and the tab
// key leads from each field to the one that comes next in the reader's eye.
#include "forms/controls.h"
#include "forms/form_resizing.h"
#include "screens/inputs_form.h"
#include "screens/ration_form.h"

#include <algorithm>
#include <map>

#include <gtest/gtest.h>

namespace tav {
namespace {

constexpr double kDesignWidth = 12000;  // 800 by 600 pixels at 15 units
constexpr double kDesignHeight = 9000;
constexpr double kMark = 300;  // the circle or square before an option's caption

// What is drawn in letters keeps its height on a display of any size, and no letters are smaller
// than 9 points.
constexpr double kFrameTitle = 240;
constexpr double kTabRow = 420;
constexpr double kLeastPoints = 9;
constexpr double kLineOfAPoint = 23.4;  // units
constexpr double kRounding = 1;

// What the main window leaves to a screen on the smallest display, 800 by 600 pixels.
constexpr double kSmallestWidth = 9480;
constexpr double kSmallestHeight = 5880;

struct Box {
    double Left, Top, Right, Bottom;
};

// Where a control stands on its page, whichever page is on show.
Box PlaceOf(const Control& control) {
    double left = Number(control.Left).Value();
    if (left < -kRounding) left += TabControl::kParking;
    const double top = Number(control.Top).Value();
    return {left, top, left + Number(control.Width).Value(), top + Number(control.Height).Value()};
}

// The part of its container in which a control may stand. The tabs fill the form.
Box RoomOf(const Control& control) {
    const Control* const container = control.Container();
    const double width = Number(control.Owner().Width).Value();
    const double height = Number(control.Owner().Height).Value();
    if (container == nullptr) return {0, 0, width, height};
    if (container->Kind() == ControlKind::TabControl) {
        return {0, kTabRow, width, height};
    }
    const Box frame = PlaceOf(*container);
    return {0, kFrameTitle, frame.Right - frame.Left, frame.Bottom - frame.Top};
}

bool Overlap(const Box& a, const Box& b) {
    return a.Left + kRounding < b.Right && b.Left + kRounding < a.Right &&
           a.Top + kRounding < b.Bottom && b.Top + kRounding < a.Bottom;
}

bool IsEntry(const Control& control) {
    return control.TakesFocus() && control.Kind() != ControlKind::TabControl;
}

double PointsOf(const Control& control) {
    return std::max(Number(control.FontSize).Value(), kLeastPoints);
}

// Letters are a little wider than half their height, in points of 20 units.
double CaptionWidth(const CaptionedControl& control) {
    const bool marked =
        control.Kind() == ControlKind::OptionButton || control.Kind() == ControlKind::CheckBox;
    return static_cast<double>(control.Caption.size()) * PointsOf(control) * 11 +
           (marked ? kMark : 0);
}

// The controls that share a container, page by page; the tabs themselves cover the form.
using Group = std::vector<const Control*>;
std::vector<Group> GroupsOf(const Form& form) {
    std::map<std::pair<const Control*, int>, Group> groups;
    for (const Control* const control : form.Controls()) {
        if (!control->HasPlace() || control->Kind() == ControlKind::TabControl) continue;
        groups[{control->Container(), control->TabPage}].push_back(control);
    }
    std::vector<Group> found;
    for (auto& [place, group] : groups)
        found.push_back(std::move(group));
    return found;
}

template <class T>
struct AsDesigned : T {
    AsDesigned() { this->Resize(kDesignWidth, kDesignHeight); }
};

template <class T>
struct OnTheSmallestDisplay : T {
    OnTheSmallestDisplay() {
        this->Resize(kSmallestWidth, kSmallestHeight);
        ScaleControls(kSmallestWidth / kDesignWidth, kSmallestHeight / kDesignHeight, *this);
    }
};

template <class T>
class Layout : public testing::Test {
  protected:
    T Screen;
};

using Screens = testing::Types<AsDesigned<InputsForm>, OnTheSmallestDisplay<InputsForm>,
                               AsDesigned<RationForm>, OnTheSmallestDisplay<RationForm>>;
TYPED_TEST_SUITE(Layout, Screens);

TYPED_TEST(Layout, NothingOverlaps) {
    for (const Group& group : GroupsOf(this->Screen)) {
        for (std::size_t i = 0; i < group.size(); ++i) {
            for (std::size_t j = i + 1; j < group.size(); ++j) {
                EXPECT_FALSE(Overlap(PlaceOf(*group[i]), PlaceOf(*group[j])))
                    << group[i]->FullName() << " and " << group[j]->FullName();
            }
        }
    }
}

TYPED_TEST(Layout, NothingIsCut) {
    for (const Group& group : GroupsOf(this->Screen)) {
        for (const Control* const control : group) {
            const Box place = PlaceOf(*control);
            const Box room = RoomOf(*control);
            EXPECT_GE(place.Left, room.Left - kRounding) << control->FullName();
            EXPECT_GE(place.Top, room.Top - kRounding) << control->FullName();
            EXPECT_LE(place.Right, room.Right + kRounding) << control->FullName();
            EXPECT_LE(place.Bottom, room.Bottom + kRounding) << control->FullName();
            EXPECT_LT(place.Left, place.Right) << control->FullName();
            EXPECT_LT(place.Top, place.Bottom) << control->FullName();
        }
    }
}

TYPED_TEST(Layout, CaptionsFit) {
    for (const Control* const control : this->Screen.Controls()) {
        const auto* const captioned = dynamic_cast<const CaptionedControl*>(control);
        if (captioned == nullptr || !control->HasPlace()) continue;
        EXPECT_LE(CaptionWidth(*captioned), Number(control->Width).Value()) << control->FullName();
        EXPECT_LE(PointsOf(*control) * kLineOfAPoint, Number(control->Height).Value())
            << control->FullName();
    }
}

// Captions that the screens set themselves.
TEST(Layout, ChangingCaptionsFit) {
    OnTheSmallestDisplay<InputsForm> inputs;
    inputs.lblDistance.Caption = "Distance Between Pasture and Milking Center";
    EXPECT_LE(CaptionWidth(inputs.lblDistance), Number(inputs.lblDistance.Width).Value());
    AsDesigned<RationForm> ration;
    ration.lblResults[4].Caption = "Energy Allowable ADG with Conceptus :  0.90 (lbs/day)";
    EXPECT_LE(CaptionWidth(ration.lblResults[4]), Number(ration.lblResults[4].Width).Value());
}

TYPED_TEST(Layout, EveryFieldIsLabelled) {
    for (const Group& group : GroupsOf(this->Screen)) {
        for (const Control* const control : group) {
            const auto* const captioned = dynamic_cast<const CaptionedControl*>(control);
            const bool says = captioned == nullptr || !captioned->Caption.empty() ||
                              !control->Visible || control->Kind() == ControlKind::Label;
            EXPECT_TRUE(says) << control->FullName();
        }
    }
}

// Down a column, then to the next one on the right; in a row to the right.
TYPED_TEST(Layout, TheTabKeyFollowsTheEye) {
    for (const Group& group : GroupsOf(this->Screen)) {
        const Control* previous = nullptr;
        for (const Control* const control : group) {
            if (!IsEntry(*control)) continue;
            if (previous != nullptr) {
                const Box from = PlaceOf(*previous);
                const Box to = PlaceOf(*control);
                EXPECT_TRUE(to.Top > from.Top || to.Left > from.Left)
                    << "from " << previous->FullName() << " back to " << control->FullName();
            }
            previous = control;
        }
    }
}

}  // namespace
}  // namespace tav
