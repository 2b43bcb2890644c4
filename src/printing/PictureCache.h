#pragma once

#include "printing/Picture.h"

#include <QCache>

namespace sheet {

/// The pictures decoded for one surface, so that paging back and forth and repainting decode nothing.
/// A file that has changed since is read again.
class PictureCache {
public:
    PictureCache();

    /// The picture of `path` for a box in twips. Raises as Picture::fromFile.
    Picture load(const QString& path, QSizeF box);

private:
    QCache<QString, Picture> kept_; ///< Cost in kilobytes.
};

} // namespace sheet
