#include "core/Principale.h"

#include "artwork/icons/Icone.h"
#include "artwork/logos/Loghi.h"
#include "athletes/UtentiSelezione.h"
#include "cards/SchedeSelezione.h"
#include "core/Finestre.h"
#include "core/ImmaginiToolbar.h"
#include "core/db.h"
#include "core/variabiliGlobali.h"
#include "desktop/testClassi.h"
#include "figures/RidimensionatoreImmagini.h"
#include "platform/host/Process.h"
#include "platform/host/ProgramDirectory.h"
#include "platform/toolkit/Twips.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QKeyEvent>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr double dimensioneMinima = 7000; // twips; up to here no resizer is made

/// The toolbar's keys, in lower case, and the menu items whose commands they share.
const std::pair<QString, QString> comandiToolbar[] = {
    {u"nuova"_s, u"mnuSchedeNuova"_s},
    {u"nuovadamodello"_s, u"mnuSchedeDaModello"_s},
    {u"apri"_s, u"mnuSchedeApri"_s},
    {u"esci"_s, u"mnuQDKEsci"_s},
};

/// The keys of the menus' pictures.
const QString chiaviMenu[] = {
    u"lista"_s, u"esci"_s, u"utenti"_s, u"nuova"_s, u"apri"_s, u"damodello"_s, u"hint"_s, u"info"_s,
};

QString comandoDi(const QString& key) {
    for (const auto& [tasto, nome] : comandiToolbar)
        if (key.toLower() == tasto)
            return nome;
    return {};
}

} // namespace

Principale::Principale()
    : Form(u"Principale"_s), menu(this), Toolbar1(u"Toolbar1"_s, this), ImageList1({24, 24}),
      logoQD(u"logoQD"_s, client()), test(u"test"_s, u"Tests"_s, client()) {
    setCaption(u" Zentara"_s);
    setInnerSize(12000, 8000);
    setResizable(true);
    client()->setAutoFillBackground(true);
    client()->setBackgroundRole(QPalette::Base);

    addTopBar(&menu);
    addTopBar(&Toolbar1);
    Toolbar1.addButton(u"nuova"_s, u"Nuova Scheda"_s, u"Crea una nuova Scheda"_s);
    Toolbar1.addButton(u"nuovaDaModello"_s, u"Nuova da Modello"_s,
                       u"Crea una nuova scheda a partire da uno dei Modelli già pronti"_s);
    Toolbar1.addSeparator(u"sep"_s);
    Toolbar1.addButton(u"apri"_s, u"Apri Scheda"_s, u"Apre una scheda in archivio"_s);
    Toolbar1.addButton(u"esci"_s, u"Esci"_s, u"Uscita dal programma"_s);

    toolkit::place(logoQD, 0, 0, 6000, 1800);
    logoQD.setImage(artwork::logo(artwork::Logo::QuiverDeck, {1200, 360}));
    toolkit::place(test, 120, 120, 1215, 375);
    test.hide(); // a developer's: Ctrl+Shift+F12 shows it
    connect(&test, &QPushButton::clicked, this, [] { testClassi::esegui(); });

    connect(&menu, &MenuPrincipale::scelta, this, &Principale::comando);
    connect(&Toolbar1, &toolkit::Toolbar::buttonClick, this, &Principale::Toolbar1_ButtonClick);
}

void Principale::onLoad() {
    vestiToolbar(Toolbar1, ImageList1, objectName());
    setMaximised(true);
    if (ImageList_OwnerMenu.count() == 0)
        for (const QString& chiave : chiaviMenu)
            ImageList_OwnerMenu.add(chiave, artwork::icona(u"menu"_s, chiave));
    menu.vesti(*this, ImageList_OwnerMenu,
               [](const QSize& pixels) { return artwork::logo(artwork::Logo::BarraMenu, pixels); });
}

void Principale::onResize() {
    logoQD.setLeft((innerWidth() - logoQD.width()) / 2);
    logoQD.setTop((innerHeight() - logoQD.height()) / 2);
    if (outerHeight() <= dimensioneMinima || outerWidth() <= dimensioneMinima) {
        logoQD.setVisible(true);
        return;
    }
    // Kept: the resizer gets the logo and is not asked to fit it, so that the logo stays as large as it is.
    RidimensionatoreImmagini ridimensionatore;
    ridimensionatore.MAX = outerHeight() / 1.5;
    logoQD.setVisible(false);
    ridimensionatore.setImage(logoQD);
    logoQD.setVisible(true);
}

