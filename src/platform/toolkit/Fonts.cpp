#include "platform/toolkit/Fonts.h"

#include <QStringList>
#include <cmath>

using namespace Qt::StringLiterals;

namespace toolkit {

namespace {

QStringList families(const QString& family) {
    const QString name = family.toLower();
    if (name == QLatin1String("verdana") || name == QLatin1String("tahoma"))
        return {family, u"DejaVu Sans"_s};
    if (name == QLatin1String("times new roman"))
        return {family, u"Liberation Serif"_s};
    if (name == QLatin1String("arial"))
        return {family, u"Liberation Sans"_s};
    return {u"Liberation Sans"_s, u"Arial"_s};
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
    return font(u"MS Sans Serif"_s, 8.25);
}

} // namespace toolkit
