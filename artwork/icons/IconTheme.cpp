#include "IconTheme.h"

#include <QFile>
#include <QPainter>
#include <QRegularExpression>
#include <QSvgRenderer>

#include <stdexcept>

using namespace Qt::StringLiterals;

namespace {
/// The look of a colour under the pointer: fuller and a little lighter.
QColor hotColour(const QColor& colour) {
    float hue = 0;
    float saturation = 0;
    float value = 0;
    colour.getHsvF(&hue, &saturation, &value);
    return QColor::fromHsvF(hue, qMin(1.0F, saturation * 1.15F), qMin(1.0F, value * 1.35F + 0.08F));
}

/// Rewrites the colours of the theme's style classes.
QByteArray recoloured(const QByteArray& svg, const QColor& tint, bool hot) {
    static const QRegularExpression rule(
        u"\\.ColorScheme-(\\w+)\\s*\\{\\s*color\\s*:\\s*(#[0-9a-fA-F]{6})\\s*;?\\s*\\}"_s);
    const QString text = QString::fromUtf8(svg);
    QString result;
    qsizetype from = 0;
    for (auto matches = rule.globalMatch(text); matches.hasNext();) {
        const auto match = matches.next();
        const bool isText = match.captured(1) == QLatin1String("Text");
        const QColor own(match.captured(2));
        const QColor colour = isText ? tint : hot ? hotColour(own) : own;
        result += text.mid(from, match.capturedStart() - from);
        result += u".ColorScheme-%1{color:%2;}"_s.arg(match.captured(1), colour.name());
        from = match.capturedEnd();
    }
    return (result + text.mid(from)).toUtf8();
}
} // namespace

QByteArray IconTheme::source(const QString& name, int side, int& drawnFor) const {
    // Lines stay crisp when the drawing's own size divides the asked one; 22 is the theme's name for 24.
    const int wanted = side >= 32 ? 32 : side >= 22 ? 22 : 16;
    for (const int size : {wanted, 22, 32, 16}) {
        QFile file(folder_.filePath(u"actions/%1/%2.svg"_s.arg(size).arg(name)));
        if (!file.open(QIODevice::ReadOnly))
            continue;
        QByteArray svg = file.readAll();
        // A drawing without style classes is a full-colour picture, which would stand out from the family.
        if (svg.contains("ColorScheme-")) {
            drawnFor = size;
            return svg;
        }
    }
    throw std::runtime_error(u"%1: there is no icon %2"_s.arg(folder_.path(), name).toStdString());
}

QImage IconTheme::draw(const QString& name, int side, int ratio, const QColor& tint, bool hot) const {
    int drawnFor = 0;
    QSvgRenderer renderer(recoloured(source(name, side, drawnFor), tint, hot));
    if (!renderer.isValid())
        throw std::runtime_error(u"the icon %1 cannot be read"_s.arg(name).toStdString());
    QImage image(side * ratio, side * ratio, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    // A drawing of 22 stands unscaled in the middle of 24; any other fills the square.
    const int shown = drawnFor == 22 && side == 24 ? 22 : side;
    const qreal margin = (side - shown) / 2.0 * ratio;
    renderer.render(&painter, QRectF(margin, margin, shown * ratio, shown * ratio));
    return image;
}
