// The program itself as the world of a script.
#pragma once

#include "scenario/world.h"

namespace tav {

class ProgramWorld : public World {
  public:
    void Start(Platform& platform) override;

    void PlaceLibrary(const std::string& folder) override;
    void MakeLibrary(const std::string& csvFile, const std::string& folder) override;
    void RemoveLibrary(const std::string& folder) override;
    std::optional<std::string> LibraryValue(const std::string& folder,
                                            const Expression& path) override;

    std::optional<std::string> ReportValue(const Expression& path) override;
};

}  // namespace tav
