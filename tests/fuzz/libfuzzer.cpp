#include "fuzz/Fuzz.h"
#include "support/Files.h"

// One program for each target, which the build names QUIVERDECK_FUZZ_TARGET. A broken rule is an exception
// that nothing catches: libFuzzer keeps the input in a file.

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    fuzz::QUIVERDECK_FUZZ_TARGET({reinterpret_cast<const char*>(data), static_cast<qsizetype>(size)});
    return 0;
}

#ifdef QUIVERDECK_FUZZ_SEEDS
/// Pictures are not kept in the tree: the first argument, a folder, is filled with them.
extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv) {
    int n = 0;
    if (*argc > 1 && QDir((*argv)[1]).exists())
        for (const QByteArray& picture : fuzz::pictureSeeds())
            writeFile(QStringLiteral("%1/seed-%2").arg(QLatin1String((*argv)[1])).arg(n++), picture);
    return 0;
}
#endif
