#pragma once

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <stdexcept>

/// The bytes of a file; none if it cannot be read.
inline QByteArray readFile(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Writes a file anew, with the folders above it; throws if it cannot.
inline void writeFile(const QString& path, const QByteArray& bytes = {}) {
    QFile file(path);
    if (!QDir().mkpath(QFileInfo(path).path()) || !file.open(QIODevice::WriteOnly) ||
        file.write(bytes) != bytes.size())
        throw std::runtime_error("cannot write " + path.toStdString());
}
