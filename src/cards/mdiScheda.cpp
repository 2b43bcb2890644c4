#include "cards/mdiScheda.h"

#include "athletes/utente.h"
#include "cards/SchedaCorpo.h"
#include "cards/SchedaIntestazione.h"
#include "cards/salvaComeModello.h"
#include "cards/scheda.h"
#include "core/Finestre.h"
#include "core/ImmaginiToolbar.h"
#include "core/db.h"
#include "core/variabiliGlobali.h"
#include "figures/figura.h"
#include "platform/host/ProgramDirectory.h"
#include "platform/host/Services.h"
#include "platform/runtime/Conversions.h"
#include "platform/runtime/Dates.h"
#include "platform/runtime/Error.h"
#include "printing/ContatoreTempi.h"
#include "templates/SchedaModello.h"

using namespace Qt::StringLiterals;

using namespace variabiliGlobali;

namespace {

const QString cartella = u"Cartella"_s;
constexpr QSize latoCartella{25, 25}; // pixels
constexpr QSize latoFigura{150, 150};
constexpr QSize latoPulsante{24, 24};

// Positions on the toolbar.
constexpr int pulsanteSalva = 1;
constexpr int pulsanteStampa = 4;

void informa(const QString& testo) {
    host::message(testo, host::Icon::Information);
}

} // namespace

mdiScheda::mdiScheda()
    : ParentForm(u"mdiScheda"_s), utente(std::make_shared<::utente>()),
      ToolbarSchede(u"ToolbarSchede"_s, this), StatusBar1(u"StatusBar1"_s, this) {
    setCaption(u" Zentara"_s);
    setResizable(true);
    ToolbarSchede.addButton(u"salva"_s, u"Salva"_s, u"Salva in archivio la scheda corrente"_s);
    ToolbarSchede.addButton(u"SalvaSuModello"_s, u"Salva su nuovo Modello"_s,
                            u"Salva la scheda corrente come Modello"_s);
    ToolbarSchede.addSeparator();
    ToolbarSchede.addButton(u"stampa"_s, u"Stampa"_s, u"Anteprima di stampa"_s);
    ToolbarSchede.addSeparator();
    ToolbarSchede.addButton(u"fine"_s, u"Fine"_s, u"Esce dall'inserimento/modifica Schede"_s);
    connect(&ToolbarSchede, &toolkit::Toolbar::buttonClick, this, &mdiScheda::premuto);
    addTopBar(&ToolbarSchede);
    StatusBar1.addPanel(u"status"_s);
    StatusBar1.addPanel(u"date2"_s, 1050, Qt::AlignRight);
    addBottomBar(&StatusBar1);
}

mdiScheda::~mdiScheda() = default;

void mdiScheda::onLoad() {
    ImageListToolBar.clear();
    ImageListToolBar.setImageSize(latoPulsante);
    vestiToolbar(ToolbarSchede, ImageListToolBar, objectName());
    caricaImmagini();
    setMaximised(true);
}

void mdiScheda::caricaImmagini() {
    ImageList1.clear();
    ImageList1.setImageSize(latoCartella);
    ImageList1.add(cartella, host::joined(u"\\images\\FolderXP.JPG"_s));
    ImageList2.clear();
    ImageList2.setImageSize(latoFigura);
    store::Recordset righe = db::comune().getRs(u"SELECT ID_FIG from figure"_s);
    finestre::avanzamentoMassimo(runtime::toInt16(righe.RecordCount() + 1));
    for (; !righe.EOF_(); righe.MoveNext()) {
        ::figura f;
        f.carica(righe(u"ID_FIG").toInt32());
        if (!ImageList2.contains(f.figura_())) // two figures may share a file
            ImageList2.add(f.figura_(), f.figura_());
        finestre::avanzamentoPasso();
    }
}

void mdiScheda::prepara() {
    ToolbarSchede.setVisible(true);
    if (idUtenteSelezionato != 0)
        utente->carica(idUtenteSelezionato);
}

void mdiScheda::mostra() {
    prepara();
    schedaAperta.reset();
    ToolbarSchede.setButtonEnabled(pulsanteSalva, true);
    creaScheda();
    if (schedaAperta->id_scheda != 0)
        schedaAperta->caricaEsercizi();
    conta();
    presenta();
}

void mdiScheda::riapri(const std::shared_ptr<SchedaApribile>& scheda) {
    prepara();
    schedaAperta = scheda;
    ToolbarSchede.setButtonEnabled(pulsanteSalva, !schedaAperta->preimpostata);
    try {
        conta();
    } catch (const runtime::Error&) {
        // Times beyond 16 bits may be what ended the program: they must not keep the card from coming back.
    }
    presenta();
}

void mdiScheda::conta() {
    contaTempi = std::make_shared<ContatoreTempi>();
    contaTempi->schedaCorrente = schedaAperta;
    contaTempi->barraStato = &StatusBar1;
    contaTempi->contaEstampa();
}

void mdiScheda::presenta() {
    StatusBar1.setPanel(u"date2"_s, runtime::dateText(runtime::today()));
    show(); // maximised: the pages are placed by its width
    disponiPagine();
    puoiChiudere = false;
    ToolbarSchede.setButtonEnabled(pulsanteStampa, !schedaAperta->isModello);
}

