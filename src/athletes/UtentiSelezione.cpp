#include "athletes/UtentiSelezione.h"

#include "athletes/UtentiNuovo.h"
#include "core/ImmaginiToolbar.h"
#include "core/db.h"
#include "core/f_library.h"
#include "core/variabiliGlobali.h"
#include "platform/host/Services.h"
#include "platform/runtime/Conversions.h"
#include "platform/runtime/Dates.h"
#include "platform/runtime/Error.h"
#include "platform/toolkit/Twips.h"

using namespace Qt::StringLiterals;

using toolkit::place;

namespace {

constexpr int colonneRicerca = 2; // surname and first name

} // namespace

UtentiSelezione::UtentiSelezione()
    : Form(u"UtentiSelezione"_s), Toolbar(u"Toolbar"_s, this), ImageList1({24, 24}),
      Label1(u"Label1"_s, u"Ricerca per Cognome/Nome:"_s, client()), Ricerca(u"Ricerca"_s, client()),
      LW(u"LW"_s, client()) {
    setCaption(u"Elenco UTENTI"_s);
    setInnerSize(8430, 6570);

    addTopBar(&Toolbar);
    Toolbar.addButton(u"seleziona"_s, u"Seleziona"_s, u"Seleziona l'utente evidenziato"_s);
    Toolbar.addButton(u"annulla"_s, u"Annulla"_s, u"Annulla ogni processo in corso ed esce dalla finestra"_s);
    Toolbar.addButton(u"nuovo"_s, u"Nuovo"_s, u"Inserisce un nuovo utente"_s);
    Toolbar.addButton(u"modifica"_s, u"Modifica"_s, u"Modifica i dati anagrafici dell'utente evidenziato"_s);
    Toolbar.addButton(u"elimina"_s, u"Elimina"_s,
                      u"Elimina l'utente evidenziato e tutti i suoi dati in archivio"_s);

    place(Label1, 120, 165, 2190, 225);
    place(Ricerca, 2370, 120, 3000, 315);
    Ricerca.setToolTip(u"Inserire una parte del nome o cognome per ricercare in automatico l'utente"_s);
    Ricerca.setAccessibleName(Label1.caption());

    place(LW, 120, 555, 8190, 5895);
    LW.setAccessibleName(caption());
    LW.addColumn(u"ID_atleta"_s, 0);
    LW.addColumn(u"Cognome"_s, 2805);
    LW.addColumn(u"Nome"_s, 2540);
    LW.addColumn(u"Data Nascita"_s, 2540, Qt::AlignHCenter);

    connect(&Toolbar, &toolkit::Toolbar::buttonClick, this, &UtentiSelezione::Toolbar_ButtonClick);
    connect(&Ricerca, &toolkit::TextBox::changed, this,
            [this] { cercaInLista(LW, Ricerca.text(), colonneRicerca); });
    connect(&Ricerca, &toolkit::TextBox::enterPressed, this, &UtentiSelezione::selezionaUtente);
    connect(&LW, &toolkit::ReportList::doubleClick, this, &UtentiSelezione::LW_DblClick);
}

void UtentiSelezione::onLoad() {
    vestiToolbar(Toolbar, ImageList1, objectName());
    FillListAtleti();
}

void UtentiSelezione::FillListAtleti() {
    const toolkit::ReportList::Refill sospesa(LW);
    LW.clear();
    const auto utenti = caricaUtenti();
    for (const auto& atleta : *utenti) {
        const int riga = LW.addItem(QString::number(atleta->id_utente));
        LW.setSubItem(riga, 1, atleta->cognome);
        LW.setSubItem(riga, 2, atleta->nome);
        LW.setSubItem(riga, 3, runtime::dateText(atleta->dataNascita));
    }
}

std::shared_ptr<runtime::Collection<utente>> UtentiSelezione::caricaUtenti() {
    auto utenti = std::make_shared<runtime::Collection<utente>>();
    for (auto righe = db::comune().getRs(u"SELECT id_utente FROM UTENTI"_s); !righe.EOF_();
         righe.MoveNext()) {
        auto atleta = std::make_shared<utente>();
        atleta->carica(righe.Fields(u"id_utente"_s).Value().toInt32());
        utenti->Add(atleta);
    }
    return utenti;
}

void UtentiSelezione::Toolbar_ButtonClick(const QString& key) {
    const QString tasto = key.toLower();
    if (tasto == QLatin1String("seleziona"))
        selezionaUtente();
    else if (tasto == QLatin1String("annulla"))
        unload();
    else if (tasto == QLatin1String("nuovo"))
        nuovoUtente();
    else if (tasto == QLatin1String("modifica"))
        modificaUtente();
    else if (tasto == QLatin1String("elimina"))
        eliminaUtente();
}

void UtentiSelezione::LW_DblClick() {
    if (Tag == QLatin1String("MODIFICA"))
        modificaUtente();
    else if (Tag == QLatin1String("SELEZIONA"))
        selezionaUtente();
}

void UtentiSelezione::selezionaUtente() {
    variabiliGlobali::idUtenteSelezionato = runtime::textToInt32(LW.selectedText());
    unload();
}

void UtentiSelezione::modificaUtente() {
    apriUtente(LW.selectedText());
}

void UtentiSelezione::nuovoUtente() {
    apriUtente(u"0"_s);
}

void UtentiSelezione::apriUtente(const QString& chiave) {
    UtentiNuovo& modulo = UtentiNuovo::comune();
    modulo.Tag = chiave;
    modulo.chiamante = objectName();
    modulo.load();
    modulo.showModal();
}

void UtentiSelezione::eliminaUtente() {
    try {
        const qint32 chiave = runtime::textToInt32(LW.selectedText());
        if (host::ask(u"Sei sicuro di cancellare l'atleta? Verranno cancellate tutte le sue schede!"_s,
                      host::Icon::Critical, host::Buttons::YesNo) != host::Answer::Yes)
            return;
        utente atleta;
        if (atleta.Elimina(chiave)) {
            host::message(u"Utente e schede eliminati"_s, host::Icon::Information);
            FillListAtleti();
        }
    } catch (const runtime::Error& error) {
        host::message(u"Si è verificato un errore:"_s + error.description() +
                          u"\rContattare il supporto tecnico"_s,
                      host::Icon::Critical);
    }
}
