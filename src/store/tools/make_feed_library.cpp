// Makes the delivered feed library from its CSV file: make_feed_library CSV LIBRARY
#include "feeds/library_csv.h"
#include "store/library_file.h"

#include <cstdio>
#include <exception>

int main(int argc, char** argv) {
    if (argc != 3) {
        std::fputs("Usage: make_feed_library CSV LIBRARY\n", stderr);
        return 2;
    }
    try {
        tav::CreateDeliveredLibrary(argv[2], tav::ReadLibraryCsv(tav::ReadCsvFile(argv[1])));
    } catch (const std::exception& error) {
        std::fprintf(stderr, "make_feed_library: %s: %s\n", argv[1], error.what());
        return 1;
    }
    return 0;
}