void mdiScheda::creaScheda() {
    const auto nuova = std::make_shared<scheda>();
    if (idSchedaSelezionata != 0) {
        schedaAperta = nuova;
        schedaAperta->carica(idSchedaSelezionata);
    } else if (idModelloSelezionato == 0) {
        schedaAperta = nuova;
        nuova->id_utente = idUtenteSelezionato;
    } else if (idUtenteSelezionato == 0) {
        schedaAperta = std::make_shared<SchedaModello>();
        schedaAperta->carica(idModelloSelezionato);
        ToolbarSchede.setButtonEnabled(pulsanteSalva, !schedaAperta->preimpostata);
    } else {
        schedaAperta = nuova;
        SchedaModello modello;
        modello.carica(idModelloSelezionato);
        modello.caricaEsercizi();
        modello.travasaTo(*schedaAperta, false);
        nuova->id_utente = idUtenteSelezionato;
    }
}

void mdiScheda::disponiPagine() {
    const auto figure = finestre::disponiFigure(outerWidth());
    double altezza = 0;
    const auto intestazione = [&altezza](toolkit::Form& pagina) {
        pagina.load();
        pagina.setTop(0);
        pagina.setLeft(0);
        altezza = pagina.outerHeight();
        pagina.show();
    };
    if (idUtenteSelezionato != 0)
        intestazione(SchedaIntestazione::comune());
    else
        finestre::disponiIntestazioneModello(intestazione);
    auto& corpo = SchedaCorpo::comune();
    corpo.load();
    corpo.setLeft(0);
    corpo.setTop(altezza);
    corpo.show();
    finestre::disponiAnteprimaFigura(figure);
}

void mdiScheda::premuto(const QString& chiave) {
    if (!schedaAperta)
        runtime::raise(runtime::ObjectNotSet);
    if (!schedaAperta->isModello)
        SchedaIntestazione::comune().nascondiTutto();
    SchedaCorpo::comune().ScriviDati();
    const QString comando = chiave.toLower();
    if (comando == u"salva")
        salva();
    else if (comando == u"salvasumodello")
        salvaSuModello();
    else if (comando == u"stampa")
        stampa();
    else if (comando == u"fine")
        fine();
}

void mdiScheda::salva() {
    schedaAperta->save();
    informa(u"Salvataggio effettuato"_s);
}

void mdiScheda::stampa() {
    puoiChiudere = true;
    SchedaCorpo::comune().unload();
    puoiChiudere = false;
    schedaAperta->save(); // printing stores the card, without a question
    idSchedaSelezionata = schedaAperta->id_scheda;
    finestre::mostraAnteprima();
    schedaAperta->caricaEsercizi(); // the list is again what the store holds
    SchedaCorpo::comune().show();
    disponiPagine();
}

void mdiScheda::salvaSuModello() {
    SchedaCorpo::comune().ScriviDati();
    nomeModelloSelezionato = schedaAperta->categoria;
    finestre::chiediNuovoModello();
    const auto modello = std::make_shared<SchedaModello>();
    modello->carica(idModelloSelezionato); // whatever the dialog did
    salvaComeModello(*schedaAperta, *modello);
    if (schedaAperta->isModello)
        apriModello(modello);
    else
        informa(u"Creata la nuova Scheda Modello '%1'"_s.arg(modello->descrizione));
    nomeModelloSelezionato.clear();
    idModelloSelezionato = 0;
}

void mdiScheda::apriModello(const std::shared_ptr<SchedaModello>& modello) {
    if (!schedaAperta->preimpostata &&
        host::ask(u"Salvare le modifiche al modello precedente?"_s, host::Icon::Information,
                  host::Buttons::YesNo) == host::Answer::Yes)
        schedaAperta->save();
    schedaAperta = modello; // the counter keeps the template that it was given
    puoiChiudere = true;
    finestre::scaricaIntestazioneModello();
    SchedaCorpo::comune().unload();
    puoiChiudere = false;
    disponiPagine();
    ToolbarSchede.setButtonEnabled(pulsanteSalva, !schedaAperta->preimpostata);
    informa(u"Creata e aperta la nuova Scheda Modello '%1'"_s.arg(modello->descrizione));
}

void mdiScheda::fine() {
    // The question does not depend on `isSaved`: it is asked of an untouched card too.
    if (schedaAperta->isModello && schedaAperta->preimpostata) {
        puoiChiudere = true;
        unload(); // the globals keep their values here
        return;
    }
    switch (host::ask(u"Salvo le ultime modifiche?"_s, host::Icon::Information, host::Buttons::YesNoCancel)) {
    case host::Answer::Yes:
        puoiChiudere = true;
        schedaAperta->save();
        abbandona();
        break;
    case host::Answer::No:
        puoiChiudere = true;
        abbandona();
        break;
    default:
        puoiChiudere = false;
    }
}

void mdiScheda::abbandona() {
    idUtenteSelezionato = 0;
    idSchedaSelezionata = 0;
    idModelloSelezionato = 0;
    unload();
}

bool mdiScheda::onQueryUnload() {
    if (inChiusura)
        return true;
    hide();
    finestre::mostraPrincipale();
    return false;
}
