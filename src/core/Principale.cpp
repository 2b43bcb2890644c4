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

namespace {

constexpr double dimensioneMinima = 7000; // twips; up to here no resizer is made

/// The toolbar's keys, in lower case, and the menu items whose commands they share.
const std::pair<QString, QString> comandiToolbar[] = {
    {QStringLiteral("nuova"), QStringLiteral("mnuSchedeNuova")},
    {QStringLiteral("nuovadamodello"), QStringLiteral("mnuSchedeDaModello")},
    {QStringLiteral("apri"), QStringLiteral("mnuSchedeApri")},
    {QStringLiteral("esci"), QStringLiteral("mnuQDKEsci")},
};

/// The keys of the menus' pictures.
const QString chiaviMenu[] = {
    QStringLiteral("lista"), QStringLiteral("esci"),      QStringLiteral("utenti"), QStringLiteral("nuova"),
    QStringLiteral("apri"),  QStringLiteral("damodello"), QStringLiteral("hint"),   QStringLiteral("info"),
};

QString comandoDi(const QString& key) {
    for (const auto& [tasto, nome] : comandiToolbar) {
        if (key.toLower() == tasto) {
            return nome;
        }
    }
    return {};
}

} // namespace

Principale::Principale()
    : Form(QStringLiteral("Principale")), menu(this), Toolbar1(QStringLiteral("Toolbar1"), this),
      ImageList1({24, 24}), logoQD(QStringLiteral("logoQD"), client()),
      test(QStringLiteral("test"), QStringLiteral("Tests"), client()) {
    setCaption(QStringLiteral(" Zentara"));
    setInnerSize(12000, 8000);
    setResizable(true);
    client()->setAutoFillBackground(true);
    client()->setBackgroundRole(QPalette::Base);

    addTopBar(&menu);
    addTopBar(&Toolbar1);
    Toolbar1.addButton(QStringLiteral("nuova"), QStringLiteral("Nuova Scheda"),
                       QStringLiteral("Crea una nuova Scheda"));
    Toolbar1.addButton(QStringLiteral("nuovaDaModello"), QStringLiteral("Nuova da Modello"),
                       QStringLiteral("Crea una nuova scheda a partire da uno dei Modelli già pronti"));
    Toolbar1.addSeparator(QStringLiteral("sep"));
    Toolbar1.addButton(QStringLiteral("apri"), QStringLiteral("Apri Scheda"),
                       QStringLiteral("Apre una scheda in archivio"));
    Toolbar1.addButton(QStringLiteral("esci"), QStringLiteral("Esci"),
                       QStringLiteral("Uscita dal programma"));

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
    if (ImageList_OwnerMenu.count() == 0) {
        for (const QString& chiave : chiaviMenu) {
            ImageList_OwnerMenu.add(chiave, artwork::icona(QStringLiteral("menu"), chiave));
        }
    }
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
        {QStringLiteral("mnuQDKPersonalizza"), [](Principale&) { finestre::mostraPalestra(); }},
        {QStringLiteral("mnuQDKEsci"), [](Principale& finestra) { finestra.unload(); }},
        {QStringLiteral("mnuUtentiGestione"), [](Principale& finestra) { finestra.mnuUtentiGestione(); }},
        {QStringLiteral("mnuSchedeNuova"), [](Principale& finestra) { finestra.mnuSchedeNuova(); }},
        {QStringLiteral("mnuSchedeApri"), [](Principale& finestra) { finestra.mnuSchedeApri(); }},
        {QStringLiteral("mnuSchedeDaModello"), [](Principale& finestra) { finestra.mnuSchedeDaModello(); }},
        {QStringLiteral("mnuSchedeGestioneModello"),
         [](Principale& finestra) { finestra.mnuSchedeGestioneModello(); }},
        {QStringLiteral("mnuSchedeCosaNonFare"), [](Principale&) { finestre::mostraAvvertenze(); }},
        {QStringLiteral("mnuHelpHelp"), [](Principale& finestra) { finestra.mnuHelpHelp(); }},
        {QStringLiteral("mnuHelpManuale"), [](Principale& finestra) { finestra.mnuHelpManuale(); }},
        {QStringLiteral("mnuHelpAbout"), [](Principale&) { finestre::mostraInformazioni(); }},
    };
    for (const auto& [comandoNoto, esegui] : comandi) {
        if (nome == comandoNoto) {
            esegui(*this);
        }
    }
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
    elenco.Tag = QStringLiteral("MODIFICA");
    elenco.load();
    elenco.showModal();
}

bool Principale::selezionaUtente() {
    UtentiSelezione& elenco = UtentiSelezione::comune();
    elenco.Tag = QStringLiteral("SELEZIONA");
    elenco.load();
    elenco.showModal();
    return variabiliGlobali::idUtenteSelezionato != 0;
}

void Principale::apriScheda() {
    finestre::mostraScheda();
    nascondi();
}

void Principale::mnuSchedeNuova() {
    if (selezionaUtente()) {
        apriScheda();
    }
}

void Principale::mnuSchedeApri() {
    if (!selezionaUtente()) {
        return;
    }
    SchedeSelezione& elenco = SchedeSelezione::comune();
    elenco.idUtenteLista = variabiliGlobali::idUtenteSelezionato;
    elenco.fillList();
    elenco.showModal();
    if (variabiliGlobali::idSchedaSelezionata != 0) {
        apriScheda();
    }
}

void Principale::mnuSchedeDaModello() {
    if (!selezionaUtente()) {
        return;
    }
    finestre::mostraModelli();
    if (variabiliGlobali::idModelloSelezionato > 0) {
        apriScheda();
    }
}

void Principale::mnuSchedeGestioneModello() {
    azzeraScelte();
    finestre::mostraModelli();
    if (variabiliGlobali::idModelloSelezionato > 0) {
        apriScheda();
    }
}

void Principale::mnuHelpHelp() {
    setFocus();
    QKeyEvent tasto(QEvent::KeyPress, Qt::Key_F1, Qt::NoModifier);
    QCoreApplication::sendEvent(this, &tasto);
}

void Principale::mnuHelpManuale() {
    // A missing row gives its "ERR:" text here: the start then fails, as for a missing launcher.
    const QString percorso = db::comune().Load_Param(QStringLiteral("PATH_MANUALE"));
    host::startProcess(host::resolve(host::joined(percorso)), {host::programDirectory()});
}
