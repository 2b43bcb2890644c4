#include "cards/SchedeSelezione.h"

#include "athletes/utente.h"
#include "cards/raccoglitore.h"
#include "core/Finestre.h"
#include "core/ImmaginiToolbar.h"
#include "core/variabiliGlobali.h"
#include "platform/host/Services.h"
#include "platform/runtime/Conversions.h"
#include "platform/runtime/Error.h"
#include "platform/toolkit/Twips.h"

using toolkit::place;

SchedeSelezione::SchedeSelezione()
    : Form(QStringLiteral("SchedeSelezione")), Toolbar(QStringLiteral("Toolbar"), this), ImageList1({24, 24}),
      Label1(QStringLiteral("Label1"), QStringLiteral("Utente: "), client()),
      utente_(QStringLiteral("utente"), {}, client()), LW(QStringLiteral("LW"), client()) {
    setCaption(QStringLiteral("Apri SCHEDA"));
    setInnerSize(6015, 5115);

    addTopBar(&Toolbar);
    Toolbar.addButton(QStringLiteral("seleziona"), QStringLiteral("Seleziona"),
                      QStringLiteral("Seleziona la Scheda evidenziata"));
    Toolbar.addButton(QStringLiteral("annulla"), QStringLiteral("Annulla"),
                      QStringLiteral("Chiude la finestra e annulla ogni processo in corso"));
    Toolbar.addButton(QStringLiteral("elimina"), QStringLiteral("Elimina"),
                      QStringLiteral("Elimina la Scheda evidenziata"));
    Toolbar.addButton(QStringLiteral("stampa"), QStringLiteral("Stampa"),
                      QStringLiteral("Anteprima di Stampa"));

    place(Label1, 0, 120, 735, 255);
    place(utente_, 720, 120, 2655, 255);
    place(LW, -15, 540, 6045, 4590);
    LW.setAccessibleName(QStringLiteral("Schede"));
    LW.addColumn(QStringLiteral("ID_scheda"), 0);
    // A date and "Condizionamento generale" show whole; together the columns fill the list.
    LW.addColumn(QStringLiteral("Dal"), 930);
    LW.addColumn(QStringLiteral("Al"), 930);
    LW.addColumn(QStringLiteral("Istruttore"), 2085);
    LW.addColumn(QStringLiteral("Categoria"), 2070);

    connect(&Toolbar, &toolkit::Toolbar::buttonClick, this, &SchedeSelezione::Toolbar_ButtonClick);
    connect(&LW, &toolkit::ReportList::doubleClick, this, &SchedeSelezione::seleziona);
}

void SchedeSelezione::onLoad() {
    vestiToolbar(Toolbar, ImageList1, objectName());
    fillList();
    ::utente atleta;
    atleta.carica(idUtenteLista);
    utente_.setCaption(QLatin1Char('[') + atleta.cognome + QLatin1Char(' ') + atleta.nome + QLatin1Char(']'));
    if (LW.count() == 0) {
        host::message(QStringLiteral("L'utente non ha schede salvate!"), host::Icon::Critical);
        for (const char* key : {"seleziona", "elimina", "stampa"}) {
            Toolbar.setButtonEnabled(QString::fromLatin1(key), false);
        }
    }
}

void SchedeSelezione::fillList() {
    load(); // touching the list loads the window; inside the load this is nothing
    const toolkit::ReportList::Refill sospesa(LW);
    LW.clear();
    raccoglitore schede;
    schede.id_utente = idUtenteLista;
    schede.caricaSchede();
    for (const auto& scheda : *schede.schede) {
        const int riga = LW.addItem(QString::number(scheda->id_scheda));
        LW.setSubItem(riga, 1, scheda->periodoDalNullo() ? QString() : scheda->PeriodoDal);
        LW.setSubItem(riga, 2, scheda->periodoAlNullo() ? QString() : scheda->PeriodoAl);
        LW.setSubItem(riga, 3, scheda->Istruttore);
        LW.setSubItem(riga, 4, scheda->categoria);
    }
}

void SchedeSelezione::Toolbar_ButtonClick(const QString& key) {
    if (key == QLatin1String("seleziona")) {
        seleziona();
    } else if (key == QLatin1String("annulla")) {
        unload();
    } else if (key == QLatin1String("elimina")) {
        elimina();
    } else if (key == QLatin1String("stampa")) {
        stampa();
    }
}

void SchedeSelezione::seleziona() {
    if (LW.count() == 0) {
        return;
    }
    variabiliGlobali::idSchedaSelezionata = runtime::textToInt32(LW.selectedText());
    unload();
}

void SchedeSelezione::elimina() {
    try {
        const qint32 chiave = runtime::textToInt32(LW.selectedText());
        if (host::ask(QStringLiteral("Confermi?"), host::Icon::Critical, host::Buttons::YesNo) !=
            host::Answer::Yes) {
            return;
        }
        ::scheda scheda;
        if (scheda.Elimina(chiave)) {
            host::message(QStringLiteral("Scheda eliminata"), host::Icon::Information);
            fillList();
        }
    } catch (const runtime::Error& error) {
        host::message(QStringLiteral("Si è verificato un errore:\r") + error.description() +
                          QStringLiteral("\rContattare il supporto tecnico"),
                      host::Icon::Critical);
    }
}

void SchedeSelezione::stampa() {
    variabiliGlobali::idSchedaSelezionata = runtime::textToInt32(LW.selectedText());
    setPointer(Pointer::Hourglass);
    finestre::mostraAnteprima();
    setPointer(Pointer::Default);
    variabiliGlobali::idSchedaSelezionata = 0;
}
