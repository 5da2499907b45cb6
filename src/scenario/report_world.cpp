#include "scenario/report_world.h"

#include "core/number_text.h"
#include "forms/control.h"
#include "reports/vs_printer.h"

#include <array>

namespace tav {
namespace {

using Value = std::optional<std::string>;

std::string ZoomText(const AssembledReport& report) {
    static constexpr std::array<std::string_view, 5> kModes = {"", "Thumbnail", "Two Pages",
                                                               "Whole Page", "Page Width"};
    if (report.ZoomMode == ZoomMode::Percentage) return std::to_string(report.Zoom);
    return std::string(kModes.at(static_cast<std::size_t>(report.ZoomMode)));
}

const ReportPage* PageAt(const ReportDocument* document, const PathPart& part) {
    const Value::value_type& text = part.Args.at(0);
    const std::optional<int> number = WholeNumber(text);
    if (!number) throw NotPossible("\"" + text + "\" is not a whole number");
    if (document == nullptr || *number < 1 || *number > document->PageCount()) return nullptr;
    return &document->Pages[static_cast<std::size_t>(*number - 1)];
}

Value PageValue(const ReportPage* page, const std::string& name) {
    if (name == "Orientation") return page ? Value(std::to_string(page->Orientation)) : Value();
    if (name == "Header") return page ? Value(page->Header) : Value();
    if (name == "Footer") return page ? Value(page->Footer) : Value();
    throw NotPossible("report has no property " + name + " of a page");
}

}  // namespace

std::optional<std::string> ReportValueOf(const Expression& path) {
    if (path.size() != 2) throw NotPossible("report needs a property");
    const AssembledReport& report = LastReport();
    const PathPart& part = path[1];
    if (part.Args.size() == 1) return PageValue(PageAt(report.Document.get(), part), part.Name);
    if (part.Name == "Text") return report.Document ? TextForm(*report.Document) : std::string();
    if (part.Name == "Pages")
        return std::to_string(report.Document ? report.Document->PageCount() : 0);
    if (part.Name == "Zoom") return ZoomText(report);
    if (part.Name == "Printed") return std::string(BooleanText(report.Printed));
    throw NotPossible("report has no property " + part.Name);
}

}  // namespace tav
