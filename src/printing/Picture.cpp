#include "printing/Picture.h"

#include "platform/runtime/Error.h"
#include "printing/Surface.h"

#include <QFileInfo>
#include <QImageReader>

namespace sheet {

namespace {

/// The finest the sheet is ever rastered: four device pixels to the logical one.
constexpr double finestRatio = 4;

/// A scaled copy up to this size (a screen's) is kept with its picture; the printer's are made and dropped.
constexpr qsizetype bytesKeptScaled = 524'288;

/// A picture that no box of ours could need in full is refused above this many pixels, 100 megapixels: GIF
/// and BMP are decoded whole, and a progressive JPEG takes six bytes for each pixel that its head claims.
constexpr qint64 mostPixels = 100'000'000;

[[noreturn]] void refuse(const QString& path, const QString& reason) {
    runtime::raise(InvalidPicture, QStringLiteral("Immagine non valida: %1 (%2)").arg(path, reason));
}

/// Opens the reader on an existing picture and gives its size after any turning the file asks for.
QSize open(QImageReader& reader, const QString& path) {
    if (!QFileInfo(path).isFile())
        runtime::raise(runtime::FileNotFound, QStringLiteral("Impossibile trovare il file: %1").arg(path));
    reader.setFileName(path);
    reader.setDecideFormatFromContent(true);
    reader.setAutoTransform(true);
    reader.setAllocationLimit(512);
    QSize size = reader.size();
    if (!reader.canRead() || !size.isValid() || size.isEmpty())
        refuse(path, reader.errorString());
    if (qint64(size.width()) * size.height() > mostPixels)
        refuse(path, QStringLiteral("troppo grande"));
    if (reader.transformation() & QImageIOHandler::TransformationRotate90)
        size.transpose();
    return size;
}

/// Reads the picture at `wanted` pixels. A GIF's reader tells its first frame's size and may read its whole
/// screen, which is then brought to the size told.
QImage read(QImageReader& reader, const QString& path, QSize wanted) {
    QImage image = reader.read();
    if (image.isNull())
        refuse(path, reader.errorString());
    if (image.size() != wanted)
        image = image.scaled(wanted, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    const auto format = image.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32;
    image.convertTo(format);
    return image;
}

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
    QImageReader reader;
    return open(reader, path);
}

Picture Picture::fromFile(const QString& path, QSizeF box) {
    QImageReader reader;
    const QSize own = open(reader, path);
    const QSize wanted = finestSize(box).boundedTo(own);
    if (wanted != own) {
        const bool turned = reader.transformation() & QImageIOHandler::TransformationRotate90;
        reader.setScaledSize(turned ? wanted.transposed() : wanted);
    }
    Picture picture;
    picture.data_ = std::make_shared<Data>();
    picture.data_->master = read(reader, path, wanted);
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
