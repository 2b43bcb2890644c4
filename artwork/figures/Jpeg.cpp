#include "Jpeg.h"

#include "Pose.h"

#include <QBuffer>
#include <QImageWriter>
#include <QSaveFile>

namespace figures {

void Jpeg::save(const QImage& image, const std::filesystem::path& file) {
    for (int quality = 90; quality >= 78; quality -= 3) {
        QBuffer buffer;
        buffer.open(QIODevice::WriteOnly);
        QImageWriter writer(&buffer, "jpg");
        writer.setQuality(quality);
        writer.setOptimizedWrite(true);
        if (!writer.write(image))
            break;
        if (buffer.size() > heaviest)
            continue;
        QSaveFile out(QString::fromStdString(file.string()));
        if (out.open(QIODevice::WriteOnly) && out.write(buffer.data()) == buffer.size() && out.commit())
            return;
        break;
    }
    throw PoseError(file.string() + ": cannot be written, or stays too heavy");
}

} // namespace figures
