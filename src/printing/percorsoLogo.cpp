#include "printing/percorsoLogo.h"

#include "platform/host/ProgramDirectory.h"

#include <QFileInfo>
#include <QStringList>

using namespace Qt::StringLiterals;

QString percorsoLogo(const QString& stored) {
    QString file = host::resolve(stored);
    if (QFileInfo(file).isFile())
        return file;
    const QStringList parts = QString(stored).replace(u'\\', u'/').split(u'/', Qt::SkipEmptyParts);
    if (parts.size() < 2 ||
        parts.at(parts.size() - 2).compare(QLatin1String("images"), Qt::CaseInsensitive) != 0)
        return file;
    // An apostrophe in a stored text has become a backquote.
    for (const QString& name : {parts.last(), QString(parts.last()).replace(u'`', u'\'')}) {
        QString here = host::resolve(host::joined(u"\\images\\"_s + name));
        if (QFileInfo(here).isFile())
            return here;
    }
    return file;
}
