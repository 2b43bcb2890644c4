#pragma once

#include <QImage>
#include <QSize>
#include <QSizeF>
#include <QString>

#include <functional>
#include <memory>

namespace sheet {

/// A picture for the sheet: decoded once, at no more than the detail the printer can show, and scaled with
/// prefiltering to whatever is painted. Cheap to copy; copies share the pixels.
class Picture {
public:
    Picture() = default;

    /// Reads a picture file for a box of `box` twips. It is decoded scaled, so that a huge one costs little
    /// memory. Raises as pictures::PictureFile.
    static Picture fromFile(const QString& path, QSizeF box);

    /// A picture drawn anew at each size in pixels, such as a vector logo: sharp at any resolution.
    static Picture drawn(std::function<QImage(QSize)> draw);

    /// The picture's own size in pixels, from its header. Raises as fromFile.
    static QSize ownSize(const QString& path);

    bool isNull() const { return !data_; }

    /// Memory its pixels take.
    qsizetype bytes() const;

    /// The picture stretched to `pixels`; the latest small result is kept, so that a repaint costs nothing.
    QImage stretchedTo(QSize pixels) const;

private:
    struct Data;
    std::shared_ptr<Data> data_;
};

} // namespace sheet
