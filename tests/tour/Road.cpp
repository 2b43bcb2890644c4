#include "Tour.h"

#include <QCoreApplication>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

/// One stop at the muscle map: the area to press, and what the two rows of the page take. Five screens of two
/// exercises; the eleventh is free text.
struct Stop {
    QString area, series, minutes, seconds, note;
};
const Stop stops[] = {
    {u"QUA_2"_s, u"3"_s, u"1"_s, u"30"_s, u"Ginocchia in linea con i piedi, sguardo avanti."_s},
    {u"GLU_2"_s, u"3"_s, u"1"_s, u"0"_s, u"Salire spingendo sull'avampiede."_s},
    {u"Add_1"_s, u"2"_s, u"0"_s, u"45"_s, u"Respirare sempre: mai trattenere il fiato."_s},
    {u"DOR_0"_s, u"3"_s, u"1"_s, u"0"_s, u"Scapole vicine, collo lungo."_s},
    {u"PET_5"_s, u"2"_s, u"1"_s, u"15"_s, u"Perché funzioni, le scapole restano basse."_s},
};

/// The gym gives its name, and a logo by the file dialog; a new athlete comes.
void enterNames(Tour& tour) {
    const QString logo = QDir::homePath() + u"/Il Cigno.JPG"_s;
    Tour::run(
        u"convert -size 380x380 xc:white -quality 92 -fill #f4d35e -stroke #1f6f8b -strokewidth 60 -draw"_s,
        {u"circle 190,190 190,35"_s, logo});
    tour.menu(u"mnuQDK"_s, u"mnuQDKPersonalizza"_s, u"frmPersonalizza"_s, u"menu-programma"_s);
    tour.fill(
        {{u"frmPersonalizza/nome"_s, u"Palestra Il Cigno"_s}, {u"responsabile"_s, u"Anna Però e figli"_s}});
    tour.go(u"cmdApriIMG"_s, u"fileDialog"_s);
    tour.fill({{u"fileNameEdit"_s, logo}});
    tour.key(u"Return"_s, u"frmPersonalizza"_s);
    tour.where(u"frmPersonalizza/logo"_s);
    tour.shot(u"palestra"_s, {u"frmPersonalizza"_s});
    tour.go(u"frmPersonalizza/cmdOK"_s, u"Principale"_s);

    tour.menu(u"mnuUtenti"_s, u"mnuUtentiGestione"_s, u"UtentiSelezione"_s, u"menu-utenti"_s);
    tour.go(u"UtentiSelezione/nuovo"_s, u"UtentiNuovo"_s);
    tour.fill({{u"txtNome"_s, u"Niccolò"_s},
               {u"txtCognome"_s, u"D'Amico Bellini"_s},
               {u"txtNote"_s, u"Ginocchio destro operato: niente salti. Perché migliori, sedute brevi."_s}});
    tour.click(u"optM"_s);
    tour.shot(u"atleta"_s, {u"UtentiNuovo"_s});
    tour.go(u"CmdSave"_s, u"UtentiSelezione"_s);
    tour.where(u"LW#item:Niccolò"_s);
    tour.shot(u"elenco-atleti"_s, {u"UtentiSelezione"_s});
    tour.go(u"UtentiSelezione/annulla"_s, u"Principale"_s);
}

/// Finds the tour's own athlete by typing and takes it with Enter.
void chooseAthlete(Tour& tour, const QString& button, const QString& window) {
    tour.go(button, u"UtentiSelezione"_s);
    tour.fill({{u"Ricerca"_s, u"d`am"_s}});
    tour.key(u"Return"_s, window);
}

/// The editor comes up before its pages, which the picture must show.
void openEditor(Tour& tour, const QString& target, const QString& picture) {
    tour.go(target, u"mdiScheda"_s);
    tour.where(u"SchedaCorpo"_s);
    tour.shot(picture);
}

