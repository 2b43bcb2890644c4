#include "Tour.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <cstdio>
#include <memory>
#include <sqlite3.h>

namespace {

void addAthlete(const QString& folder) {
    sqlite3* handle = nullptr;
    sqlite3_open_v2((folder + "/splash.ps").toUtf8().constData(), &handle, SQLITE_OPEN_READWRITE, nullptr);
    const std::unique_ptr<sqlite3, decltype(&sqlite3_close)> store(handle, &sqlite3_close);
    if (sqlite3_exec(handle, "INSERT INTO utenti (nome, cognome, sesso) VALUES ('Anna', 'Rossi', 'F')",
                     nullptr, nullptr, nullptr) != SQLITE_OK)
        throw TourError(sqlite3_errmsg(handle));
}

/// Answers a box of the start by keyboard: the window manager may still be placing it.
void answer(Tour& tour, const QString& text, const QString& key, const QString& picture = {}) {
    tour.window("messageBox");
    tour.until("the box '" + text + "'", [&] { return tour.text("box").contains(text); });
    if (!picture.isEmpty())
        tour.shot(picture);
    tour.key(key);
    tour.until("the box to close", [&] { return !tour.text("box").contains(text); });
}

/// Killed while a card is being written, asked at the next start, and the card stands there as it stood.
void killAndRestore(Tour& tour) {
    const QString side = tour.folder() + "/splash.ps.aperta";
    addAthlete(tour.folder());
    tour.start();
    tour.window("Principale");
    tour.click("Principale/nuova");
    tour.window("UtentiSelezione");
    tour.fill("Ricerca", "ross");
    tour.key("Return");
    tour.window("mdiScheda");
    tour.fill("SchedaIntestazione/Obiettivo", "Tono muscolare");
    tour.click("TabStrip1#tab:0");
    tour.click("twFolder#item:Elenco Completo");
    tour.drag("twImage#row:0", "SchedaCorpo/figura_0");
    tour.fill("SchedaCorpo/serie_0", "4");
    tour.click("SchedaCorpo/VS#at:8,358");
    tour.until("the next exercises", [&] { return tour.text("nEsercizio_0") == "3"; });
    tour.fill("SchedaCorpo/peso_0", "12 kg");
    tour.fill("SchedaCorpo/note_1", "mai copiata nella riga");
    tour.check(QFileInfo::exists(side), "the open card is in its side file");
    const QString status = tour.text("status");
    tour.shot("prima");
    tour.kill();

    tour.start();
    answer(tour, "Ripristinare la scheda che era aperta per Rossi Anna", "Return", "domanda");
    tour.window("mdiScheda");
    tour.shot("dopo");
    for (const auto& [field, text] :
         {std::pair("SchedaIntestazione/Obiettivo", "Tono muscolare"), std::pair("nEsercizio_0", "3"),
          std::pair("SchedaCorpo/peso_0", "12 kg"),
          std::pair("SchedaCorpo/note_1", "mai copiata nella riga")})
        tour.check(tour.text(field) == text, QString("%1 reads %2").arg(field, text));
    tour.check(tour.text("status") == status, "the totals are the same");
    tour.check(!tour.visible("Principale"), "the main window is away");

    // Declined, it is kept under another name.
    tour.kill();
    tour.start();
    answer(tour, "Ripristinare la scheda che era aperta", "Escape");
    tour.window("Principale");
    tour.check(!QFileInfo::exists(side), "the side file has another name");
    const QStringList kept = QDir(tour.folder()).entryList({"splash.ps.aperta.rifiutata-*"});
    tour.check(kept.size() == 1, "it is kept");

    // A damaged one does not stop the start.
    tour.kill();
    QFile damaged(side);
    if (!damaged.open(QIODevice::WriteOnly) || damaged.write(QByteArray(5000, '\0')) != 5000)
        throw TourError("no damaged file");
    damaged.close();
    tour.start();
    answer(tour, "danneggiata", "Return");
    tour.window("Principale");
    tour.click("Principale/esci");
    tour.check(tour.waitForEnd() == 0, "the program ends well");
    tour.check(!QFileInfo::exists(side), "no side file stays");
}

} // namespace

int main(int argc, char* argv[]) {
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 3) {
        std::fputs("killed_driver FOLDER PICTURES\n", stderr);
        return 2;
    }
    try {
        Tour tour(arguments[1], arguments[2]);
        killAndRestore(tour);
    } catch (const TourError& error) {
        std::fprintf(stderr, "The program lost something: %s\n", error.what());
        return 1;
    }
    return 0;
}
