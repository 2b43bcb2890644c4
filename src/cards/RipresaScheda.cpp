#include "cards/RipresaScheda.h"

#include "athletes/utente.h"
#include "cards/SchedaApribile.h"
#include "cards/SchedaCorpo.h"
#include "cards/mdiScheda.h"
#include "core/Finestre.h"
#include "core/variabiliGlobali.h"
#include "platform/host/Services.h"
#include "platform/runtime/Dates.h"
#include "platform/runtime/Error.h"
#include "templates/SchedaModello.h"

#include <QFileInfo>

#include <optional>
#include <utility>
#include <vector>

using namespace Qt::StringLiterals;

using namespace variabiliGlobali;

namespace {

bool editorAperto() {
    return mdiScheda::esiste() && mdiScheda::comune().isVisible() && mdiScheda::comune().schedaAperta;
}

QString nomeDi(const mdiScheda& editor) {
    if (const auto* modello = dynamic_cast<const SchedaModello*>(editor.schedaAperta.get()))
        return modello->descrizione;
    return editor.utente->cognome + u' ' + editor.utente->nome;
}

QString domanda(const SchedaSospesa& sospesa) {
    return u"Ripristinare la scheda che era aperta %1, ultima modifica il %2 alle %3?\n\n"
           "Il programma si era chiuso in modo imprevisto. Con «No» la scheda resta "
           "conservata in un file a parte."_s.arg(
               (sospesa.scheda->isModello ? u"(modello «%1»)"_s : u"per %1"_s).arg(sospesa.nome),
               sospesa.ora.toString(u"dd/MM/yyyy"_s), sospesa.ora.toString(u"HH:mm"_s));
}

} // namespace

bool RipresaScheda::scrivi() {
    if (riaprendo_)
        return true;
    if (!editorAperto()) {
        if (scritto_) {
            file_.rimuovi();
            scritto_.reset();
        }
        return true;
    }
    const mdiScheda& editor = mdiScheda::comune();
    eliminate_.guarda(editor.schedaAperta);
    SchedaSospesa sospesa{.idUtenteSelezionato = idUtenteSelezionato,
                          .idSchedaSelezionata = idSchedaSelezionata,
                          .idModelloSelezionato = idModelloSelezionato,
                          .nome = nomeDi(editor),
                          .scheda = editor.schedaAperta,
                          .pagina = {},
                          .eliminati = eliminate_.righe(),
                          .ora = {}};
    if (SchedaCorpo::esiste() && SchedaCorpo::comune().isLoaded())
        sospesa.pagina = SchedaCorpo::comune().pagina();
    SchedaSospesa::Stato stato = sospesa.stato();
    if (stato == scritto_)
        return true;
    // One of an earlier run: when it was offered the store could not be read.
    if (!scritto_ && file_.esiste() && file_.mettiDaParte(u"precedente"_s).isEmpty())
        return false;
    if (!file_.scrivi(SchedaSospesa::file(stato, runtime::now())))
        return false;
    scritto_ = std::move(stato);
    return true;
}

void RipresaScheda::dopoEvento() {
    if (scrivi() || avvisato_)
        return;
    avvisato_ = true; // before the box: its own events come here too
    host::message(u"Impossibile scrivere «%1», la copia di sicurezza della scheda aperta: se il "
                  "programma si chiudesse ora, le modifiche non salvate andrebbero perse."_s.arg(
                      QFileInfo(file_.percorso()).fileName()),
                  host::Icon::Exclamation);
}

void RipresaScheda::primaDellaFine() noexcept {
    try {
        scrivi();
    } catch (...) { // the report that follows tells of the first error
    }
}

void RipresaScheda::scarta(const QString& motivo, const QString& spiegazione) const {
    const QString nome = file_.mettiDaParte(motivo);
    host::message(nome.isEmpty() ? spiegazione
                                 : spiegazione + u"\n\nIl file è conservato con il nome «%1»."_s.arg(
                                                     QFileInfo(nome).fileName()),
                  host::Icon::Exclamation);
}

void RipresaScheda::proponi() {
    if (!file_.esiste() || editorAperto())
        return;
    const auto contenuto = file_.leggi();
    auto sospesa = contenuto ? SchedaSospesa::leggi(*contenuto) : std::nullopt;
    if (!sospesa) {
        scarta(u"danneggiata"_s,
               u"La copia di sicurezza della scheda che era aperta è danneggiata e non si può "
               "ripristinare."_s);
        return;
    }
    if (host::ask(domanda(*sospesa), host::Icon::Question, host::Buttons::YesNo) != host::Answer::Yes) {
        file_.mettiDaParte(u"rifiutata"_s);
        return;
    }
    try {
        if (!sospesa->confronta()) {
            scarta(u"senzaAtleta"_s,
                   u"L’atleta della scheda, %1, non è più in archivio."_s.arg(sospesa->nome));
            return;
        }
    } catch (const runtime::Error& error) {
        host::message(u"Per ora la scheda non si può ripristinare: "_s + error.description(),
                      host::Icon::Exclamation);
        return;
    }
    riapri(*sospesa);
}

void RipresaScheda::riapri(SchedaSospesa& sospesa) {
    idUtenteSelezionato = sospesa.idUtenteSelezionato;
    idSchedaSelezionata = sospesa.idSchedaSelezionata;
    idModelloSelezionato = sospesa.idModelloSelezionato;
    const bool isSaved = sospesa.scheda->isSaved;
    std::vector<Esercizio> righe; // loading the pages writes into the lines
    for (const auto& riga : *sospesa.scheda->esercizi)
        righe.push_back(*riga);
    scritto_ = sospesa.stato();
    riaprendo_ = true; // and stays so if an error ends the program on the way
    mdiScheda::comune().riapri(sospesa.scheda);
    finestre::nascondiPrincipale();
    SchedaCorpo::comune().riprendi(righe, sospesa.pagina);
    sospesa.scheda->isSaved = isSaved;
    eliminate_.riprendi(sospesa.scheda, std::move(sospesa.eliminati));
    riaprendo_ = false;
}
