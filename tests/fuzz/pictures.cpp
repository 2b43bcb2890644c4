#include "fuzz/Fuzz.h"
#include "platform/pictures/PictureFile.h"
#include "printing/Picture.h"
#include "support/Errors.h"
#include "support/Files.h"

#include <QBuffer>
#include <QImageWriter>
#include <QLoggingCategory>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;
using pictures::PictureFile;

namespace {

QByteArray saved(const QImage& image, const char* format, bool progressive = false) {
    QBuffer buffer;
    QImageWriter writer(&buffer, format);
    writer.setProgressiveScanWrite(progressive);
    writer.write(image);
    return buffer.data();
}

} // namespace

/// A logo is chosen through PictureFile and printed through sheet::Picture.
void fuzz::pictures(const QByteArray& input) {
    static const QTemporaryDir folder;
    QLoggingCategory::setFilterRules(u"qt.gui.imageio*=false"_s); // what the decoders say of each damage
    const QString path = folder.filePath(u"logo.jpg"_s);
    writeFile(path, input);
    QSize own;
    QImage whole;
    QImage fitted;
    const int refused = errorOf([&] {
        const PictureFile picture(path, PictureFile::Literal);
        own = picture.size();
        whole = picture.whole();
        fitted = picture.fitted({60, 40});
    });
    sheet::Picture printed; // in 60 × 40 pixels, 240 × 160 for the printer
    const int unprinted = errorOf([&] { printed = sheet::Picture::fromFile(path, {900, 600}); });
    for (const int error : {refused, unprinted})
        require(error == 0 || error == PictureFile::badPicture, "a picture or a bad picture");
    if (refused == 0) {
        require(!whole.isNull() && std::max(whole.width(), whole.height()) <= PictureFile::largest,
                "a whole picture keeps to its largest size");
        require(fitted.size() == own.scaled(60, 40, Qt::KeepAspectRatio).expandedTo({1, 1}),
                "a fitted picture keeps its proportions in the box");
        require(qint64(own.width()) * own.height() <= PictureFile::mostPixels, "no more pixels than allowed");
        require(unprinted == 0, "a picture that shows can be printed");
        require(sheet::Picture::ownSize(path) == own, "both readers know one size");
    }
    if (unprinted == 0) {
        require(printed.bytes() <= 240LL * 160 * 4, "no more detail than the printer shows");
        require(printed.stretchedTo({60, 40}).size() == QSize(60, 40), "it fills its box");
    }
}

QList<QByteArray> fuzz::pictureSeeds() {
    QImage image(300, 20, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    for (int x = 0; x < 20; ++x)
        image.setPixelColor(x * 7, x, QColor(x * 12, 255 - x, 90, 255 - x));
    const QImage opaque = image.convertToFormat(QImage::Format_RGB32);
    const QByteArray bmp = saved(opaque, "bmp");
    const auto gif =
        QByteArray::fromHex("47494638396102000100800000ff00000000ff2c00000000020001000002028451003b");
    QList<QByteArray> seeds{saved(opaque, "jpeg"),
                            saved(opaque, "jpeg", true),
                            bmp,
                            saved(image, "png"),
                            gif,
                            saved(image.convertToFormat(QImage::Format_Indexed8), "png"),
                            saved(image.convertToFormat(QImage::Format_Mono), "bmp")};
    // Heads that claim more than they hold.
    const auto claim = [&seeds](QByteArray picture, qsizetype at, const char* hex) {
        const QByteArray bytes = QByteArray::fromHex(hex);
        seeds += picture.replace(at, bytes.size(), bytes);
    };
    for (const QByteArray& picture : {seeds[0], seeds[1]})
        for (const char* size : {"ffdcffdc", "04000400"})
            claim(picture, std::max(picture.indexOf("\xff\xc0"), picture.indexOf("\xff\xc2")) + 5, size);
    for (const char* size : {"ffffff7fffffff7f", "0005000000050000"})
        claim(bmp, 18, size);
    for (const char* screen : {"ffffffff", "91e90100"}) // larger than the frame
        claim(gif, 6, screen);
    return seeds;
}