void writeCard(Tour& tour) {
    chooseAthlete(tour, u"Principale/nuova"_s, u"mdiScheda"_s);
    tour.shot(u"scheda-nuova"_s);
    tour.fill({{u"SchedaIntestazione/Obiettivo"_s, u"Forza e tono dell'arto inferiore"_s},
               {u"Istruttore"_s, u"Marta D'Amico"_s}});
    Tour::until(u"straight apostrophes are guarded"_s,
                [&] { return !tour.text(u"Istruttore"_s).contains(u'\''); });
    tour.click(u"apriGGAllen"_s);
    for (const QString& day : {u"2"_s, u"4"_s, u"6"_s})
        tour.click(u"GGAllen#row:"_s + day);
    tour.shot(u"giorni"_s);
    tour.click(u"apriGGAllen"_s);
    tour.fill({{u"SchedaIntestazione/note"_s, u"Bere spesso. Dopo tre settimane si rivede il programma."_s}});

    int first = 1;
    for (const Stop& stop : stops) {
        tour.click(u"BodyMap1/"_s + stop.area);
        for (const QString& row : {u"0"_s, u"1"_s}) {
            tour.drag(u"twImage#row:"_s + row, u"SchedaCorpo/figura_"_s + row);
            tour.fill({{u"SchedaCorpo/serie_"_s + row, stop.series},
                       {u"SchedaCorpo/recuperoMin_"_s + row, stop.minutes},
                       {u"SchedaCorpo/recuperoSec_"_s + row, stop.seconds},
                       {u"SchedaCorpo/note_"_s + row, stop.note}});
        }
        if (first == 1)
            tour.shot(u"esercizi"_s, {u"mdiScheda"_s, u"SchedaIntestazione"_s, u"SchedaCorpo"_s,
                                      u"SchedaSelezioneFIGURE"_s});
        tour.click(u"SchedaCorpo/VS#at:8,358"_s); // one screen down
        tour.reads(u"nEsercizio_0"_s, QString::number(first += 2));
    }
    tour.click(u"TipoEsercizio_0#tab:1"_s);
    tour.fill(
        {{u"SchedaCorpo/note_2"_s, u"Defaticamento: cinque minuti di camminata lenta, poi stretching."_s}});
    tour.shot(u"esercizio-libero"_s);
    tour.reads(u"status"_s, u"Tempo effettivo: 13:00"_s); // of ten exercises
}

/// The power fails: asked at the next start, the card stands there as it stood, and can be stored.
void loseRestoreAndSave(Tour& tour) {
    const QJsonObject before = tour.texts(u"mdiScheda"_s);
    tour.kill();
    tour.start();
    tour.window(u"messageBox"_s);
    tour.reads(u"messageBox"_s, u"Ripristinare la scheda che era aperta"_s);
    tour.key(u"Return"_s, u"mdiScheda"_s);
    tour.until(u"the same card"_s, [&] { return tour.texts(u"mdiScheda"_s) == before; });

    tour.click(u"TabStrip1#tab:0"_s);
    tour.click(u"twFolder#item:Elenco Completo"_s);
    tour.where(u"twImage#row:2"_s);
    tour.shot(u"elenco-figure"_s);
    tour.click(u"mdiScheda/salva"_s);
    tour.box(u"Salvataggio effettuato"_s, u"OK"_s, u"salvata"_s);
}

/// The sheets on screen and on paper.
void print(Tour& tour) {
    tour.go(u"mdiScheda/stampa"_s, u"PrinterCanvas"_s);
    tour.reads(u"info"_s, u"Pagina 1/2"_s);
    tour.shot(u"anteprima-1"_s, {u"PrinterCanvas"_s});
    const int before = tour.where(u"canvas"_s).y();
    tour.drag(u"canvas#at:8,500"_s, u"canvas#at:8,440"_s);
    Tour::until(u"the hand drags the page"_s, [&] { return tour.where(u"canvas"_s).y() < before; });
    tour.shot(u"anteprima-trascinata"_s);
    tour.click(u"PagSucc"_s);
    tour.reads(u"info"_s, u"Pagina 2/2"_s);
    tour.shot(u"anteprima-2"_s);
    const QString pdf = tour.print(u"PrinterCanvas"_s, u"scheda"_s, u"finestra-di-stampa"_s);
    Tour::run(u"pdftoppm -r 96 -png"_s, {pdf, tour.pictures + u"/foglio"_s});
    Tour::until(u"the PDF has two sheets"_s,
                [&] { return QDir(tour.pictures).entryList({u"foglio-*"_s}).size() == 2; });
    tour.go(u"PrinterCanvas/esci"_s, u"mdiScheda"_s);
}

void leaveCard(Tour& tour, const QString& answer, const QString& picture = {}) {
    tour.click(u"fine"_s);
    tour.box(u"Salvo le ultime modifiche?"_s, answer, picture);
    tour.window(u"Principale"_s);
}

void findItAgain(Tour& tour) {
    leaveCard(tour, u"Sì"_s, u"fine"_s);
    Tour::run(u"timeout 60"_s, {tour.executable}); // a second start ends, and well
    tour.window(u"Principale"_s);
    chooseAthlete(tour, u"Principale/apri"_s, u"SchedeSelezione"_s);
    tour.shot(u"elenco-schede"_s, {u"SchedeSelezione"_s});
    openEditor(tour, u"SchedeSelezione/seleziona"_s, u"scheda-riaperta"_s);
    tour.reads(u"SchedaIntestazione/Obiettivo"_s, u"Forza e tono"_s);
    tour.reads(u"SchedaCorpo/recuperoSec_1"_s, u"30"_s);
    tour.reads(u"status"_s, u"Tempo effettivo: 13:00"_s);
    leaveCard(tour, u"No"_s);
}

