#include "Road.h"

#include "SideRoads.h"
#include "Tour.h"

#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QPainter>
#include <QProcess>
#include <QRegularExpression>
#include <sqlite3.h>

#include <array>
#include <memory>

namespace {

/// One stop at the muscle map: the area to press, and what the two rows of the page take.
struct Stop {
    const char* area;
    const char* serie;
    const char* minutes;
    const char* seconds;
    const char* note;
};

/// Five screens of two exercises; the eleventh is free text.
constexpr std::array<Stop, 5> stops{{
    {"BodyMap1/QUA_2", "3", "1", "30", "Ginocchia in linea con i piedi, sguardo avanti."},
    {"BodyMap1/GLU_2", "3", "1", "0", "Salire spingendo sull'avampiede."},
    {"BodyMap1/Add_1", "2", "0", "45", "Respirare sempre: mai trattenere il fiato."},
    {"BodyMap1/DOR_0", "3", "1", "0", ""},
    {"BodyMap1/PET_5", "2", "1", "15", "Perché funzioni, le scapole restano basse."},
}};

/// The gym's own row, written as the gym would have done, with a logo of its own.
void writeGym(const QString& folder) {
    const QString logo = folder + "/images/palestra ’Il Cigno’.JPG";
    QImage picture(600, 420, QImage::Format_RGB32);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0x1f6f8b));
    painter.drawRoundedRect(20, 20, 560, 380, 60, 60);
    painter.setBrush(QColor(0xf4d35e));
    painter.drawEllipse(QPoint(300, 210), 120, 120);
    painter.end();
    if (!picture.save(logo, "JPG", 92))
        throw TourError("no logo drawn");
    sqlite3* handle = nullptr;
    sqlite3_open_v2((folder + "/splash.ps").toUtf8().constData(), &handle, SQLITE_OPEN_READWRITE, nullptr);
    const std::unique_ptr<sqlite3, decltype(&sqlite3_close)> store(handle, &sqlite3_close);
    const QString update =
        QString("UPDATE palestra SET nome='Palestra Il Cigno', responsabile='Anna Però', logo='%1'")
            .arg(logo);
    if (sqlite3_exec(handle, update.toUtf8().constData(), nullptr, nullptr, nullptr) != SQLITE_OK)
        throw TourError(sqlite3_errmsg(handle));
}

void enterAthlete(Tour& tour) {
    tour.click("mnuUtenti");
    tour.where("mnuUtentiGestione");
    tour.shot("menu-utenti");
    tour.click("mnuUtentiGestione");
    tour.window("UtentiSelezione");
    tour.click("UtentiSelezione/nuovo");
    tour.window("UtentiNuovo");
    tour.fill("txtNome", "Niccolò");
    tour.fill("txtCognome", "D'Amico Bellini");
    tour.fill("txtNote", "Ginocchio destro operato nel 2019: niente salti. Perché migliori, sedute brevi.");
    tour.click("optM");
    tour.shot("atleta");
    tour.portrait("UtentiNuovo");
    tour.click("CmdSave");
    tour.window("UtentiSelezione");
    tour.until("the athlete in the list", [&] { return tour.text("LW#item:Niccolò") == "Niccolò"; });
    tour.shot("elenco-atleti");
    tour.portrait("UtentiSelezione");
    tour.click("UtentiSelezione/annulla");
    tour.window("Principale");
}

void fillHeader(Tour& tour) {
    tour.window("mdiScheda");
    tour.shot("scheda-nuova");
    tour.fill("SchedaIntestazione/Obiettivo", "Forza e tono dell'arto inferiore");
    tour.fill("SchedaIntestazione/Istruttore", "Marta D'Amico");
    tour.check(!tour.text("SchedaIntestazione/Istruttore").contains('\''),
               "the straight apostrophe is guarded");
    tour.click("apriGGAllen");
    tour.click("GGAllen#row:2");
    tour.shot("giorni");
    tour.click("GGAllen#row:4");
    tour.click("GGAllen#row:6");
    tour.click("apriGGAllen");
    tour.fill("SchedaIntestazione/note",
              "Bere spesso. Dopo la terza settimana si rivede il programma insieme.");
}

void fillRow(Tour& tour, int row, const Stop& stop) {
    const QString end = QString("_%1").arg(row);
    tour.fill("SchedaCorpo/serie" + end, stop.serie);
    tour.fill("SchedaCorpo/recuperoMin" + end, stop.minutes);
    tour.fill("SchedaCorpo/recuperoSec" + end, stop.seconds);
    if (*stop.note != '\0')
        tour.fill("SchedaCorpo/note" + end, stop.note);
}

/// One screen further down the list, by the scroll bar's arrow.
void scrollDown(Tour& tour, int first) {
    tour.click("SchedaCorpo/VS#at:8,358");
    tour.until("the next exercises", [&] { return tour.text("nEsercizio_0") == QString::number(first); });
}

void seeTheEditor(Tour& tour) {
    tour.shot("esercizi");
    for (const char* page : {"mdiScheda", "SchedaIntestazione", "SchedaCorpo", "SchedaSelezioneFIGURE"})
        tour.portrait(page);
}

