// Draws the icons of the program: quiverdeck-draw-icons <list> <theme folder> <folder to write>
// Writes <form>_<key>_<size>[_hot][@2x].png and icone.qrc with their aliases (see artwork/README.md).
#include "IconTheme.h"

#include <QColor>
#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QHash>
#include <QTextStream>

#include <cstdio>
#include <exception>
#include <stdexcept>

using namespace Qt::StringLiterals;

namespace {
constexpr int sizes[] = {16, 24, 32};

struct Tint {
    QColor normal, hot;
};

Tint tintOf(const QString& name) {
    static const QHash<QString, Tint> tints{
        {u"testo"_s, {QColor(0x3a, 0x44, 0x54), QColor(0x4a, 0x62, 0xd8)}},
        {u"accento"_s, {QColor(0x3f, 0x51, 0xb5), QColor(0x4f, 0x6c, 0xff)}},
        {u"positivo"_s, {QColor(0x2e, 0x8b, 0x57), QColor(0x22, 0xb4, 0x6a)}},
        {u"negativo"_s, {QColor(0xc0, 0x39, 0x2b), QColor(0xf0, 0x4b, 0x38)}},
    };
    if (!tints.contains(name))
        throw std::runtime_error(u"there is no tint %1"_s.arg(name).toStdString());
    return tints.value(name);
}

void drawOne(const IconTheme& theme, const QStringList& fields, const QDir& target, QTextStream& resources) {
    const Tint tint = tintOf(fields.at(3));
    for (const int size : sizes) {
        for (const bool hot : {false, true}) {
            for (const int ratio : {1, 2}) {
                const QString tail = u"_%1%2%3.png"_s.arg(size)
                                         .arg(QLatin1String(hot ? "_hot" : ""))
                                         .arg(QLatin1String(ratio == 2 ? "@2x" : ""));
                const QString file = fields.at(0) + QLatin1Char('_') + fields.at(1) + tail;
                if (!theme.draw(fields.at(2), size, ratio, hot ? tint.hot : tint.normal, hot)
                         .save(target.filePath(file)))
                    throw std::runtime_error(u"%1 cannot be written"_s.arg(file).toStdString());
                resources << u"<file alias=\"%1/%2%3\">%4</file>\n"_s.arg(fields.at(0), fields.at(1), tail,
                                                                          file);
            }
        }
    }
}

void drawAll(const QString& list, const QString& theme, const QString& folder) {
    QFile source(list);
    if (!source.open(QIODevice::ReadOnly))
        throw std::runtime_error(u"%1 cannot be read"_s.arg(list).toStdString());
    const QDir target(folder);
    target.mkpath(u"."_s);
    QFile index(target.filePath(u"icone.qrc"_s));
    if (!index.open(QIODevice::WriteOnly))
        throw std::runtime_error(u"%1 cannot be written"_s.arg(index.fileName()).toStdString());
    QTextStream resources(&index);
    resources << "<RCC><qresource prefix=\"/icone\">\n";
    const QStringList lines =
        QString::fromUtf8(source.readAll()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    for (const QString& line : lines) {
        if (line.startsWith(QLatin1Char('#')))
            continue;
        const QStringList fields = line.split(QLatin1Char(';'));
        if (fields.size() != 4)
            throw std::runtime_error(u"four fields, please: %1"_s.arg(line).toStdString());
        drawOne(IconTheme(theme), fields, target, resources);
    }
    resources << "</qresource></RCC>\n";
}
} // namespace

int main(int argc, char* argv[]) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    if (argc != 4) {
        std::fputs("usage: quiverdeck-draw-icons <list> <theme folder> <folder to write>\n", stderr);
        return 2;
    }
    try {
        drawAll(QString::fromLocal8Bit(argv[1]), QString::fromLocal8Bit(argv[2]),
                QString::fromLocal8Bit(argv[3]));
    } catch (const std::exception& error) {
        std::fprintf(stderr, "quiverdeck-draw-icons: %s\n", error.what());
        return 1;
    }
    return 0;
}
