#include "platform/host/InstalledCopy.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QSaveFile>
#include <QStandardPaths>

#include <filesystem>
#include <stdexcept>

using namespace Qt::StringLiterals;

namespace host::installed {

namespace {

const QString marker = u"/quiverdeck.installed"_s;
const QString stamp = u"/.installed"_s; // what the folder was last filled or renewed from
const QString storeName = u"/splash.ps"_s;
const QString renewer = u"/quiverdeck-renew-store"_s;
const QStringList copiedFolders{u"images"_s, u"HELP"_s};

struct CopyError : std::runtime_error {
    explicit CopyError(const QString& text) : std::runtime_error(text.toStdString()) {}
};

/// The files below `folder`, relative to it and sorted.
QStringList filesBelow(const QString& folder) {
    QStringList names;
    QDirIterator files(folder, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext())
        names.append(QDir(folder).relativeFilePath(files.next()));
    names.sort();
    return names;
}

/// A text that changes with every installation of other files.
QByteArray fingerprint(const QString& shipped) {
    QCryptographicHash hash(QCryptographicHash::Sha256);
    QFile store(shipped + storeName);
    if (!store.open(QIODevice::ReadOnly) || !hash.addData(&store))
        throw CopyError(u"%1 non si può leggere."_s.arg(store.fileName()));
    for (const QString& folder : copiedFolders) {
        const QString root = shipped + u'/' + folder;
        for (const QString& name : filesBelow(root)) {
            const QFileInfo info(root + u'/' + name);
            hash.addData((folder + u'/' + name).toUtf8());
            hash.addData(QByteArray::number(info.size()) + ' ' +
                         QByteArray::number(info.lastModified().toMSecsSinceEpoch()));
        }
    }
    return hash.result().toHex();
}

QByteArray stampOf(const QString& folder) {
    QFile file(folder + stamp);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// The copy takes its name only when it is whole.
void copyFile(const QString& from, const QString& to) {
    const QString unfinished = to + u".new"_s;
    QFile::remove(unfinished);
    QFile source(from);
    std::error_code failed;
    if (!QDir().mkpath(QFileInfo(to).path()) || !source.copy(unfinished) ||
        !QFile::setPermissions(unfinished, source.permissions() | QFile::ReadOwner | QFile::WriteOwner))
        failed = std::make_error_code(std::errc::io_error);
    else
        std::filesystem::rename(QFileInfo(unfinished).filesystemFilePath(),
                                QFileInfo(to).filesystemFilePath(), failed);
    if (failed) {
        QFile::remove(unfinished);
        throw CopyError(u"%1 non si può copiare in %2."_s.arg(from, to));
    }
}

void copyFolders(const QString& shipped, const QString& folder) {
    for (const QString& name : copiedFolders) {
        const QString root = shipped + u'/' + name;
        for (const QString& file : filesBelow(root))
            copyFile(root + u'/' + file, folder + u'/' + name + u'/' + file);
    }
}

void renewStore(const QString& shipped, const QString& folder) {
    QProcess process;
    process.start(shipped + renewer, {shipped + storeName, folder + storeName});
    process.closeWriteChannel();
    if (!process.waitForFinished(-1) || process.exitStatus() != QProcess::NormalExit ||
        process.exitCode() != 0)
        throw CopyError(u"Il catalogo di %1 non è stato rinnovato.\n%2"_s.arg(
            folder + storeName, QString::fromLocal8Bit(process.readAllStandardError()).trimmed()));
}

void writeStamp(const QString& folder, const QByteArray& text) {
    QSaveFile file(folder + stamp);
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size() || !file.commit())
        throw CopyError(u"%1 non si può scrivere."_s.arg(file.fileName()));
}

} // namespace

bool isInstalled(const QString& programFolder) {
    return QFileInfo::exists(programFolder + marker);
}

QString dataFolder() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + u"/quiverdeck"_s;
}

bool makeFolder(const QString& folder) {
    if (QFileInfo(folder).isDir())
        return true;
    return QDir().mkpath(folder) &&
           QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

Result prepare(const QString& shipped, const QString& folder) {
    bool filled = false;
    try {
        const QByteArray before = stampOf(folder);
        const bool hasStore = QFileInfo::exists(folder + storeName);
        filled = hasStore || !before.isEmpty();
        const QByteArray now = fingerprint(shipped);
        if (now == before)
            return {};
        copyFolders(shipped, folder);
        if (hasStore)
            renewStore(shipped, folder);
        else if (!filled)
            copyFile(shipped + storeName, folder + storeName);
        writeStamp(folder, now);
        return {};
    } catch (const CopyError& error) {
        return {filled ? Outcome::NotRenewed : Outcome::NotFilled, QString::fromUtf8(error.what())};
    }
}

} // namespace host::installed
