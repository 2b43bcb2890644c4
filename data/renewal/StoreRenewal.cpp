#include "StoreRenewal.h"

#include "CsvFile.h"
#include "Database.h"
#include "UnfinishedFile.h"

#include <QFile>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace catalogue {

namespace {
void checkSchema(Database& fresh, Database& inUse) {
    const auto version = [](Database& database) { return database.scalar(u"PRAGMA user_version"_s); };
    if (version(fresh) == 0 || version(fresh) != version(inUse))
        throw Error(u"%1 has schema %2, the catalogue has %3"_s.arg(inUse.path())
                        .arg(version(inUse))
                        .arg(version(fresh)));
}

/// Rows that are equal already are left alone, so that the count of changes tells whether anything is new.
void renewTables(Database& store) {
    store.execute(QStringLiteral(R"(
INSERT INTO main.figure (id_fig, ID_MAC, numero, figura)
    SELECT id_fig, ID_MAC, numero, figura FROM nuovo.figure WHERE true
    ON CONFLICT (id_fig) DO UPDATE SET ID_MAC = excluded.ID_MAC, numero = excluded.numero, figura = excluded.figura
    WHERE figure.ID_MAC IS NOT excluded.ID_MAC OR figure.numero IS NOT excluded.numero
       OR figure.figura IS NOT excluded.figura;

INSERT INTO main.muscoli (id_muscolo, nome, nomeMuscolo)
    SELECT id_muscolo, nome, nomeMuscolo FROM nuovo.muscoli WHERE true
    ON CONFLICT (id_muscolo) DO UPDATE SET nome = excluded.nome, nomeMuscolo = excluded.nomeMuscolo
    WHERE muscoli.nome IS NOT excluded.nome OR muscoli.nomeMuscolo IS NOT excluded.nomeMuscolo;

INSERT INTO main.Macchinari (ID_MAC, Caricata)
    SELECT ID_MAC, Caricata FROM nuovo.Macchinari WHERE true
    ON CONFLICT (ID_MAC) DO UPDATE SET Caricata = excluded.Caricata
    WHERE Macchinari.Caricata IS NOT excluded.Caricata;

DELETE FROM main.figure_muscoli
    WHERE id_fig IN (SELECT id_fig FROM nuovo.figure)
      AND (id_fig, id_muscolo) NOT IN (SELECT id_fig, id_muscolo FROM nuovo.figure_muscoli);
INSERT OR IGNORE INTO main.figure_muscoli (id_fig, id_muscolo)
    SELECT id_fig, id_muscolo FROM nuovo.figure_muscoli;

INSERT INTO main.categorie (id_cat, nome)
    SELECT id_cat, nome FROM nuovo.categorie WHERE id_cat NOT IN (SELECT id_cat FROM main.categorie);
)"));
}

void addTemplates(Database& store) {
    // Automatic keys go on from the highest ever handed out, so whatever lies above it is new.
    const int before = store.scalar(u"SELECT seq FROM main.sqlite_sequence WHERE name = 'schedeModello'"_s);
    store.execute(QStringLiteral(R"(
INSERT INTO main.schedeModello (id_cat, descrizione, preimpostata, note)
    SELECT n.id_cat, n.descrizione, 1, n.note FROM nuovo.schedeModello n
    WHERE n.preimpostata AND NOT EXISTS
        (SELECT 1 FROM main.schedeModello m WHERE m.preimpostata AND m.descrizione = n.descrizione)
    ORDER BY n.id_Scheda;
)"));
    Statement(store, QStringLiteral(R"(
INSERT INTO main.EserciziModello (NProg, ID_Scheda, ID_Fig, Durata, Frequenza, Ampiezza, RecuperoMin, RecuperoSec,
                                  Serie, Modalita, Peso, isLibero, Note)
    SELECT e.NProg, m.id_Scheda, e.ID_Fig, e.Durata, e.Frequenza, e.Ampiezza, e.RecuperoMin, e.RecuperoSec,
           e.Serie, e.Modalita, e.Peso, e.isLibero, e.Note
    FROM nuovo.EserciziModello e
    JOIN nuovo.schedeModello n ON n.id_Scheda = e.ID_Scheda AND n.preimpostata
    JOIN main.schedeModello m ON m.descrizione = n.descrizione AND m.preimpostata
    WHERE m.id_Scheda > ?
    ORDER BY m.id_Scheda, e.NProg
)"))
        .bind(before)
        .run();
}

/// Renews the copy; true if a row changed.
bool renewCopy(Database& copy, const QString& fresh) {
    Statement(copy, u"ATTACH ? AS nuovo"_s).bind(fresh).run();
    const int before = copy.totalChanges();
    copy.execute(u"BEGIN"_s);
    renewTables(copy);
    addTemplates(copy);
    copy.execute(u"COMMIT"_s);
    const bool changed = copy.totalChanges() != before;
    copy.execute(u"DETACH nuovo"_s);
    Statement check(copy, u"PRAGMA quick_check(1)"_s);
    if (!check.next() || check.text(0) != QLatin1String("ok"))
        throw Error(u"%1 is damaged"_s.arg(copy.path()));
    return changed;
}
} // namespace

bool renewStore(const QString& fresh, const QString& inUse) {
    const QString real = QFileInfo(inUse).canonicalFilePath(); // a link stays a link
    if (real.isEmpty())
        throw Error(u"%1 does not exist"_s.arg(inUse));
    UnfinishedFile copy(real);
    // Undoes what a crash left half written, and keeps writers out until the copy has taken the name. Readers
    // may go on, and the copy is read through a connection of its own: one that writes cannot be copied from.
    Database guard(real, Database::Mode::Existing);
    guard.execute(u"BEGIN IMMEDIATE"_s);
    Database source(real, Database::Mode::ReadOnly);
    bool changed = false;
    {
        Database freshStore(fresh, Database::Mode::ReadOnly);
        checkSchema(freshStore, source);
        Database target(copy.path(), Database::Mode::Create);
        target.copyFrom(source);
        changed = renewCopy(target, fresh);
    }
    if (changed) {
        QFile::setPermissions(copy.path(), QFile::permissions(real));
        copy.finish();
    }
    return changed;
}

} // namespace catalogue
