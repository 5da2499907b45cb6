#include "forms/text_box.h"

#include "core/number_text.h"
#include "core/runtime_error.h"
#include "forms/form.h"

#include <algorithm>

namespace tav {
namespace {

std::string_view Trimmed(std::string_view text) {
    const std::size_t first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

bool IsNumberCharacter(char c) {
    return (c >= '0' && c <= '9') || c == '.' || c == '-' || c == DecimalSeparator();
}

// Whether that can be the beginning of a number with its unit, as it comes from the keys one by
// one.
bool MayBecomeNumber(std::string_view text, std::string_view unit) {
    const auto end = std::find_if_not(text.begin(), text.end(), IsNumberCharacter);
    return unit.starts_with(Trimmed({end, text.end()}));
}

}  // namespace

void TextBox::UserType(std::string_view text) {
    RequireUsable();
    if (ReadOnly) throw NotPossible(FullName() + " can only be read");
    if (!MultiLine && text.find_first_of("\r\n") != std::string_view::npos) {
        throw NotPossible(FullName() + " takes a single line");
    }
    if (Owner().Focus() != this) UserEnter();
    Text = text;
    Fire(Change);
}

// The number without the unit behind it; empty when other characters than a number's are in it.
std::string NumericTextBox::NumberPart(std::string_view text) const {
    std::string_view number = Trimmed(text);
    const std::string_view unit = Trimmed(Units);
    if (!unit.empty() && number.ends_with(unit)) number.remove_suffix(unit.size());
    number = Trimmed(number);
    if (!std::all_of(number.begin(), number.end(), IsNumberCharacter)) return {};
    return std::string(number);
}

void NumericTextBox::UserEnter() {
    Control::UserEnter();
    if (editing_ || Owner().Focus() != this) return;
    editing_ = true;
    typed_ = false;
    refusedText_.clear();
    editText_ = Text;
}

void NumericTextBox::UserType(std::string_view text) {
    RequireUsable();
    if (!editing_) UserEnter();
    if (!MayBecomeNumber(Trimmed(text), Trimmed(Units))) {
        refusedText_ = text;
        const bool comma = DecimalSeparator() == '.' && text.find(',') != std::string_view::npos;
        Refusal = comma ? "Enter a number with a decimal point." : "Enter a number.";
        return;
    }
    refusedText_.clear();
    Refusal.clear();
    editText_ = text;
    typed_ = true;
}

void NumericTextBox::FinishEntry() {
    if (!editing_) return;
    editing_ = false;
    if (!typed_ || !refusedText_.empty()) return;
    typed_ = false;
    const std::string number = NumberPart(editText_);
    if (!IsNumeric(number)) {
        Refusal = "Enter a number.";
        return;
    }
    // A number of any length may have been typed, even one beyond the range of a Single.
    const double entered = TextToNumber(number);
    const double least = Minimum.Value();
    const double greatest = Maximum.Value();
    const bool within = entered >= least && entered <= greatest;
    const bool equal =
        std::abs(entered) < 3e38 && (static_cast<float>(entered) == Minimum.Value() ||
                                     static_cast<float>(entered) == Maximum.Value());
    if (!within && !equal) {
        Refusal = "Enter a value from " + NumberText(Minimum) + " to " + NumberText(Maximum) + ".";
        return;
    }
    Refusal.clear();
    Text = Format.empty() ? number : FormatNumber(Single(entered), Format);
    const std::string_view unit = Trimmed(Units);
    if (!unit.empty()) Text.append(" ").append(unit);
    Fire(ValueEntered);
}

}  // namespace tav
