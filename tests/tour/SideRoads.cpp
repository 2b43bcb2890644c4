#include "SideRoads.h"

#include "Road.h"
#include "Tour.h"

#include <QFileInfo>

namespace {

void seeTheGym(Tour& tour) {
    tour.click("mnuQDK");
    tour.where("mnuQDKPersonalizza");
    tour.shot("menu-programma");
    tour.click("mnuQDKPersonalizza");
    tour.window("frmPersonalizza");
    tour.check(tour.text("frmPersonalizza/nome") == "Palestra Il Cigno", "the gym's name is shown");
    tour.check(tour.visible("frmPersonalizza/logo"), "the gym's logo is shown");
    tour.shot("palestra");
    tour.portrait("frmPersonalizza");
    tour.fill("frmPersonalizza/responsabile", "Anna Però e figli");
    tour.click("frmPersonalizza/cmdOK");
    tour.window("Principale");
}

void startFromATemplate(Tour& tour) {
    tour.click("Principale/nuovaDaModello");
    chooseTheAthlete(tour);
    tour.window("SchedeMODELLOSelezione");
    tour.shot("modelli");
    tour.portrait("SchedeMODELLOSelezione");
    tour.click("SchedeMODELLOSelezione/seleziona");
    tour.window("mdiScheda");
    tour.check(tour.text("SchedaCorpo/figura_0").isEmpty() && !tour.text("status").contains("totale: 00:00"),
               "the template's exercises are there: " + tour.text("status"));
    tour.shot("scheda-da-modello");
    tour.click("cmdZoom");
    tour.where("SchedaPreviewFigura");
    tour.shot("figura-ingrandita");
    tour.click("SchedaPreviewFigura/cmdClose");
    tour.click("SalvaSuModello");
    tour.window("SchedeMODELLONuova");
    tour.fill("SchedeMODELLONuova/descrizione", "Forza per chi ricomincia");
    tour.shot("modello-nuovo");
    tour.portrait("SchedeMODELLONuova");
    tour.click("SchedeMODELLONuova/cmdOk");
    tour.box("Creata la nuova Scheda Modello 'Forza per chi ricomincia'", "OK");
    tour.click("fine");
    tour.box("Salvo le ultime modifiche?", "No");
    tour.window("Principale");
}

void changeATemplate(Tour& tour) {
    tour.click("mnuSchede");
    tour.where("mnuSchedeGestioneModello");
    tour.shot("menu-schede");
    tour.click("mnuSchedeGestioneModello");
    tour.window("SchedeMODELLOSelezione");
    tour.click("SchedeMODELLOSelezione/LW#item:Forza per chi ricomincia");
    tour.shot("modelli-gestione");
    tour.click("SchedeMODELLOSelezione/modifica");
    tour.window("mdiScheda");
    tour.check(tour.text("SchedaIntestazioneMODELLO/descrizione") == "Forza per chi ricomincia",
               "the template is open");
    tour.shot("modello-aperto");
    tour.click("fine");
    tour.box("Salvo le ultime modifiche?", "Sì");
    tour.window("Principale");
}

void handOutTheWarnings(Tour& tour) {
    tour.click("mnuSchede");
    tour.click("mnuSchedeCosaNonFare");
    tour.window("PrinterDaNonFare");
    tour.shot("avvertenze");
    tour.portrait("PrinterDaNonFare");
    const QString pdf = tour.pictures() + "/avvertenze.pdf";
    tour.click("PrinterDaNonFare/Stampa");
    tour.window("printerDialog");
    tour.fill("filename", pdf);
    tour.click("printerDialog#button:Stampa");
    tour.until("the PDF of the warnings", [&] { return QFileInfo(pdf).size() > 0; });
    tour.window("PrinterDaNonFare");
    tour.click("PrinterDaNonFare/esci");
    tour.window("Principale");
}

void readTheGuide(Tour& tour) {
    tour.key("F1");
    tour.window("FinestraGuida");
    tour.shot("guida");
    tour.key("alt+F4");
    tour.window("Principale");
    tour.click("mnuHelp");
    tour.where("mnuHelpAbout");
    tour.shot("menu-aiuto");
    tour.click("mnuHelpAbout");
    tour.window("frmAbout");
    tour.shot("informazioni");
    tour.click("frmAbout/cmdOK");
    tour.window("Principale");
}

/// The try-outs behind the button that is not shown; each closes by its frame.
void lookBehindTheButton(Tour& tour) {
    tour.key("ctrl+shift+F12");
    tour.click("Principale/test");
    tour.window("zfrmTestDB");
    tour.shot("prove");
    const char* const tries[][2] = {{"cmdConteggi", "frmDisplay"},
                                    {"cmdDragAndDrop", "zTESTDragAndDrop"},
                                    {"cmdTreeViewImage", "zTestTreeViewImage"},
                                    {"cmdSchedaCorpo2", "SchedaCorpo2"}};
    for (const auto& [button, window] : tries) {
        tour.click(QString("zfrmTestDB/%1").arg(button));
        tour.window(window);
        tour.shot(window);
        tour.key("alt+F4");
        tour.window("zfrmTestDB");
    }
    tour.key("alt+F4");
    tour.window("Principale");
}

} // namespace

void walkTheSideRoads(Tour& tour) {
    seeTheGym(tour);
    startFromATemplate(tour);
    changeATemplate(tour);
    handOutTheWarnings(tour);
    readTheGuide(tour);
    lookBehindTheButton(tour);
}
