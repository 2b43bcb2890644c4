#include "platform/toolkit/FileDialogs.h"

#include "platform/host/Application.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>

namespace toolkit {

QStringList FileDialogs::nameFilters(const QString& filter) {
    QStringList filters;
    const QStringList parts = filter.split(QLatin1Char('|'));
    for (qsizetype part = 0; part + 1 < parts.size(); part += 2) {
        QString patterns = parts.at(part + 1);
        filters.append(QStringLiteral("%1 (%2)").arg(parts.at(part),
                                                     patterns.replace(QLatin1Char(';'), QLatin1Char(' '))));
    }
    return filters;
}

QString FileDialogs::openFile(const QString& filter, const QString& folder) {
    QFileDialog dialog(QApplication::activeWindow(), host::title());
    dialog.setObjectName(QStringLiteral("fileDialog"));
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    dialog.setFileMode(QFileDialog::ExistingFile);
    dialog.setNameFilters(nameFilters(filter));
    const QString start = folder.isEmpty() ? lastFolder_ : folder;
    dialog.setDirectory(start.isEmpty() ? QDir::homePath() : start);
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) {
        return {};
    }
    const QString file = dialog.selectedFiles().constFirst();
    lastFolder_ = QFileInfo(file).absolutePath();
    return file;
}

} // namespace toolkit
