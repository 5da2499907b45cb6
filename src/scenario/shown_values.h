// Messages and dialogs that were shown, as a script looks at them.
#pragma once

#include "forms/headless_platform.h"
#include "scenario/expression.h"

#include <optional>
#include <string>
#include <vector>

namespace tav {

// message.Count, message.Title (of the last one), message(2).Title (of the second). Nothing when
// there is no such message. Throws NotPossible for a property that a message hasn't got.
std::optional<std::string> MessageValue(const std::vector<HeadlessPlatform::ShownMessage>& messages,
                                        const Expression& path);

// The same of file dialogs, printer set-ups and help.
std::optional<std::string> DialogValue(const std::vector<HeadlessPlatform::ShownDialog>& dialogs,
                                       const Expression& path);

}  // namespace tav
