#include "ProgrammaDiProva.h"

#include "disegni.h"

#include "core/db.h"
#include "desktop/palestra.h"
#include "platform/host/ProgramDirectory.h"

#include <QFile>

#include <sqlite3.h>

#include <stdexcept>

namespace {

void run(sqlite3* store, const QByteArray& sql) {
    if (sqlite3_exec(store, sql.constData(), nullptr, nullptr, nullptr) != SQLITE_OK)
        throw std::runtime_error(sqlite3_errmsg(store));
}

} // namespace

ProgrammaDiProva::ProgrammaDiProva() {
    QFile schema(qEnvironmentVariable("QUIVERDECK_SOURCE") + QStringLiteral("/data/schema.sql"));
    if (!schema.open(QIODevice::ReadOnly))
        throw std::runtime_error("data/schema.sql is missing; is QUIVERDECK_SOURCE set?");

    sqlite3* store = nullptr;
    sqlite3_open((folder() + QStringLiteral("/splash.ps")).toUtf8().constData(), &store);
    run(store, "PRAGMA synchronous = OFF; BEGIN");
    run(store, schema.readAll());
    run(store, "INSERT INTO palestra VALUES ('', '', '');"
               "INSERT INTO categorie VALUES (1, 'Generale');"
               "INSERT INTO utenti (id_utente, nome, cognome) VALUES (1, 'Anna', 'Rossi');"
               "INSERT INTO figure VALUES (7, 'QUIVR', 1, 'images\\figure\\Squat.JPG');"
               "INSERT INTO figure VALUES (8, 'QUIVR', 2, 'images\\figure\\manca.JPG');"
               "COMMIT");
    sqlite3_close(store);

    host::setProgramDirectory(folder());
    db::comune().dbName = QStringLiteral("splash.ps");
    disegni::writeFigure(folder() + QStringLiteral("/images/figure/squat.jpg"), {760, 665});
}

ProgrammaDiProva::~ProgrammaDiProva() {
    host::setProgramDirectory({});
}

void ProgrammaDiProva::setLogo(const QString& stored) const {
    palestra gym;
    gym.carica();
    gym.logo = stored;
    gym.save();
}

qint32 ProgrammaDiProva::storedCard(int exercises) const {
    scheda card;
    card.id_utente = 1;
    card.categoria = QStringLiteral("Generale");
    card.PeriodoDal = QStringLiteral("01/03/2026");
    card.PeriodoAl = QStringLiteral("22/03/2026");
    for (int i = 1; i <= exercises; ++i) {
        auto line = std::make_shared<Esercizio>();
        line->isLibero = i % 5 == 0;
        line->id_fig = line->isLibero ? 0 : figura;
        line->note = QStringLiteral("riga %1").arg(i);
        card.esercizi->Add(line);
    }
    return card.save();
}
