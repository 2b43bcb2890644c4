#include "Icone.h"

#include <QPixmap>

using namespace Qt::StringLiterals;

// A static library's resources are linked in only if somebody names them; the macro wants no namespace around
// it.
static void loadIcons() {
    Q_INIT_RESOURCE(icone);
}

namespace artwork {

QIcon icona(const QString& form, const QString& key) {
    loadIcons();
    QIcon icon;
    for (const int size : {16, 24, 32}) {
        for (const int ratio : {1, 2}) {
            for (const bool hot : {false, true}) {
                // Loaded one by one: left to itself, an icon takes the finer files on a fine screen only, and
                // not when a window is drawn enlarged.
                QPixmap picture(u":/icone/%1/%2_%3%4%5.png"_s.arg(form, key).arg(size).arg(
                    QLatin1String(hot ? "_hot" : ""), QLatin1String(ratio == 2 ? "@2x" : "")));
                if (picture.isNull())
                    return {};
                picture.setDevicePixelRatio(ratio);
                icon.addPixmap(picture, hot ? QIcon::Active : QIcon::Normal);
            }
        }
    }
    return icon;
}

} // namespace artwork
