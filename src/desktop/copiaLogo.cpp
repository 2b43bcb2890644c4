#include "desktop/copiaLogo.h"

#include "platform/host/ProgramDirectory.h"
#include "platform/pictures/PictureFile.h"
#include "platform/runtime/Error.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

constexpr int PathAccess = 75;

[[noreturn]] void nonCopiato(const QString& destinazione) {
    runtime::raise(PathAccess, u"Impossibile copiare l’immagine in: %1"_s.arg(destinazione));
}

/// Copies beside the destination first, so that the file of that name is replaced whole or not at all.
void sostituisci(const QString& origine, const QString& destinazione) {
    const QString nuovo = destinazione + u".nuovo"_s;
    QFile::remove(nuovo);
    if (QFileInfo(destinazione).isDir() || !QDir().mkpath(QFileInfo(destinazione).path()) ||
        !QFile::copy(origine, nuovo)) {
        QFile::remove(nuovo);
        nonCopiato(destinazione);
    }
    // The copy of a write-protected file would be one too, and could not be replaced the next time.
    QFile::setPermissions(nuovo, QFile::permissions(nuovo) | QFile::ReadOwner | QFile::WriteOwner);
    QFile::remove(destinazione);
    if (!QFile::rename(nuovo, destinazione)) {
        QFile::remove(nuovo);
        nonCopiato(destinazione);
    }
}

} // namespace

QString copiaLogo(const QString& scelto) {
    static_cast<void>(pictures::PictureFile(scelto, pictures::PictureFile::Literal).whole());
    // A backslash would part the stored path.
    const QString nome = QFileInfo(scelto).fileName().replace(QLatin1Char('\\'), QLatin1Char('_'));
    QString percorso = host::joined(u"\\images\\"_s + nome);
    const QString destinazione = host::resolve(percorso);
    if (QFileInfo(destinazione).canonicalFilePath() != QFileInfo(scelto).canonicalFilePath())
        sostituisci(scelto, destinazione);
    return percorso;
}
