// Builds the program's store: quiverdeck-build-store <folder of the sources> <store to write>
#include "CsvFile.h"
#include "StoreBuilder.h"

#include <QString>

#include <cstdio>
#include <exception>

int main(int argc, char* argv[]) {
    if (argc != 3) {
        std::fputs("usage: quiverdeck-build-store <folder of the sources> <store to write>\n", stderr);
        return 2;
    }
    try {
        catalogue::buildStore({QString::fromLocal8Bit(argv[1])}, QString::fromLocal8Bit(argv[2]));
    } catch (const std::exception& error) {
        std::fprintf(stderr, "quiverdeck-build-store: %s\n", error.what());
        return 1;
    }
    return 0;
}
