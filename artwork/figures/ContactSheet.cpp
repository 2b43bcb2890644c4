#include "ContactSheet.h"

#include "Pose.h"

#include <QGuiApplication>
#include <QImage>
#include <QPainter>

using namespace Qt::StringLiterals;

namespace figures {

void ContactSheet::make(const std::vector<Row>& rows, const std::filesystem::path& pictures,
                        const std::filesystem::path& out) {
    // letters need a platform, pictures do not
    qputenv("QT_QPA_PLATFORM", "offscreen");
    int argc = 0;
    const QGuiApplication application(argc, nullptr);
    constexpr int columns = 7;
    constexpr int lines = 6;
    constexpr int cellWide = 216;
    constexpr int cellHigh = 246;
    constexpr int perSheet = columns * lines;
    for (std::size_t first = 0, sheet = 1; first < rows.size(); first += perSheet, ++sheet) {
        QImage image(columns * cellWide, lines * cellHigh, QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.setPen(QColor(60, 70, 90));
        QFont font(u"DejaVu Sans"_s);
        font.setPixelSize(10);
        painter.setFont(font);
        for (std::size_t i = 0; i < perSheet && first + i < rows.size(); ++i) {
            const Row& row = rows[first + i];
            const QString file = QString::fromStdString((pictures / (row.code + ".JPG")).string());
            const QImage figure(file);
            if (figure.isNull())
                throw PoseError(file.toStdString() + ": cannot be read");
            const int x = static_cast<int>(i % columns) * cellWide;
            const int y = static_cast<int>(i / columns) * cellHigh;
            const QImage small =
                figure.scaled(cellWide - 6, 200, Qt::KeepAspectRatio, Qt::SmoothTransformation);
            painter.drawImage(x + (cellWide - small.width()) / 2, y, small);
            QString muscles;
            for (const auto& m : row.muscles)
                muscles += QLatin1Char(' ') + QString::fromStdString(m);
            painter.drawText(
                QRect(x, y + 201, cellWide, 16), Qt::AlignCenter,
                u"%1 [%2]%3"_s.arg(QString::fromStdString(row.code)).arg(row.number).arg(muscles));
            painter.drawText(QRect(x + 2, y + 215, cellWide - 4, 28),
                             Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap,
                             QString::fromStdString(row.name));
        }
        painter.end();
        const auto file = out / ("figure-" + std::to_string(sheet) + ".jpg");
        if (!image.save(QString::fromStdString(file.string()), "JPG", 82))
            throw PoseError(file.string() + ": cannot be written");
    }
}

} // namespace figures
