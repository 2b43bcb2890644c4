#include "platform/toolkit/Fonts.h"

#include <QStringList>
#include <cmath>

namespace toolkit {

namespace {

QStringList families(const QString& family) {
    const QString name = family.toLower();
    if (name == QLatin1String("verdana") || name == QLatin1String("tahoma")) {
        return {family, QStringLiteral("DejaVu Sans")};
    }
    if (name == QLatin1String("times new roman")) {
        return {family, QStringLiteral("Liberation Serif")};
    }
    if (name == QLatin1String("arial")) {
        return {family, QStringLiteral("Liberation Sans")};
    }
    return {QStringLiteral("Liberation Sans"), QStringLiteral("Arial")};
}

} // namespace

QFont font(const QString& family, double points, bool bold) {
    QFont result;
    result.setFamilies(families(family));
    result.setPixelSize(static_cast<int>(std::lround(points * 96.0 / 72.0)));
    result.setBold(bold);
    result.setStyleHint(QFont::SansSerif);
    return result;
}

QFont formFont() {
    return font(QStringLiteral("MS Sans Serif"), 8.25);
}

} // namespace toolkit
