// What all components of a report have in common: their start, their headings, what keeps a block
// on one page, and their lines.
#pragma once

#include "core/runtime_error.h"
#include "core/simulation_record.h"
#include "reports/report_sink.h"
#include "reports/report_units.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tav {

// What one component leaves for the next, and one document for the next; and the fonts of them all.
struct ReportState {
    bool OrientationRestorePending = false;  // the next component goes back to SavedOrientation
    std::int16_t SavedOrientation = kPortrait;
    std::string BodyFontName = "Times New Roman";
    float BodyFontSize = 12;  // points
    std::string HeaderFontName = "Times New Roman";
    float HeaderFontSize = 8;
};

// The entry of a list of the record, counted from 0. Raises 9 beyond it.
template <class T>
const T& Entry(const std::vector<T>& list, std::size_t index) {
    if (index >= list.size()) Raise(kSubscriptOutOfRange);
    return list[index];
}

class ReportWriter {
  public:
    ReportWriter(ReportSink& sink, const SimulationRecord& record, ReportState& state, bool metric);

    ReportSink& Sink() const { return sink_; }
    const SimulationRecord& Record() const { return record_; }
    ReportState& State() const { return state_; }
    const ReportUnits& Units() const { return units_; }

    // Begins a component: returns to the saved orientation where that is pending, sees to it that
    // so many lines stand together as far as a page holds them, and writes the title with an empty
    // line before it.
    void StartComponent(int lines, std::string_view title);
    void RestoreOrientation();
    void Title(std::string_view title);

    // Starts a new page unless that many lines and five more fit on this one. Before that, makes
    // the font smaller until the strings fit beside each other on the page. With spacing, three
    // empty lines divide what comes from what stands above it on the page.
    void KeepTogether(int lines, const std::vector<std::string>& row = {}, bool spacing = false);

    // Starts a new page where what is so high does not fit on this one, but on one of its own.
    void KeepHeight(Twips height);

    // The most lines that KeepTogether finds room for at the top of a page: with more it would
    // leave an empty one.
    int LinesOnAPage() const;

    // Whether nothing has been written to the document.
    bool IsEmptyDocument() const;
    Twips BodyWidth() const;

    // A section heading, bold and underlined; one within a section, bold. lines are kept together
    // with it.
    void Heading(std::string_view text, int lines = 3);
    // A section heading with what stands below it and is so high.
    void HeadingWith(std::string_view text, Twips height);
    void Subheading(std::string_view text);

    // label and value in a line.
    void Line(std::string_view label, std::string_view value = {});
    void LineEnds(int count);

  private:
    void FitFont(const std::vector<std::string>& row);
    void WriteHeading(std::string_view text);

    ReportSink& sink_;
    const SimulationRecord& record_;
    ReportState& state_;
    ReportUnits units_;
};

}  // namespace tav
