#include "platform/host/Settings.h"

#include "platform/host/Application.h"
#include "platform/runtime/Error.h"

#include <QSettings>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace host {

namespace {

QString& folderReplacement() {
    static QString folder;
    return folder;
}

/// The INI format writes keys without a group under [General].
QString keyPath(const QString& section, const QString& key) {
    return section == u"General"_s ? key : section + u'/' + key;
}

} // namespace

QString settingsFile() {
    const QString folder = folderReplacement().isEmpty()
                               ? QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation)
                               : folderReplacement();
    return folder + u'/' + title() + u".ini"_s;
}

void setSettingsFolder(const QString& folder) {
    folderReplacement() = folder;
}

void saveSetting(const QString& section, const QString& key, const QString& value) {
    QSettings settings(settingsFile(), QSettings::IniFormat);
    settings.setValue(keyPath(section, key), value);
    settings.sync();
    if (settings.status() != QSettings::NoError)
        runtime::raise(runtime::PathFileAccess,
                       u"Impossibile scrivere le impostazioni: "_s + settings.fileName());
}

} // namespace host
