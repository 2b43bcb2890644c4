#include "core/CopieArchivio.h"

#include "core/ModuloBase.h"
#include "platform/host/ProgramDirectory.h"
#include "platform/host/Services.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QProcess>

using namespace Qt::StringLiterals;

namespace {

QString archivio() {
    return host::programDirectory() + u'/' + ModuloBase::nomeArchivio();
}

QString cartella() {
    return host::programDirectory() + u"/backup"_s;
}

QString domanda(const store::Backups::Copy& copia) {
    return u"L’archivio «%1» manca o è danneggiato.\n\nLa copia di sicurezza più recente in buono stato è "
           "del %2 alle %3. Rimetterla al suo posto?\n\nCiò che è stato salvato dopo quel momento non c’è "
           "nella copia; il file danneggiato resta accanto al nuovo, con un altro nome."_s.arg(
               ModuloBase::nomeArchivio(), copia.taken.toString(u"dd/MM/yyyy"_s),
               copia.taken.toString(u"HH:mm"_s));
}

} // namespace

CopieArchivio::CopieArchivio() : copie_(archivio(), cartella()) {}

bool CopieArchivio::troppoRecente() {
    if (store::schemaOf(archivio()).value_or(0) <= store::schemaVersion)
        return false;
    host::message(
        u"L’archivio «%1» è stato creato da una versione più recente del programma e questa non può "
        "aprirlo senza rischi. Aggiornare il programma; l’archivio non è stato toccato."_s.arg(
            ModuloBase::nomeArchivio()),
        host::Icon::Exclamation);
    return true;
}

void CopieArchivio::copia() {
    const QString programma = QCoreApplication::applicationDirPath() + u"/quiverdeck-backup"_s;
    if (!QFileInfo(programma).isExecutable())
        return;
    // Deletes itself when it has ended. Ending this program first leaves the copy to end by itself.
    auto* processo = new QProcess; // NOLINT(cppcoreguidelines-owning-memory)
    QObject::connect(processo, &QProcess::finished, processo,
                     [this, processo](int codice, QProcess::ExitStatus stato) {
                         processo->deleteLater();
                         if (stato == QProcess::NormalExit)
                             finita(codice);
                     });
    QObject::connect(processo, &QProcess::errorOccurred, processo, [processo](QProcess::ProcessError errore) {
        if (errore == QProcess::FailedToStart) {
            processo->deleteLater();
        }
    });
    processo->start(programma, {archivio(), cartella()});
}

void CopieArchivio::finita(int esito) const {
    if (esito == static_cast<int>(store::Backups::Outcome::Damaged)) {
        if (copie_.newestGood()) {
            proponi();
            return;
        }
        host::message(u"L’archivio «%1» è danneggiato e non ne esiste una copia di sicurezza in buono "
                      u"stato.\n\nChiudere "
                      "il programma, mettere da parte una copia del file e farlo esaminare prima di lavorare "
                      "ancora."_s.arg(ModuloBase::nomeArchivio()),
                      host::Icon::Exclamation);
    } else if (esito == static_cast<int>(store::Backups::Outcome::Failed)) {
        host::message(
            u"La copia di sicurezza dell’archivio non è riuscita. Controllare lo spazio sul disco e i "
            "permessi della cartella «%1»."_s.arg(cartella()),
            host::Icon::Exclamation);
    }
}

void CopieArchivio::proponi() const {
    if (store::conditionOf(archivio()) != store::Condition::Damaged)
        return;
    const auto copia = copie_.newestGood();
    if (!copia ||
        host::ask(domanda(*copia), host::Icon::Exclamation, host::Buttons::YesNo) != host::Answer::Yes)
        return;
    const auto daParte = copie_.restore(*copia);
    if (!daParte) {
        host::message(
            u"La copia non si può rimettere al suo posto. Controllare lo spazio sul disco e i permessi "
            "della cartella «%1»."_s.arg(host::programDirectory()),
            host::Icon::Critical);
        return;
    }
    const QString conservato =
        daParte->isEmpty()
            ? QString()
            : u" Il file danneggiato si chiama ora «%1»."_s.arg(QFileInfo(*daParte).fileName());
    host::message(
        u"L’archivio è di nuovo quello del %1.%2\n\nChiudere il programma e avviarlo di nuovo."_s.arg(
            copia->taken.toString(u"dd/MM/yyyy"_s), conservato),
        host::Icon::Information);
}
