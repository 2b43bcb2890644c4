#include "printing/Picture.h"

#include "platform/pictures/PictureFile.h"
#include "printing/Surface.h"

namespace sheet {

namespace {

/// The finest the sheet is ever rastered: four device pixels to the logical one.
constexpr double finestRatio = 4;

/// A scaled copy up to this size (a screen's) is kept with its picture; the printer's are made and dropped.
constexpr qsizetype bytesKeptScaled = 524'288;

QSize finestSize(QSizeF box) {
    return (box * finestRatio / twipsPerPixel).toSize().expandedTo({1, 1});
}

} // namespace

struct Picture::Data {
    std::function<QImage(QSize)> draw; ///< Of a drawn picture.
    QImage master;                     ///< Of a file: at the finest detail needed.
    QImage latest;                     ///< The latest small scaled copy.
};

QSize Picture::ownSize(const QString& path) {
    return pictures::PictureFile(path, pictures::PictureFile::Literal).size();
}

Picture Picture::fromFile(const QString& path, QSizeF box) {
    QImage image = pictures::PictureFile(path, pictures::PictureFile::Literal).within(finestSize(box));
    image.convertTo(image.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32);
    Picture picture;
    picture.data_ = std::make_shared<Data>();
    picture.data_->master = image;
    return picture;
}

Picture Picture::drawn(std::function<QImage(QSize)> draw) {
    Picture picture;
    picture.data_ = std::make_shared<Data>();
    picture.data_->draw = std::move(draw);
    return picture;
}

qsizetype Picture::bytes() const {
    return data_ ? data_->master.sizeInBytes() + data_->latest.sizeInBytes() : 0;
}

QImage Picture::stretchedTo(QSize pixels) const {
    if (!data_ || pixels.isEmpty())
        return {};
    if (data_->latest.size() == pixels)
        return data_->latest;
    if (data_->master.size() == pixels)
        return data_->master;
    QImage scaled = data_->draw
                        ? data_->draw(pixels)
                        : data_->master.scaled(pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    if (scaled.sizeInBytes() <= bytesKeptScaled)
        data_->latest = scaled;
    return scaled;
}

} // namespace sheet
