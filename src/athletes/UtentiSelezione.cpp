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

using toolkit::place;

namespace {

constexpr int colonneRicerca = 2; // surname and first name

} // namespace

UtentiSelezione::UtentiSelezione()
    : Form(QStringLiteral("UtentiSelezione")), Toolbar(QStringLiteral("Toolbar"), this), ImageList1({24, 24}),
      Label1(QStringLiteral("Label1"), QStringLiteral("Ricerca per Cognome/Nome:"), client()),
      Ricerca(QStringLiteral("Ricerca"), client()), LW(QStringLiteral("LW"), client()) {
    setCaption(QStringLiteral("Elenco UTENTI"));
    setInnerSize(8430, 6570);

    addTopBar(&Toolbar);
    Toolbar.addButton(QStringLiteral("seleziona"), QStringLiteral("Seleziona"),
                      QStringLiteral("Seleziona l'utente evidenziato"));
    Toolbar.addButton(QStringLiteral("annulla"), QStringLiteral("Annulla"),
                      QStringLiteral("Annulla ogni processo in corso ed esce dalla finestra"));
    Toolbar.addButton(QStringLiteral("nuovo"), QStringLiteral("Nuovo"),
                      QStringLiteral("Inserisce un nuovo utente"));
    Toolbar.addButton(QStringLiteral("modifica"), QStringLiteral("Modifica"),
                      QStringLiteral("Modifica i dati anagrafici dell'utente evidenziato"));
    Toolbar.addButton(QStringLiteral("elimina"), QStringLiteral("Elimina"),
                      QStringLiteral("Elimina l'utente evidenziato e tutti i suoi dati in archivio"));

    place(Label1, 120, 165, 2190, 225);
    place(Ricerca, 2370, 120, 3000, 315);
    Ricerca.setToolTip(
        QStringLiteral("Inserire una parte del nome o cognome per ricercare in automatico l'utente"));
    Ricerca.setAccessibleName(Label1.caption());

    place(LW, 120, 555, 8190, 5895);
    LW.setAccessibleName(caption());
    LW.addColumn(QStringLiteral("ID_atleta"), 0);
    LW.addColumn(QStringLiteral("Cognome"), 2805);
    LW.addColumn(QStringLiteral("Nome"), 2540);
    LW.addColumn(QStringLiteral("Data Nascita"), 2540, Qt::AlignHCenter);

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
    for (auto righe = db::comune().getRs(QStringLiteral("SELECT id_utente FROM UTENTI")); !righe.EOF_();
         righe.MoveNext()) {
        auto atleta = std::make_shared<utente>();
        atleta->carica(righe.Fields(QStringLiteral("id_utente")).Value().toInt32());
        utenti->Add(atleta);
    }
    return utenti;
}

void UtentiSelezione::Toolbar_ButtonClick(const QString& key) {
    const QString tasto = key.toLower();
    if (tasto == QLatin1String("seleziona")) {
        selezionaUtente();
    } else if (tasto == QLatin1String("annulla")) {
        unload();
    } else if (tasto == QLatin1String("nuovo")) {
        nuovoUtente();
    } else if (tasto == QLatin1String("modifica")) {
        modificaUtente();
    } else if (tasto == QLatin1String("elimina")) {
        eliminaUtente();
    }
}

void UtentiSelezione::LW_DblClick() {
    if (Tag == QLatin1String("MODIFICA")) {
        modificaUtente();
    } else if (Tag == QLatin1String("SELEZIONA")) {
        selezionaUtente();
    }
}

void UtentiSelezione::selezionaUtente() {
    variabiliGlobali::idUtenteSelezionato = runtime::textToInt32(LW.selectedText());
    unload();
}

void UtentiSelezione::modificaUtente() {
    apriUtente(LW.selectedText());
}

void UtentiSelezione::nuovoUtente() {
    apriUtente(QStringLiteral("0"));
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
        if (host::ask(
                QStringLiteral("Sei sicuro di cancellare l'atleta? Verranno cancellate tutte le sue schede!"),
                host::Icon::Critical, host::Buttons::YesNo) != host::Answer::Yes) {
            return;
        }
        utente atleta;
        if (atleta.Elimina(chiave)) {
            host::message(QStringLiteral("Utente e schede eliminati"), host::Icon::Information);
            FillListAtleti();
        }
    } catch (const runtime::Error& error) {
        host::message(QStringLiteral("Si è verificato un errore:") + error.description() +
                          QStringLiteral("\rContattare il supporto tecnico"),
                      host::Icon::Critical);
    }
}
