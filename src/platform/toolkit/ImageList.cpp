#include "platform/toolkit/ImageList.h"

#include "platform/pictures/PictureFile.h"
#include "platform/runtime/Error.h"

#include <QGuiApplication>
#include <QPainter>
#include <QPixmap>

using namespace Qt::StringLiterals;

namespace toolkit {

namespace {

/// The picture in the middle of a white field, in the smallest format that loses nothing to the eye: a list
/// of a thousand thumbnails stays in memory for the program's whole life.
QImage onWhite(const QImage& picture, const QSize& size) {
    QImage field(size, QImage::Format_RGB32);
    field.fill(Qt::white);
    QPainter painter(&field);
    painter.drawImage((size.width() - picture.width()) / 2, (size.height() - picture.height()) / 2, picture);
    painter.end();
    return field.convertToFormat(field.isGrayscale() ? QImage::Format_Grayscale8 : QImage::Format_RGB888);
}

} // namespace

void ImageList::setImageSize(const QSize& size) {
    if (!entries_.empty() || size.isEmpty())
        runtime::raise(runtime::InvalidPropertyValue);
    size_ = size;
}

void ImageList::insert(const QString& key, Entry entry) {
    if (positions_.contains(key))
        runtime::raise(duplicateKey, u"La chiave \"%1\" è già presente."_s.arg(key));
    positions_.insert(key, count());
    entries_.push_back(std::move(entry));
}

void ImageList::add(const QString& key, const QString& path) {
    const qreal density = qGuiApp->devicePixelRatio();
    const QSize pixels = (QSizeF(size_) * density).toSize();
    QImage image = onWhite(pictures::PictureFile(path).fitted(pixels), pixels);
    image.setDevicePixelRatio(density);
    insert(key, {image, {}});
}

void ImageList::add(const QString& key, const QIcon& icon) {
    insert(key, {{}, icon});
}

const ImageList::Entry& ImageList::entry(const QString& key) const {
    const auto found = positions_.constFind(key);
    if (found == positions_.constEnd())
        runtime::raise(runtime::ElementNotFound, {}, key);
    return entries_[static_cast<std::size_t>(*found)];
}

QIcon ImageList::iconOf(const Entry& entry) const {
    return entry.image.isNull() ? entry.icon : QIcon(QPixmap::fromImage(entry.image));
}

QIcon ImageList::icon(const QString& key) const {
    return iconOf(entry(key));
}

QIcon ImageList::icon(int position) const {
    if (position < 1 || position > count())
        runtime::raise(runtime::SubscriptOutOfRange);
    return iconOf(entries_[static_cast<std::size_t>(position - 1)]);
}

QPixmap ImageList::pixmap(const QString& key) const {
    const Entry& found = entry(key);
    return found.image.isNull() ? found.icon.pixmap(size_) : QPixmap::fromImage(found.image);
}

void ImageList::clear() {
    entries_.clear();
    positions_.clear();
}

} // namespace toolkit
