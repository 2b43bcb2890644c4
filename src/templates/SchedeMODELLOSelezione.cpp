#include "templates/SchedeMODELLOSelezione.h"

#include "core/ImmaginiToolbar.h"
#include "core/f_library.h"
#include "core/variabiliGlobali.h"
#include "platform/host/Services.h"
#include "platform/runtime/Conversions.h"
#include "platform/runtime/Error.h"
#include "platform/toolkit/Fonts.h"
#include "platform/toolkit/Twips.h"
#include "platform/toolkit/Validation.h"
#include "templates/Categorie.h"
#include "templates/RaccoglitoreModelli.h"
#include "templates/SchedeMODELLONuova.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int colonnaDescrizione = 1;
constexpr qint32 annullato = -1;

} // namespace

SchedeMODELLOSelezione::SchedeMODELLOSelezione()
    : Form(u"SchedeMODELLOSelezione"_s), Label1(u"Label1"_s, u"Filtra per Categoria:"_s, client()),
      categoria(u"categoria"_s, client(), toolkit::Combo::Kind::Fixed), LW(u"LW"_s, client()),
      Toolbar(u"Toolbar"_s, client()), ImageList1(QSize(24, 24)) {
    setCaption(u"SCHEDA Modello"_s);
    setInnerSize(7530, 5805);
    const QFont verdana = toolkit::font(u"Verdana"_s, 8.25);
    Label1.setFont(verdana);
    Label1.setBuddy(&categoria);
    toolkit::place(Label1, 120, 120, 1800, 255);
    QFont stretto = verdana;
    stretto.setStretch(88); // the longest of the supplied names shows whole
    categoria.setFont(stretto);
    categoria.setAccessibleName(u"Categoria"_s);
    toolkit::place(categoria, 2040, 90, 2460, 315);
    LW.setFont(verdana);
    LW.setAccessibleName(u"Schede modello"_s);
    LW.addColumn(u"ID_scheda"_s, 0);
    LW.addColumn(u"Descrizione"_s, 7200);
    LW.setSortKey(colonnaDescrizione);
    toolkit::place(LW, -15, 480, 7545, 4695);
    Toolbar.addButton(u"seleziona"_s, u"Seleziona"_s, u"Seleziona il modello in evidenza"_s);
    Toolbar.addButton(u"annulla"_s, u"Annulla"_s,
                      u"Esce dalla videata annullando ogni operazione in corso"_s);
    Toolbar.addButton(u"nuova"_s, u"Nuova"_s, u"Crea una nuova Scheda Modello"_s);
    Toolbar.addButton(u"modifica"_s, u"Modifica"_s, u"Modifica la Scheda Modello selezionata"_s);
    Toolbar.addButton(u"elimina"_s, u"Elimina"_s, u"Elimina dall'archivio la scheda"_s);
    toolkit::place(Toolbar, 0, 5235, 7530, 570);
    setTabOrder(&categoria, &LW);

    auto* controlli = new toolkit::Validation(this);
    controlli->add(&categoria, [this] { return valoreInLista(categoria); });
    connect(&categoria, &toolkit::Combo::clicked, this, &SchedeMODELLOSelezione::fillList);
    connect(&LW, &toolkit::ReportList::doubleClick, this, &SchedeMODELLOSelezione::seleziona);
    connect(&Toolbar, &toolkit::Toolbar::buttonClick, this, &SchedeMODELLOSelezione::Toolbar_ButtonClick);
}

void SchedeMODELLOSelezione::onLoad() {
    vestiToolbar(Toolbar, ImageList1, objectName());
    impostaPulsanti();
    Categorie().fillcategorie(categoria);
    categoria.selectIndex(Categorie::iniziale); // a click, which fills the list
    fillList();
    variabiliGlobali::nomeModelloSelezionato.clear();
}

void SchedeMODELLOSelezione::impostaPulsanti() {
    if (variabiliGlobali::idUtenteSelezionato != 0) {
        Toolbar.setButtonEnabled(u"nuova"_s, false);
        Toolbar.setButtonEnabled(u"modifica"_s, false);
    } else {
        Toolbar.setButtonEnabled(u"seleziona"_s, false);
    }
}

void SchedeMODELLOSelezione::fillList() {
    const toolkit::ReportList::Refill riempimento(LW);
    LW.clear();
    RaccoglitoreModelli modelli;
    modelli.caricaSchede();
    for (const auto& modello : *modelli.schede) {
        if (modello->categoria == categoria.text()) {
            const int riga = LW.addItem(QString::number(modello->id_scheda));
            LW.setSubItem(riga, colonnaDescrizione, modello->descrizione);
        }
    }
}

qint32 SchedeMODELLOSelezione::selezionato() const {
    return runtime::textToInt32(LW.selectedText());
}

void SchedeMODELLOSelezione::Toolbar_ButtonClick(const QString& key) {
    if (key == u"seleziona"_s || key == u"modifica"_s)
        seleziona(); // the caller opens the editor on the key
    else if (key == u"annulla"_s)
        annulla();
    else if (key == u"nuova"_s)
        nuova();
    else if (key == u"elimina"_s)
        elimina();
}

void SchedeMODELLOSelezione::seleziona() {
    variabiliGlobali::idModelloSelezionato = selezionato();
    unload();
}

void SchedeMODELLOSelezione::annulla() {
    variabiliGlobali::idModelloSelezionato = annullato;
    unload();
}

void SchedeMODELLOSelezione::nuova() {
    variabiliGlobali::nomeModelloSelezionato = categoria.text();
    // The call that showed this window returns when this handler has: its caller then reads the new key.
    hide();
    unload();
    SchedeMODELLONuova::comune().showModal();
}

void SchedeMODELLOSelezione::elimina() {
    try {
        const qint32 chiave = selezionato();
        SchedaModello modello;
        modello.carica(chiave);
        if (modello.preimpostata) {
            host::message(u"Impossibile eliminare la scheda perchè è una scheda preimpostata!"_s,
                          host::Icon::Critical);
            return;
        }
        if (host::ask(u"Confermi?"_s, host::Icon::Question, host::Buttons::YesNo) != host::Answer::Yes)
            return;
        if (modello.Elimina(chiave)) {
            host::message(u"Scheda eliminata"_s, host::Icon::Information);
            fillList();
        }
    } catch (const runtime::Error& errore) {
        host::message(u"Si è verificato un errore:\r"_s + errore.description() +
                          u"\rContattare il supporto tecnico"_s,
                      host::Icon::Critical);
    }
}
