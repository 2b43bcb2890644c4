#include "ContactSheet.h"

#include "BodyRelief.h"

#include "src/figures/AreeCorpo.h"

#include <QPainter>

using namespace Qt::StringLiterals;

namespace {
constexpr int columns = 4;
constexpr int caption = 30;

void drawAreas(QPainter& painter, const QString& code, double pixelsPerTwip) {
    painter.save();
    painter.scale(pixelsPerTwip, pixelsPerTwip);
    painter.setPen(QPen(QColor(40, 90, 200), 5));
    for (const AreaCorpo& area : areeCorpo())
        if (code.isEmpty() || code == QLatin1String(area.codice))
            painter.drawRect(area.left, area.top, area.width, area.height);
    painter.restore();
}
} // namespace

QImage contactSheet(const BodyRelief& relief) {
    QStringList codes{QString()};
    for (const char* code : codiciMuscoli())
        codes += QString::fromLatin1(code);
    const QSize one = relief.picture({}).size();
    const auto rows = static_cast<int>((codes.size() + columns - 1) / columns);
    QImage sheet(one.width() * columns, (one.height() + caption) * rows, QImage::Format_RGB32);
    sheet.fill(Qt::white);
    QPainter painter(&sheet);
    painter.setRenderHint(QPainter::Antialiasing);
    QFont font(u"DejaVu Sans"_s);
    font.setPixelSize(caption - 8);
    painter.setFont(font);
    for (int i = 0; i < codes.size(); ++i) {
        painter.save();
        const int row = i / columns;
        painter.translate((i % columns) * one.width(), row * (one.height() + caption));
        painter.drawImage(0, 0, relief.picture(codes.at(i)));
        drawAreas(painter, codes.at(i), static_cast<double>(one.width()) / larghezzaMappa);
        painter.drawText(QRect(0, one.height(), one.width(), caption), Qt::AlignCenter, codes.at(i));
        painter.restore();
    }
    return sheet.scaledToWidth(sheet.width() * 3 / 5, Qt::SmoothTransformation);
}
