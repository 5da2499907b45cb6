#include "scenario/world.h"

#include "forms/control.h"

namespace tav {

void World::MakeLibrary(const std::string&, const std::string&) {
    throw NotPossible("this program has no feed library");
}

std::optional<std::string> World::LibraryValue(const std::string&, const Expression&) {
    throw NotPossible("this program has no feed library");
}

std::optional<std::string> World::ReportValue(const Expression&) {
    throw NotPossible("this program has no reports");
}

}  // namespace tav
