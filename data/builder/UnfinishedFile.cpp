#include "UnfinishedFile.h"

#include "CsvFile.h"

#include <QFile>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace catalogue {

UnfinishedFile::UnfinishedFile(const QString& target) : target_(target), path_(target + u".new"_s) {
    QFile::remove(path_);
}

UnfinishedFile::~UnfinishedFile() {
    QFile::remove(path_);
    QFile::remove(path_ + u"-journal"_s);
}

void UnfinishedFile::finish() {
    // Qt's own rename does not replace.
    if (std::rename(QFile::encodeName(path_).constData(), QFile::encodeName(target_).constData()) != 0)
        throw Error(u"%1 cannot be written"_s.arg(target_));
}

} // namespace catalogue
