#include "printing/percorsoLogo.h"

#include "platform/host/ProgramDirectory.h"

#include <QFileInfo>
#include <QStringList>

QString percorsoLogo(const QString& stored) {
    QString file = host::resolve(stored);
    if (QFileInfo(file).isFile())
        return file;
    const QStringList parts = QString(stored).replace(u'\\', u'/').split(u'/', Qt::SkipEmptyParts);
    if (parts.size() < 2 ||
        parts.at(parts.size() - 2).compare(QLatin1String("images"), Qt::CaseInsensitive) != 0)
        return file;
    QString moved = host::resolve(host::joined(QStringLiteral("\\images\\") + parts.last()));
    return QFileInfo(moved).isFile() ? moved : file;
}
