// Paints a vector drawing on white: quiverdeck-draw-svg <svg> <width> <height> <picture to write>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include <cstdio>

namespace {
constexpr int quality = 95;
}

int main(int argc, char* argv[]) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    const QStringList arguments = QGuiApplication::arguments();
    if (arguments.size() != 5) {
        std::fputs("usage: quiverdeck-draw-svg <svg> <width> <height> <picture>\n", stderr);
        return 2;
    }
    QSvgRenderer renderer(arguments.at(1));
    QImage image(arguments.at(2).toInt(), arguments.at(3).toInt(), QImage::Format_RGB32);
    if (!renderer.isValid() || image.isNull()) {
        std::fprintf(stderr, "quiverdeck-draw-svg: %s cannot be drawn\n", qPrintable(arguments.at(1)));
        return 1;
    }
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    renderer.render(&painter);
    painter.end();
    if (!image.save(arguments.at(4), nullptr, quality)) {
        std::fprintf(stderr, "quiverdeck-draw-svg: %s cannot be written\n", qPrintable(arguments.at(4)));
        return 1;
    }
    return 0;
}
