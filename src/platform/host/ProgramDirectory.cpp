#include "platform/host/ProgramDirectory.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace host {

namespace {

QString& replacement() {
    static QString folder;
    return folder;
}

/// The name in `folder` that equals `name` but for its case; `name` itself if there is none.
QString nameInFolder(const QString& folder, const QString& name) {
    const auto names = QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::System);
    for (const QString& candidate : names)
        if (candidate.compare(name, Qt::CaseInsensitive) == 0)
            return candidate;
    return name;
}

} // namespace

QString programDirectory() {
    return replacement().isEmpty() ? QCoreApplication::applicationDirPath() : replacement();
}

void setProgramDirectory(const QString& folder) {
    QString plain = folder;
    while (plain.size() > 1 && plain.endsWith(u'/'))
        plain.chop(1);
    replacement() = plain;
}

QString joined(const QString& text) {
    return programDirectory() + text;
}

QString resolve(const QString& storedPath) {
    if (storedPath.isEmpty())
        return {};
    // The program's directory is taken as it is: its name may well hold a backslash of its own.
    const QString home = programDirectory();
    const auto isSeparator = [](QChar c) { return c == u'/' || c == u'\\'; };
    const bool behindHome = storedPath.startsWith(home) &&
                            (storedPath.size() == home.size() || isSeparator(storedPath[home.size()]));
    QString base = home;
    QString rest = behindHome ? storedPath.mid(home.size()) : storedPath;
    rest.replace(u'\\', u'/');
    if (!behindHome && storedPath.startsWith(u'/'))
        base = u"/"_s;
    QString exact = QDir::cleanPath(base + u'/' + rest);
    if (QFileInfo::exists(exact))
        return exact;
    QString found = QDir::cleanPath(base);
    const auto segments = QDir::cleanPath(u'/' + rest).split(u'/', Qt::SkipEmptyParts);
    for (const QString& segment : segments) {
        const QString folder = found;
        found = folder + (folder.endsWith(u'/') ? QString() : u"/"_s) + segment;
        if (!QFileInfo::exists(found))
            found = QDir(folder).filePath(nameInFolder(folder, segment));
    }
    return found;
}

} // namespace host
