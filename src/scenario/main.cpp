// tav-scenario: plays scripts on the program, without a display.
#include "scenario/interpreter.h"
#include "scenario/program_world.h"

#include <algorithm>
#include <iostream>
#include <string_view>

namespace {

constexpr std::string_view kUsage =
    "Usage: tav-scenario SCRIPT...\n"
    "Plays each script on the program, as a user's hands would, and checks what it expects.\n"
    "Exit status: 0 all expectations hold, 1 one doesn't, 2 a script can't be read.\n"
    "Example: tav-scenario tests/scenarios/start.scenario\n";

}  // namespace

int main(int argc, char** argv) {
    if (argc < 2) {
        std::cerr << kUsage;
        return 2;
    }
    if (std::string_view(argv[1]) == "--help") {
        std::cout << kUsage;
        return 0;
    }
    int status = 0;
    try {
        for (int i = 1; i < argc; ++i) {
            tav::ProgramWorld world;
            const auto outcome = tav::PlayScript(argv[i], world, std::cout, std::cerr);
            status = std::max(status, static_cast<int>(outcome));
        }
    } catch (const std::exception& error) {
        std::cerr << "tav-scenario: " << error.what() << '\n';
        return 2;
    }
    return status;
}
