#include "reports/report_document.h"

namespace tav {

std::string TextForm(const ReportDocument& document) {
    std::string text;
    for (const ReportPage& page : document.Pages) {
        if (!text.empty()) text += "\f\n";
        text += "[" + page.Header + "]\n" + page.Text + "[" + page.Footer + "]\n";
    }
    return text;
}

}  // namespace tav
