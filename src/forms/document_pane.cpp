#include "forms/document_pane.h"

#include "forms/form.h"

#include <algorithm>

namespace tav {

void DocumentPane::SetDocument(std::shared_ptr<const PagedDocument> document) {
    document_ = std::move(document);
    page_ = 1;
}

void DocumentPane::SetPreviewPage(int page) {
    page_ = std::clamp(page, 1, std::max(PageCount(), 1));
}

void DocumentPane::UserTurnTo(int page) {
    RequireUsable();
    if (page < 1 || page > PageCount()) {
        throw NotPossible(FullName() + " has no page " + std::to_string(page));
    }
    SetPreviewPage(page);
}

}  // namespace tav