void fillExercises(Tour& tour) {
    int first = 1;
    for (const Stop& stop : stops) {
        if (first > 1)
            scrollDown(tour, first);
        tour.click(stop.area);
        tour.drag("twImage#row:0", "SchedaCorpo/figura_0");
        tour.drag("twImage#row:1", "SchedaCorpo/figura_1");
        fillRow(tour, 0, stop);
        fillRow(tour, 1, stop);
        if (first == 1)
            seeTheEditor(tour);
        first += 2;
    }
    scrollDown(tour, first);
    tour.click("TipoEsercizio_0#tab:1");
    tour.fill("SchedaCorpo/note_2",
              "Defaticamento: cinque minuti di camminata lenta, poi stretching a terra.");
    tour.shot("esercizio-libero");
    tour.check(tour.text("status").contains("Tempo effettivo: 13:00"),
               "the totals count ten exercises: " + tour.text("status"));
    tour.click("TabStrip1#tab:0");
    tour.click("twFolder#item:Elenco Completo");
    tour.where("twImage#row:2");
    tour.shot("elenco-figure");
    tour.click("mdiScheda/salva");
    tour.box("Salvataggio effettuato", "OK", "salvata");
}

/// The sheets on screen and on paper.
void print(Tour& tour) {
    tour.click("mdiScheda/stampa");
    tour.window("PrinterCanvas");
    tour.until("the first sheet", [&] { return tour.text("info").contains("Pagina 1/2"); });
    tour.shot("anteprima-1");
    tour.portrait("PrinterCanvas");
    const int top = tour.where("canvas")["top"].toInt();
    tour.dragBy("canvas#at:8,500", 0, -60);
    tour.check(tour.where("canvas")["top"].toInt() < top, "the hand drags the page");
    tour.shot("anteprima-trascinata");
    tour.click("PagSucc");
    tour.until("the second sheet", [&] { return tour.text("info").contains("Pagina 2/2"); });
    tour.shot("anteprima-2");

    const QString pdf = tour.pictures() + "/scheda.pdf";
    tour.click("PrinterCanvas/Stampa");
    tour.window("printerDialog");
    tour.shot("finestra-di-stampa");
    tour.check(tour.text("filename").endsWith(".pdf"), "a PDF is proposed: " + tour.text("filename"));
    tour.fill("filename", pdf);
    tour.click("printerDialog#button:Stampa");
    tour.until("the PDF", [&] { return QFileInfo(pdf).size() > 0; });
    tour.window("PrinterCanvas");
    QProcess info;
    info.start("pdfinfo", {pdf});
    info.waitForFinished();
    const QString facts = info.readAllStandardOutput();
    tour.check(facts.contains(QRegularExpression("Pages: +2\n")), "the PDF has two sheets:\n" + facts);
    if (QProcess::execute("pdftoppm", {"-r", "96", "-png", pdf, tour.pictures() + "/foglio"}) != 0)
        throw TourError("the PDF does not open");
    tour.click("PrinterCanvas/esci");
    tour.window("mdiScheda");
}

void findItAgain(Tour& tour) {
    tour.click("fine");
    tour.box("Salvo le ultime modifiche?", "Sì", "fine");
    tour.window("Principale");
    tour.check(tour.startAgain() == 0, "a second start ends");
    tour.window("Principale");
    tour.click("Principale/apri");
    chooseTheAthlete(tour);
    tour.window("SchedeSelezione");
    tour.shot("elenco-schede");
    tour.portrait("SchedeSelezione");
    tour.click("SchedeSelezione/seleziona");
    tour.window("mdiScheda");
    tour.shot("scheda-riaperta");
    tour.check(tour.text("SchedaIntestazione/Obiettivo").startsWith("Forza e tono"), "the goal is kept");
    tour.check(tour.text("SchedaCorpo/serie_0") == "3", "the series are kept");
    tour.check(tour.text("SchedaCorpo/recuperoSec_1") == "30", "the recovery is kept");
    tour.check(tour.text("status").contains("Tempo effettivo: 13:00"), "the totals are the same");
    tour.click("fine");
    tour.box("Salvo le ultime modifiche?", "No");
    tour.window("Principale");
}

} // namespace

void chooseTheAthlete(Tour& tour) {
    tour.window("UtentiSelezione");
    tour.fill("Ricerca", "d`am");
    tour.key("Return");
}

void walkTheRoad(Tour& tour) {
    writeGym(tour.folder());
    tour.start();
    tour.window("Principale");
    tour.shot("principale");
    tour.portrait("Principale");
    enterAthlete(tour);
    tour.click("Principale/nuova");
    chooseTheAthlete(tour);
    fillHeader(tour);
    fillExercises(tour);
    print(tour);
    findItAgain(tour);
    walkTheSideRoads(tour);
    tour.click("Principale/esci");
    tour.check(tour.waitForEnd() == 0, "the program ends well");
    tour.check(!QFileInfo::exists(tour.folder() + "/splash.ps.aperta"), "no open card is left behind");
}
