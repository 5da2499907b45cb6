#include "reports/date_text.h"

#include <array>
#include <cstdio>
#include <utility>

namespace tav {
namespace {

constexpr std::array<const char*, 7> kWeekdays = {"Sunday",   "Monday", "Tuesday", "Wednesday",
                                                  "Thursday", "Friday", "Saturday"};
constexpr std::array<const char*, 12> kMonths = {"January",   "February", "March",    "April",
                                                 "May",       "June",     "July",     "August",
                                                 "September", "October",  "November", "December"};

// A moment taken apart.
struct Moment {
    explicit Moment(DateTime time)
        : Day(std::chrono::floor<std::chrono::days>(time)),
          Date(Day),
          Clock(time - Day),
          Hour(static_cast<int>(Clock.hours().count())),
          Minute(static_cast<int>(Clock.minutes().count())),
          Second(static_cast<int>(Clock.seconds().count())) {}

    std::chrono::local_days Day;
    std::chrono::year_month_day Date;
    std::chrono::hh_mm_ss<std::chrono::seconds> Clock;
    int Hour, Minute, Second;

    int YearNumber() const { return static_cast<int>(Date.year()); }
    unsigned MonthNumber() const { return static_cast<unsigned>(Date.month()); }
    unsigned DayNumber() const { return static_cast<unsigned>(Date.day()); }
    const char* Month() const { return kMonths[MonthNumber() - 1]; }
    const char* Weekday() const { return kWeekdays[std::chrono::weekday(Day).c_encoding()]; }
    int Hour12() const { return Hour % 12 == 0 ? 12 : Hour % 12; }
    const char* Half() const { return Hour < 12 ? "AM" : "PM"; }
};

template <class... Values>
std::string Written(const char* pattern, Values... values) {
    std::array<char, 80> buffer{};
    const int length = std::snprintf(buffer.data(), buffer.size(), pattern, values...);
    return std::string(buffer.data(), static_cast<std::size_t>(length));
}

DateWriter& Writer() {
    static DateWriter writer;
    return writer;
}

std::string EnglishText(DateTime time, DateForm form) {
    const Moment m(time);
    switch (form) {
        case DateForm::General:
            return Written("%u/%u/%d %d:%02d:%02d %s", m.MonthNumber(), m.DayNumber(),
                           m.YearNumber(), m.Hour12(), m.Minute, m.Second, m.Half());
        case DateForm::LongDate:
            return Written("%s, %s %u, %d", m.Weekday(), m.Month(), m.DayNumber(), m.YearNumber());
        case DateForm::MediumDate:
            return Written("%02u-%.3s-%02d", m.DayNumber(), m.Month(), m.YearNumber() % 100);
        case DateForm::LongTime:
            return Written("%d:%02d:%02d %s", m.Hour12(), m.Minute, m.Second, m.Half());
        case DateForm::MediumTime: return Written("%02d:%02d %s", m.Hour12(), m.Minute, m.Half());
        case DateForm::ShortTime: return Written("%02d:%02d", m.Hour, m.Minute);
    }
    return {};
}

}  // namespace

std::string DateText(DateTime time, DateForm form) {
    return Writer() ? Writer()(time, form) : EnglishText(time, form);
}

void SetDateWriter(DateWriter writer) { Writer() = std::move(writer); }

}  // namespace tav
