// Renews the catalogue of a store in use: quiverdeck-renew-store <fresh store> <store in use>
// A store that is up to date already is left as it is. Ends with 1, and the store untouched, on any failure.
#include "StoreRenewal.h"

#include <cstdio>
#include <exception>

int main(int argc, char* argv[]) {
    if (argc != 3) {
        std::fputs("usage: quiverdeck-renew-store <fresh store> <store in use>\n", stderr);
        return 2;
    }
    try {
        catalogue::renewStore(QString::fromLocal8Bit(argv[1]), QString::fromLocal8Bit(argv[2]));
    } catch (const std::exception& error) {
        std::fprintf(stderr, "quiverdeck-renew-store: %s\n", error.what());
        return 1;
    }
    return 0;
}
