#include "reports/report_writer.h"

#include <algorithm>

namespace tav {
namespace {

constexpr int kSpareLines = 5;
constexpr int kLinesOfHeading = 3;  // with the empty ones around it

}  // namespace

ReportWriter::ReportWriter(ReportSink& sink, const SimulationRecord& record, ReportState& state,
                           bool metric)
    : sink_(sink), record_(record), state_(state), units_(metric) {}

void ReportWriter::StartComponent(int lines, std::string_view title) {
    RestoreOrientation();
    KeepTogether(std::min(lines, LinesOnAPage()), {}, true);
    Title(title);
}

void ReportWriter::RestoreOrientation() {
    if (!state_.OrientationRestorePending) return;
    sink_.Orientation = state_.SavedOrientation;
    sink_.NewPage();
    state_.OrientationRestorePending = false;
}

void ReportWriter::Title(std::string_view title) {
    sink_.FontBold = true;
    sink_.SetFontSize(state_.BodyFontSize + 4);
    LineEnds(1);
    sink_.Text(title);
    LineEnds(2);
    sink_.FontBold = false;
    sink_.SetFontSize(state_.BodyFontSize);
}

void ReportWriter::KeepTogether(int lines, const std::vector<std::string>& row, bool spacing) {
    if (!row.empty()) FitFont(row);
    const Twips height = sink_.TextHeight("A");
    const Twips needed = lines * height + kSpareLines * height;
    if (sink_.CurrentY() > sink_.PageHeight() - needed) {
        sink_.NewPage();
    } else if (spacing && sink_.CurrentY() > kSpareLines * height) {
        LineEnds(3);
    }
}

void ReportWriter::FitFont(const std::vector<std::string>& row) {
    const auto width = [&] {
        Twips sum = 0;
        for (const std::string& text : row)
            sum += sink_.TextWidth(text);
        return sum;
    };
    while (width() > BodyWidth()) {
        const float before = sink_.FontSize();
        sink_.SetFontSize(before - 1);
        if (sink_.FontSize() == before) return;
    }
}

int ReportWriter::LinesOnAPage() const {
    const Twips room = sink_.PageHeight() - sink_.MarginTop;
    return static_cast<int>(room / sink_.TextHeight("A")) - kSpareLines;
}

bool ReportWriter::IsEmptyDocument() const {
    return sink_.CurrentPage() == 1 && sink_.CurrentY() == sink_.MarginTop;
}

Twips ReportWriter::BodyWidth() const {
    return sink_.PageWidth() - sink_.MarginLeft - sink_.MarginRight;
}

void ReportWriter::Heading(std::string_view text, int lines) {
    KeepTogether(std::min(lines, LinesOnAPage()));
    WriteHeading(text);
}

void ReportWriter::HeadingWith(std::string_view text, Twips height) {
    KeepHeight(kLinesOfHeading * sink_.TextHeight("A") + height);
    WriteHeading(text);
}

void ReportWriter::KeepHeight(Twips height) {
    const Twips bottom = sink_.PageHeight() - sink_.MarginBottom;
    const bool fitsOnAPage = height <= bottom - sink_.MarginTop;
    if (fitsOnAPage && sink_.CurrentY() > bottom - height) sink_.NewPage();
}

void ReportWriter::WriteHeading(std::string_view text) {
    LineEnds(1);
    sink_.FontBold = true;
    sink_.FontUnderline = true;
    sink_.Text(text);
    sink_.FontBold = false;
    sink_.FontUnderline = false;
    LineEnds(2);
}

void ReportWriter::Subheading(std::string_view text) {
    KeepTogether(1);
    sink_.FontBold = true;
    sink_.Text(text);
    sink_.FontBold = false;
    LineEnds(1);
}

void ReportWriter::Line(std::string_view label, std::string_view value) {
    sink_.Text(label);
    sink_.Text(value);
    LineEnds(1);
}

void ReportWriter::LineEnds(int count) {
    for (int i = 0; i < count; ++i)
        sink_.Text("\r\n");
}

}  // namespace tav
