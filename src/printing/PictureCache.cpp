#include "printing/PictureCache.h"

#include <QDateTime>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace sheet {

namespace {

/// Twenty-two figures at the printer's detail: two full sheets of ten, and the logo.
constexpr qsizetype kilobytesKept = 28672;

} // namespace

PictureCache::PictureCache() : kept_(kilobytesKept) {}

Picture PictureCache::load(const QString& path, QSizeF box) {
    const QFileInfo file(path);
    const QString key = u"%1|%2|%3|%4x%5"_s.arg(path)
                            .arg(file.size())
                            .arg(file.lastModified().toMSecsSinceEpoch())
                            .arg(box.width())
                            .arg(box.height());
    if (const Picture* known = kept_.object(key))
        return *known;
    Picture picture = Picture::fromFile(path, box);
    kept_.insert(key, new Picture(picture), picture.bytes() / 1024 + 1);
    return picture;
}

} // namespace sheet
