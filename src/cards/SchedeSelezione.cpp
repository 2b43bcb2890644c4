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

using namespace Qt::StringLiterals;

using toolkit::place;

SchedeSelezione::SchedeSelezione()
    : Form(u"SchedeSelezione"_s), Toolbar(u"Toolbar"_s, this), ImageList1({24, 24}),
      Label1(u"Label1"_s, u"Utente: "_s, client()), utente_(u"utente"_s, {}, client()),
      LW(u"LW"_s, client()) {
    setCaption(u"Apri SCHEDA"_s);
    setInnerSize(6015, 5115);

    addTopBar(&Toolbar);
    Toolbar.addButton(u"seleziona"_s, u"Seleziona"_s, u"Seleziona la Scheda evidenziata"_s);
    Toolbar.addButton(u"annulla"_s, u"Annulla"_s, u"Chiude la finestra e annulla ogni processo in corso"_s);
    Toolbar.addButton(u"elimina"_s, u"Elimina"_s, u"Elimina la Scheda evidenziata"_s);
    Toolbar.addButton(u"stampa"_s, u"Stampa"_s, u"Anteprima di Stampa"_s);

    place(Label1, 0, 120, 735, 255);
    place(utente_, 720, 120, 2655, 255);
    place(LW, -15, 540, 6045, 4590);
    LW.setAccessibleName(u"Schede"_s);
    LW.addColumn(u"ID_scheda"_s, 0);
    // A date and "Condizionamento generale" show whole; together the columns fill the list.
    LW.addColumn(u"Dal"_s, 930);
    LW.addColumn(u"Al"_s, 930);
    LW.addColumn(u"Istruttore"_s, 2085);
    LW.addColumn(u"Categoria"_s, 2070);

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
        host::message(u"L'utente non ha schede salvate!"_s, host::Icon::Critical);
        for (const char* key : {"seleziona", "elimina", "stampa"})
            Toolbar.setButtonEnabled(QString::fromLatin1(key), false);
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
    if (key == QLatin1String("seleziona"))
        seleziona();
    else if (key == QLatin1String("annulla"))
        unload();
    else if (key == QLatin1String("elimina"))
        elimina();
    else if (key == QLatin1String("stampa"))
        stampa();
}

void SchedeSelezione::seleziona() {
    if (LW.count() == 0)
        return;
    variabiliGlobali::idSchedaSelezionata = runtime::textToInt32(LW.selectedText());
    unload();
}

void SchedeSelezione::elimina() {
    try {
        const qint32 chiave = runtime::textToInt32(LW.selectedText());
        if (host::ask(u"Confermi?"_s, host::Icon::Critical, host::Buttons::YesNo) != host::Answer::Yes)
            return;
        ::scheda scheda;
        if (scheda.Elimina(chiave)) {
            host::message(u"Scheda eliminata"_s, host::Icon::Information);
            fillList();
        }
    } catch (const runtime::Error& error) {
        host::message(u"Si è verificato un errore:\r"_s + error.description() +
                          u"\rContattare il supporto tecnico"_s,
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