void useTemplates(Tour& tour) {
    chooseAthlete(tour, u"Principale/nuovaDaModello"_s, u"SchedeMODELLOSelezione"_s);
    tour.shot(u"modelli"_s, {u"SchedeMODELLOSelezione"_s});
    openEditor(tour, u"SchedeMODELLOSelezione/seleziona"_s, u"scheda-da-modello"_s);
    Tour::until(u"the template's exercises are there"_s,
                [&] { return !tour.text(u"status"_s).contains(u"totale: 00:00"_s); });
    tour.click(u"cmdZoom"_s);
    tour.where(u"SchedaPreviewFigura"_s);
    tour.shot(u"figura-ingrandita"_s);
    tour.click(u"SchedaPreviewFigura/cmdClose"_s);
    tour.go(u"SalvaSuModello"_s, u"SchedeMODELLONuova"_s);
    tour.fill({{u"descrizione"_s, u"Forza per chi ricomincia"_s}});
    tour.shot(u"modello-nuovo"_s, {u"SchedeMODELLONuova"_s});
    tour.click(u"SchedeMODELLONuova/cmdOk"_s);
    tour.box(u"Creata la nuova Scheda Modello 'Forza per chi ricomincia'"_s, u"OK"_s);
    leaveCard(tour, u"No"_s);

    tour.menu(u"mnuSchede"_s, u"mnuSchedeGestioneModello"_s, u"SchedeMODELLOSelezione"_s, u"menu-schede"_s);
    tour.click(u"LW#item:Forza per chi ricomincia"_s);
    tour.shot(u"modelli-gestione"_s);
    openEditor(tour, u"SchedeMODELLOSelezione/modifica"_s, u"modello-aperto"_s);
    leaveCard(tour, u"Sì"_s);
}

/// The warnings' sheet, the guide, the windows behind the button that is not shown, and the way out.
void lookRound(Tour& tour) {
    tour.click(u"mnuSchede"_s);
    tour.go(u"mnuSchedeCosaNonFare"_s, u"PrinterDaNonFare"_s, u"avvertenze"_s, {u"PrinterDaNonFare"_s});
    tour.print(u"PrinterDaNonFare"_s, u"avvertenze"_s);
    tour.go(u"PrinterDaNonFare/esci"_s, u"Principale"_s);

    tour.key(u"F1"_s, u"FinestraGuida"_s, u"guida"_s);
    tour.key(u"alt+F4"_s, u"Principale"_s);
    tour.menu(u"mnuHelp"_s, u"mnuHelpAbout"_s, u"frmAbout"_s, u"menu-aiuto"_s);
    tour.shot(u"informazioni"_s);
    tour.go(u"frmAbout/cmdOK"_s, u"Principale"_s);
    tour.key(u"ctrl+shift+F12"_s, u"Principale"_s);
    tour.go(u"Principale/test"_s, u"zfrmTestDB"_s, u"prove"_s);
    for (const QString& pair :
         {u"cmdConteggi frmDisplay"_s, u"cmdDragAndDrop zTESTDragAndDrop"_s,
          u"cmdTreeViewImage zTestTreeViewImage"_s, u"cmdSchedaCorpo2 SchedaCorpo2"_s}) {
        const QString window = pair.section(u' ', 1);
        tour.go(u"zfrmTestDB/"_s + pair.section(u' ', 0, 0), window, window);
        tour.key(u"alt+F4"_s, u"zfrmTestDB"_s);
    }
    tour.key(u"alt+F4"_s, u"Principale"_s);
    tour.click(u"Principale/esci"_s);
    Tour::until(u"the program ends well"_s, [&] { return tour.waitForEnd() == EXIT_SUCCESS; });
}

} // namespace

/// tour_driver FOLDER PICTURES: the road of a card, from a new athlete to sheets on paper, and all of it
/// found again; then the windows beside the road.
int main(int argc, char* argv[]) {
    const QCoreApplication application(argc, argv);
    const QString folder = QCoreApplication::arguments().value(1);
    try {
        Tour tour(folder, QCoreApplication::arguments().value(2));
        tour.start();
        tour.window(u"Principale"_s, u"principale"_s, {u"Principale"_s});
        for (const auto stage :
             {enterNames, writeCard, loseRestoreAndSave, print, findItAgain, useTemplates, lookRound})
            stage(tour);
        Tour::until(u"no open card is left behind"_s,
                    [&] { return !QFile::exists(folder + u"/splash.ps.aperta"_s); });
    } catch (const std::runtime_error& error) {
        std::fprintf(stderr, "The tour ends early: %s\n", error.what());
        return EXIT_FAILURE;
    }
}
