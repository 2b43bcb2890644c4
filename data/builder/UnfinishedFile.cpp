#include "UnfinishedFile.h"

#include "CsvFile.h"

#include <QFile>

#include <cstdio>

namespace catalogue {

UnfinishedFile::UnfinishedFile(const QString& target)
    : target_(target), path_(target + QStringLiteral(".new")) {
    QFile::remove(path_);
}

UnfinishedFile::~UnfinishedFile() {
    QFile::remove(path_);
    QFile::remove(path_ + QStringLiteral("-journal"));
}

void UnfinishedFile::finish() {
    // Qt's own rename does not replace.
    if (std::rename(QFile::encodeName(path_).constData(), QFile::encodeName(target_).constData()) != 0)
        throw Error(QStringLiteral("%1 cannot be written").arg(target_));
}

} // namespace catalogue
