#pragma once

#include "figures/AreeCorpo.h"
#include "support/ScratchProgram.h"

#include <QDir>
#include <QFileInfo>
#include <QImage>

/// Puts a small picture in the place of each file that the program loads at start and of the muscle map.
inline void givePictures(const ScratchProgram& program) {
    QStringList files = program.rows(QStringLiteral("SELECT figura FROM figure"));
    files.append({QStringLiteral("images\\FolderXP.JPG"), QStringLiteral("images\\BodyMap\\corpo.JPG")});
    for (const char* code : codiciMuscoli()) {
        files.append(QStringLiteral("images\\BodyMap\\Corpo_%1.JPG").arg(QLatin1String(code)));
    }
    QImage picture(30, 30, QImage::Format_RGB32);
    picture.fill(Qt::lightGray);
    for (QString file : files) {
        const QString path =
            program.folder() + QLatin1Char('/') + file.replace(QLatin1Char('\\'), QLatin1Char('/'));
        QDir().mkpath(QFileInfo(path).path());
        picture.save(path, "JPG");
    }
}
