#include "cards/FileSospeso.h"

#include "core/ModuloBase.h"
#include "platform/host/ProgramDirectory.h"
#include "platform/runtime/Dates.h"

#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 massimo = qint64{64} * 1024 * 1024; // bytes; far more than the longest card has

bool scriviTutto(int file, const QByteArray& contenuto) {
    qsizetype scritti = 0;
    while (scritti < contenuto.size()) {
        const ssize_t n = ::write(file, contenuto.constData() + scritti,
                                  static_cast<std::size_t>(contenuto.size() - scritti));
        if (n < 0 && errno != EINTR)
            return false;
        if (n > 0)
            scritti += n;
    }
    return true;
}

} // namespace

FileSospeso::FileSospeso()
    : percorso_(host::programDirectory() + u'/' + ModuloBase::nomeArchivio() + u".aperta"_s) {}

bool FileSospeso::esiste() const {
    return QFileInfo::exists(percorso_);
}

std::optional<QByteArray> FileSospeso::leggi() const {
    QFile file(percorso_);
    if (file.size() > massimo || !file.open(QIODevice::ReadOnly))
        return {};
    return file.readAll();
}

bool FileSospeso::scrivi(const QByteArray& contenuto) const {
    const QByteArray nome = QFile::encodeName(percorso_);
    const QByteArray nuovo = nome + ".nuova";
    ::unlink(nuovo.constData()); // left by a process that was killed, with whatever rights
    const int file = ::open(nuovo.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, S_IRUSR | S_IWUSR);
    if (file < 0)
        return false;
    const bool intero = scriviTutto(file, contenuto);
    if (::close(file) == 0 && intero && ::rename(nuovo.constData(), nome.constData()) == 0)
        return true;
    ::unlink(nuovo.constData());
    return false;
}

void FileSospeso::rimuovi() const {
    QFile::remove(percorso_);
}

QString FileSospeso::mettiDaParte(const QString& motivo) const {
    const QString radice = percorso_ + u'.' + motivo + u'-' + runtime::now().toString(u"yyyyMMdd-HHmmss"_s);
    QString nome = radice;
    for (int n = 2; QFileInfo::exists(nome); ++n)
        nome = radice + u'-' + QString::number(n);
    return QFile::rename(percorso_, nome) ? nome : QString();
}
