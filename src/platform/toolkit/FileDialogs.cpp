#include "platform/toolkit/FileDialogs.h"

#include "platform/host/Application.h"
#include "platform/pictures/PictureFile.h"
#include "platform/runtime/Error.h"
#include "platform/toolkit/DialogOwner.h"
#include "platform/toolkit/Hourglass.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QGridLayout>
#include <QLabel>

using namespace Qt::StringLiterals;

namespace toolkit {

namespace {

constexpr QSize previewSize(200, 200); // logical pixels

/// Shows the marked picture at the dialog's right side, or why it cannot be shown.
void addPreview(QFileDialog& dialog) {
    auto* grid = qobject_cast<QGridLayout*>(dialog.layout());
    if (grid == nullptr)
        return;
    auto* preview = new QLabel(&dialog);
    preview->setObjectName(u"preview"_s);
    preview->setFixedWidth(previewSize.width() + 10);
    preview->setAlignment(Qt::AlignCenter);
    preview->setWordWrap(true);
    preview->setFrameStyle(QFrame::StyledPanel | QFrame::Plain);
    grid->addWidget(preview, 1, grid->columnCount());
    QObject::connect(&dialog, &QFileDialog::currentChanged, preview, [preview](const QString& path) {
        preview->clear();
        if (!QFileInfo(path).isFile())
            return;
        try {
            const pictures::PictureFile file(path, pictures::PictureFile::Literal);
            const bool fits =
                file.size().width() <= previewSize.width() && file.size().height() <= previewSize.height();
            preview->setPixmap(QPixmap::fromImage(fits ? file.whole() : file.fitted(previewSize)));
        } catch (const runtime::Error&) {
            preview->setText(u"Nessuna anteprima"_s);
        }
    });
}

} // namespace

QStringList FileDialogs::nameFilters(const QString& filter) {
    QStringList filters;
    const QStringList parts = filter.split(QLatin1Char('|'));
    for (qsizetype part = 0; part + 1 < parts.size(); part += 2) {
        QString patterns = parts.at(part + 1);
        filters.append(
            u"%1 (%2)"_s.arg(parts.at(part), patterns.replace(QLatin1Char(';'), QLatin1Char(' '))));
    }
    return filters;
}

QString FileDialogs::openFile(const QString& filter, const QString& folder) {
    QFileDialog dialog(dialogOwner(), host::title());
    dialog.setObjectName(u"fileDialog"_s);
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    dialog.setFileMode(QFileDialog::ExistingFile);
    dialog.setNameFilters(nameFilters(filter));
    if (filter.contains(QLatin1String("*.jpg"), Qt::CaseInsensitive)) {
        addPreview(dialog);
        dialog.setViewMode(QFileDialog::List); // names whole, beside the picture
        dialog.resize(820, 480);
    }
    const QString start = folder.isEmpty() ? lastFolder_ : folder;
    dialog.setDirectory(start.isEmpty() ? QDir::homePath() : start);
    const Hourglass::Pause pause;
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return {};
    QString file = dialog.selectedFiles().constFirst();
    lastFolder_ = QFileInfo(file).absolutePath();
    return file;
}

} // namespace toolkit
