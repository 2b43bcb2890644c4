#include "Icone.h"

#include <QFile>
#include <QSize>

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
        const QString stem = QStringLiteral(":/icone/%1/%2_%3").arg(form, key).arg(size);
        if (!QFile::exists(stem + QStringLiteral(".png")))
            return {};
        // The finer file, "@2x", is found by the icon itself.
        icon.addFile(stem + QStringLiteral(".png"), QSize(size, size), QIcon::Normal);
        icon.addFile(stem + QStringLiteral("_hot.png"), QSize(size, size), QIcon::Active);
    }
    return icon;
}

} // namespace artwork
