#include "Loghi.h"

#include <QPainter>
#include <QPixmap>
#include <QSvgRenderer>

using namespace Qt::StringLiterals;

// A static library's resources are linked in only if somebody names them; the macro wants no namespace around
// it.
static void loadLogos() {
    Q_INIT_RESOURCE(loghi);
}

namespace artwork {

namespace {
QString fileOf(Logo which) {
    switch (which) {
    case Logo::QuiverDeck:
        return u":/loghi/quiverdeck.svg"_s;
    case Logo::Zentara:
        return u":/loghi/zentara.svg"_s;
    case Logo::BarraMenu:
        return u":/loghi/barra.svg"_s;
    case Logo::Programma:
        break;
    }
    return u":/loghi/programma.svg"_s;
}
} // namespace

QImage logo(Logo which, const QSize& pixels) {
    loadLogos();
    QImage image(pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QSvgRenderer renderer(fileOf(which));
    const QSizeF shown = QSizeF(renderer.defaultSize()).scaled(pixels, Qt::KeepAspectRatio);
    const QPointF corner((pixels.width() - shown.width()) / 2, (pixels.height() - shown.height()) / 2);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    renderer.render(&painter, QRectF(corner, shown));
    return image;
}

QIcon iconaProgramma() {
    QIcon icon;
    for (const int side : {16, 24, 32, 48, 64, 128, 256})
        icon.addPixmap(QPixmap::fromImage(logo(Logo::Programma, QSize(side, side))));
    return icon;
}

} // namespace artwork
