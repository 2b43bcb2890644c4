#include "platform/pictures/PictureFile.h"

#include "platform/host/ProgramDirectory.h"
#include "platform/runtime/Error.h"

#include <QFileInfo>
#include <QImageReader>

using namespace Qt::StringLiterals;

namespace pictures {

namespace {

[[noreturn]] void refuse(const QString& file) {
    runtime::raise(PictureFile::badPicture, u"Immagine non valida: %1"_s.arg(file));
}

} // namespace

PictureFile::PictureFile(const QString& path, Path kind)
    : file_(kind == Literal ? path : host::resolve(path)) {
    if (!QFileInfo(file_).isFile())
        runtime::raise(runtime::FileNotFound, u"File non trovato: %1"_s.arg(file_));
    QImageReader reader(file_);
    reader.setDecideFormatFromContent(true);
    size_ = reader.size();
    if (qint64(size_.width()) * size_.height() > (reader.format() == "jpeg" ? mostPixels : mostPixelsWhole)) {
        runtime::raise(badPicture, u"Immagine troppo grande (%1 × %2 punti): %3"_s.arg(size_.width())
                                       .arg(size_.height())
                                       .arg(file_));
    }
    turned_ = reader.transformation() & QImageIOHandler::TransformationRotate90;
    if (turned_)
        size_.transpose();
    if (!size_.isValid()) { // a format that tells its size only when read
        const QImage image = reader.read();
        if (image.isNull())
            refuse(file_);
        size_ = image.size();
    }
}

QImage PictureFile::read(const QSize& scaled) const {
    QImageReader reader(file_);
    reader.setDecideFormatFromContent(true);
    reader.setAutoTransform(true);
    if (scaled != size_)
        reader.setScaledSize(turned_ ? scaled.transposed() : scaled);
    QImage image = reader.read();
    if (image.isNull())
        refuse(file_);
    if (image.size() != scaled)
        image = image.scaled(scaled, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    return image;
}

QImage PictureFile::whole() const {
    QSize scaled = size_;
    while (scaled.width() > largest || scaled.height() > largest)
        scaled /= 2;
    return read(scaled.expandedTo({1, 1}));
}

QImage PictureFile::fitted(const QSize& box) const {
    return read(size_.scaled(box, Qt::KeepAspectRatio).expandedTo({1, 1}));
}

QImage PictureFile::within(const QSize& box) const {
    return read(size_.boundedTo(box).expandedTo({1, 1}));
}

} // namespace pictures
