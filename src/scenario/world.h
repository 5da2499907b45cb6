// The program that a script plays on, as far as the tool has to know more of it than its forms.
#pragma once

#include "core/platform.h"
#include "scenario/expression.h"

#include <optional>
#include <string>

namespace tav {

// A world without a feed library or reports leaves those operations as they are here: a script that
// asks for them stops with a message.
class World {
  public:
    virtual ~World() = default;

    // Begins a run of the program, afresh: whatever an earlier one has left is gone.
    virtual void Start(Platform& platform) = 0;

    // Puts the delivered feed library into the folder, makes one there from the rows of a CSV file,
    // or sees to it that there is none.
    virtual void PlaceLibrary(const std::string& /*folder*/) {}
    virtual void MakeLibrary(const std::string& csvFile, const std::string& folder);
    virtual void RemoveLibrary(const std::string& /*folder*/) {}

    // The values behind "library..." (of the library in the folder) and "report...".
    virtual std::optional<std::string> LibraryValue(const std::string& folder,
                                                    const Expression& path);
    virtual std::optional<std::string> ReportValue(const Expression& path);
};

}  // namespace tav
