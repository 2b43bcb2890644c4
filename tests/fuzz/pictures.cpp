#include "fuzz/Fuzz.h"
#include "platform/pictures/PictureFile.h"
#include "printing/Picture.h"
#include "support/Errors.h"

#include <QBuffer>
#include <QFile>
#include <QImageWriter>
#include <QLoggingCategory>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;
using pictures::PictureFile;

namespace {

constexpr QSizeF box(900, 600); // twips: 60 × 40 pixels, 240 × 160 for the printer

QByteArray saved(const QImage& image, const char* format, bool progressive = false) {
    QBuffer buffer;
    QImageWriter writer(&buffer, format);
    writer.setProgressiveScanWrite(progressive);
    writer.write(image);
    return buffer.data();
}

/// `bytes` with `claim` written at `at`.
QByteArray claiming(QByteArray bytes, qsizetype at, const QByteArray& claim) {
    return bytes.replace(at, claim.size(), claim);
}

} // namespace

/// A logo is chosen through PictureFile and printed through sheet::Picture.
void fuzz::pictures(const QByteArray& input) {
    static const QTemporaryDir folder;
    [[maybe_unused]] static const bool quiet = [] {
        QLoggingCategory::setFilterRules(u"qt.gui.imageio*=false"_s); // what the decoders say of each damage
        return true;
    }();
    const QString path = folder.filePath(u"logo.jpg"_s);
    QFile file(path);
    require(file.open(QIODevice::WriteOnly) && file.write(input) == input.size(),
            "the scratch file is written");
    file.close();

    QSize own;
    QImage whole;
    QImage fitted;
    const int refused = errorOf([&] {
        const PictureFile picture(path, PictureFile::Literal);
        own = picture.size();
        whole = picture.whole();
        fitted = picture.fitted({60, 40});
        return 0;
    });
    sheet::Picture printed;
    const int unprinted = errorOf([&] {
        printed = sheet::Picture::fromFile(path, box);
        return 0;
    });
    for (const int error : {refused, unprinted})
        require(error == 0 || error == PictureFile::badPicture, "a picture or a bad picture");

    if (refused == 0) {
        require(!whole.isNull() && whole.width() <= PictureFile::largest &&
                    whole.height() <= PictureFile::largest,
                "a whole picture keeps to its largest size");
        require(fitted.size() == own.scaled(60, 40, Qt::KeepAspectRatio).expandedTo({1, 1}),
                "a fitted picture keeps its proportions in the box");
        require(qint64(own.width()) * own.height() <= PictureFile::mostPixels, "no more pixels than allowed");
        require(unprinted == 0, "a picture that shows can be printed");
        require(sheet::Picture::ownSize(path) == own, "both readers know one size");
    }
    if (unprinted == 0) {
        require(printed.bytes() <= 240 * 160 * 4, "no more detail than the printer shows");
        require(printed.stretchedTo({60, 40}).size() == QSize(60, 40), "it fills its box");
    }
}

QList<QByteArray> fuzz::pictureSeeds() {
    QImage image(300, 20, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    for (int x = 0; x < 20; ++x)
        image.setPixelColor(x * 7, x, QColor(x * 12, 255 - x, 90, 255 - x));
    const QImage opaque = image.convertToFormat(QImage::Format_RGB32);
    const QByteArray jpeg = saved(opaque, "jpeg");
    const QByteArray bmp = saved(opaque, "bmp");
    const QByteArray gif = QByteArray::fromHex("47494638396102000100800000ff00000000ff"
                                               "2c00000000020001000002028451003b");
    QList<QByteArray> seeds{jpeg,
                            saved(opaque, "jpeg", true),
                            bmp,
                            saved(image, "png"),
                            gif,
                            saved(image.convertToFormat(QImage::Format_Indexed8), "png"),
                            saved(image.convertToFormat(QImage::Format_Mono), "bmp")};
    for (const QByteArray& picture : {seeds[0], seeds[1]}) {
        const qsizetype frame = std::max(picture.indexOf("\xff\xc0"), picture.indexOf("\xff\xc2")) + 5;
        seeds += claiming(picture, frame, QByteArray::fromHex("ffdcffdc"));
        seeds += claiming(picture, frame, QByteArray::fromHex("04000400"));
    }
    seeds += claiming(bmp, 18, QByteArray::fromHex("ffffff7fffffff7f"));
    seeds += claiming(bmp, 18, QByteArray::fromHex("0005000000050000"));
    for (const char* screen : {"ffffffff", "91e90100"}) // larger than the frame
        seeds += claiming(gif, 6, QByteArray::fromHex(screen));
    return seeds;
}
