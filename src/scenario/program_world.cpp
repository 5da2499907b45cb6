#include "scenario/program_world.h"

#include "scenario/feed_library_world.h"
#include "scenario/report_world.h"
#include "shell/program.h"

namespace tav {

void ProgramWorld::Start(Platform& platform) {
    UseLibraryStore();
    StartProgram(platform);
}

void ProgramWorld::PlaceLibrary(const std::string& folder) {
    UseLibraryStore();
    PutDeliveredLibrary(folder);
}

void ProgramWorld::MakeLibrary(const std::string& csvFile, const std::string& folder) {
    MakeLibraryFromCsv(csvFile, folder);
}

void ProgramWorld::RemoveLibrary(const std::string& folder) { RemoveLibraryFile(folder); }

std::optional<std::string> ProgramWorld::LibraryValue(const std::string& folder,
                                                      const Expression& path) {
    return LibraryValueOf(folder, path);
}

std::optional<std::string> ProgramWorld::ReportValue(const Expression& path) {
    return ReportValueOf(path);
}

}  // namespace tav
