#include "fuzz/Fuzz.h"

#include <QDir>
#include <QFile>

#include <cstdint>

using namespace Qt::StringLiterals;

// One program for each target, which the build names QUIVERDECK_FUZZ_TARGET. A broken rule is an exception
// that nothing catches: libFuzzer keeps the input in a file.

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    fuzz::QUIVERDECK_FUZZ_TARGET(
        QByteArray(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size)));
    return 0;
}

#ifdef QUIVERDECK_FUZZ_SEEDS
/// Pictures are not kept in the tree: the first argument, a folder, is filled with them.
extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv) {
    if (*argc < 2 || !QDir((*argv)[1]).exists())
        return 0;
    int n = 0;
    for (const QByteArray& picture : fuzz::pictureSeeds()) {
        QFile file(QDir((*argv)[1]).filePath(u"seed-%1"_s.arg(n++)));
        if (file.open(QIODevice::WriteOnly))
            file.write(picture);
    }
    return 0;
}
#endif