void Principale::onUnload() {
    variabiliGlobali::inChiusura = true;
    finestre::chiudiGuida();
    finestre::scaricaScheda();
    QCoreApplication::postEvent(this, new QCloseEvent);
    menu.spoglia();
}

void Principale::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_F12 && event->modifiers() == (Qt::ControlModifier | Qt::ShiftModifier)) {
        test.setVisible(!test.isVisible());
        return;
    }
    Form::keyPressEvent(event);
}

void Principale::nascondi() {
    hide();
}

void Principale::mostra() {
    show();
}

void Principale::comando(const QString& nome) {
    static const std::pair<QString, void (*)(Principale&)> comandi[] = {
        {u"mnuQDKPersonalizza"_s, [](Principale&) { finestre::mostraPalestra(); }},
        {u"mnuQDKEsci"_s, [](Principale& finestra) { finestra.unload(); }},
        {u"mnuUtentiGestione"_s, [](Principale& finestra) { finestra.mnuUtentiGestione(); }},
        {u"mnuSchedeNuova"_s, [](Principale& finestra) { finestra.mnuSchedeNuova(); }},
        {u"mnuSchedeApri"_s, [](Principale& finestra) { finestra.mnuSchedeApri(); }},
        {u"mnuSchedeDaModello"_s, [](Principale& finestra) { finestra.mnuSchedeDaModello(); }},
        {u"mnuSchedeGestioneModello"_s, [](Principale& finestra) { finestra.mnuSchedeGestioneModello(); }},
        {u"mnuSchedeCosaNonFare"_s, [](Principale&) { finestre::mostraAvvertenze(); }},
        {u"mnuHelpHelp"_s, [](Principale& finestra) { finestra.mnuHelpHelp(); }},
        {u"mnuHelpManuale"_s, [](Principale& finestra) { finestra.mnuHelpManuale(); }},
        {u"mnuHelpAbout"_s, [](Principale&) { finestre::mostraInformazioni(); }},
    };
    for (const auto& [comandoNoto, esegui] : comandi)
        if (nome == comandoNoto)
            esegui(*this);
}

void Principale::Toolbar1_ButtonClick(const QString& key) {
    azzeraScelte();
    comando(comandoDi(key));
}

void Principale::azzeraScelte() {
    variabiliGlobali::idUtenteSelezionato = 0;
    variabiliGlobali::idSchedaSelezionata = 0;
    variabiliGlobali::idModelloSelezionato = 0;
}

void Principale::mnuUtentiGestione() {
    UtentiSelezione& elenco = UtentiSelezione::comune();
    elenco.Tag = u"MODIFICA"_s;
    elenco.load();
    elenco.showModal();
}

bool Principale::selezionaUtente() {
    UtentiSelezione& elenco = UtentiSelezione::comune();
    elenco.Tag = u"SELEZIONA"_s;
    elenco.load();
    elenco.showModal();
    return variabiliGlobali::idUtenteSelezionato != 0;
}

void Principale::apriScheda() {
    finestre::mostraScheda();
    nascondi();
}

void Principale::mnuSchedeNuova() {
    if (selezionaUtente())
        apriScheda();
}

void Principale::mnuSchedeApri() {
    if (!selezionaUtente())
        return;
    SchedeSelezione& elenco = SchedeSelezione::comune();
    elenco.idUtenteLista = variabiliGlobali::idUtenteSelezionato;
    elenco.fillList();
    elenco.showModal();
    if (variabiliGlobali::idSchedaSelezionata != 0)
        apriScheda();
}

void Principale::mnuSchedeDaModello() {
    if (!selezionaUtente())
        return;
    finestre::mostraModelli();
    if (variabiliGlobali::idModelloSelezionato > 0)
        apriScheda();
}

void Principale::mnuSchedeGestioneModello() {
    azzeraScelte();
    finestre::mostraModelli();
    if (variabiliGlobali::idModelloSelezionato > 0)
        apriScheda();
}

void Principale::mnuHelpHelp() {
    setFocus();
    QKeyEvent tasto(QEvent::KeyPress, Qt::Key_F1, Qt::NoModifier);
    QCoreApplication::sendEvent(this, &tasto);
}

void Principale::mnuHelpManuale() {
    // A missing row gives its "ERR:" text here: the start then fails, as for a missing launcher.
    const QString percorso = db::comune().Load_Param(u"PATH_MANUALE"_s);
    host::startProcess(host::resolve(host::joined(percorso)), {host::programDirectory()});
}
