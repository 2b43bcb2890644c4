#include "StoreBuilder.h"

#include "CsvFile.h"
#include "Database.h"
#include "TemplateFile.h"
#include "UnfinishedFile.h"

#include <QDir>
#include <QHash>
#include <QRegularExpression>

#include <limits>

namespace catalogue {

namespace {
constexpr int greatestKey = std::numeric_limits<int>::max();
constexpr int greatestMuscleCode = 3; // longer keys of the muscle tree mean "all"

/// Fills a new store with the rows of the sources. Keys of one table needed by another are kept meanwhile.
class Filler {
public:
    Filler(Database& database, QString folder) : database_(database), folder_(std::move(folder)) {}

    void fill() {
        categories();
        muscles();
        machines();
        figures();
        gym();
        parameters();
        templates();
    }

private:
    QString file(const char* name) const { return folder_ + QLatin1Char('/') + QLatin1String(name); }

    void categories() {
        const CsvFile source(file("categorie.csv"));
        Statement insert(database_, QStringLiteral("INSERT INTO categorie (id_cat, nome) VALUES (?, ?)"));
        for (const CsvRow& row : source.rows()) {
            const QString name = row.text(QStringLiteral("nome"));
            if (name.isEmpty() || !name.front().isUpper())
                throw Error(QStringLiteral("%1: a category begins with a capital").arg(row.place()));
            const int key = row.number(QStringLiteral("id_cat"), 1, greatestKey);
            insert.bind(key).bind(name).run();
            categories_.insert(name, key);
        }
    }

    void muscles() {
        const CsvFile source(file("muscoli.csv"));
        Statement insert(
            database_,
            QStringLiteral("INSERT INTO muscoli (id_muscolo, nome, nomeMuscolo) VALUES (?, ?, ?)"));
        for (const CsvRow& row : source.rows()) {
            const QString code = row.text(QStringLiteral("id_muscolo"));
            const QString name = row.text(QStringLiteral("nome"));
            const QString muscle = row.text(QStringLiteral("nomeMuscolo"));
            if (code.isEmpty() || code.size() > greatestMuscleCode || name.isEmpty() || muscle.isEmpty())
                throw Error(
                    QStringLiteral("%1: a code of at most 3 characters and two names").arg(row.place()));
            insert.bind(code).bind(name).bind(muscle).run();
            muscles_ += code;
        }
    }

    void machines() {
        const CsvFile source(file("macchinari.csv"));
        Statement insert(database_,
                         QStringLiteral("INSERT INTO Macchinari (ID_MAC, Caricata) VALUES (?, ?)"));
        for (const CsvRow& row : source.rows()) {
            const QString code = row.text(QStringLiteral("ID_MAC"));
            insert.bind(code).bind(row.number(QStringLiteral("Caricata"), 0, 1)).run();
            machines_ += code;
        }
    }

    void figures() {
        const CsvFile source(file("figure.csv"));
        Statement insert(
            database_,
            QStringLiteral("INSERT INTO figure (id_fig, ID_MAC, numero, figura) VALUES (?, ?, ?, ?)"));
        Statement link(database_,
                       QStringLiteral("INSERT INTO figure_muscoli (id_fig, id_muscolo) VALUES (?, ?)"));
        static const QRegularExpression separator(QStringLiteral("[ ,|]+"));
        for (const CsvRow& row : source.rows()) {
            const int key = row.number(QStringLiteral("id_fig"), 1, greatestKey);
            const QString code = row.text(QStringLiteral("codice"));
            const QString machine = row.text(QStringLiteral("ID_MAC"));
            if (!machines_.contains(machine))
                throw Error(QStringLiteral("%1: no machine %2").arg(row.place(), machine));
            insert.bind(key)
                .bind(machine)
                .bind(row.real(QStringLiteral("numero")))
                .bind(storedPicture(code))
                .run();
            const QStringList groups =
                row.text(QStringLiteral("muscoli")).split(separator, Qt::SkipEmptyParts);
            if (groups.isEmpty())
                throw Error(
                    QStringLiteral("%1: a figure without a muscle group is never listed").arg(row.place()));
            for (const QString& group : groups) {
                if (!muscles_.contains(group))
                    throw Error(QStringLiteral("%1: no muscle group %2").arg(row.place(), group));
                link.bind(key).bind(group).run();
            }
            figures_.insert(code, {key, machine});
        }
    }

    void gym() {
        const CsvFile source(file("palestra.csv"));
        Statement insert(database_,
                         QStringLiteral("INSERT INTO palestra (nome, responsabile, logo) VALUES (?, ?, ?)"));
        for (const CsvRow& row : source.rows())
            insert.bind(row.text(QStringLiteral("nome")))
                .bind(row.text(QStringLiteral("responsabile")))
                .bind(row.text(QStringLiteral("logo")))
                .run();
    }

    void parameters() {
        const CsvFile source(file("parametri.csv"));
        Statement insert(database_,
                         QStringLiteral("INSERT INTO Parametri (parametro, valore) VALUES (?, ?)"));
        for (const CsvRow& row : source.rows())
            insert.bind(row.text(QStringLiteral("parametro"))).bind(row.text(QStringLiteral("valore"))).run();
    }

    void templates() {
        const QDir folder(folder_ + QStringLiteral("/modelli"));
        const QStringList names = folder.entryList({QStringLiteral("*.csv")}, QDir::Files, QDir::Name);
        int key = 0;
        for (const QString& name : names)
            addTemplate(TemplateFile(folder.filePath(name)), name, ++key);
    }

    void addTemplate(const TemplateFile& source, const QString& name, int key) {
        if (!categories_.contains(source.categoria))
            throw Error(QStringLiteral("%1: no category \"%2\"").arg(name, source.categoria));
        if (names_.contains(source.descrizione))
            throw Error(
                QStringLiteral("%1: there is a template \"%2\" already").arg(name, source.descrizione));
        names_ += source.descrizione;
        Statement(database_,
                  QStringLiteral("INSERT INTO schedeModello (id_Scheda, id_cat, descrizione, preimpostata, "
                                 "note) VALUES (?, ?, ?, 1, ?)"))
            .bind(key)
            .bind(categories_.value(source.categoria))
            .bind(source.descrizione)
            .bind(source.note)
            .run();
        Statement insert(
            database_,
            QStringLiteral("INSERT INTO EserciziModello (NProg, ID_Scheda, ID_Fig, Durata, Frequenza, "
                           "Ampiezza, RecuperoMin, RecuperoSec, Serie, Modalita, Peso, isLibero, Note) "
                           "VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)"));
        int place = 0;
        for (const TemplateLine& line : source.lines) {
            insert.bind(++place).bind(key).bind(figureOf(line)).bind(line.durata).bind(line.frequenza);
            insert.bind(line.ampiezza).bind(line.recuperoMin).bind(line.recuperoSec).bind(line.serie);
            insert.bind(line.modalita).bind(line.peso).bind(line.isLibero ? 1 : 0).bind(line.note).run();
        }
    }

    int figureOf(const TemplateLine& line) const {
        if (line.isLibero)
            return 0;
        const auto found = figures_.constFind(line.figure);
        // The figures of the other machine are listed in no window, so no template may hold one.
        if (found == figures_.constEnd() || found->machine != QLatin1String("QUIVR"))
            throw Error(QStringLiteral("%1: no figure \"%2\" of QUIVR").arg(line.place, line.figure));
        return found->key;
    }

    struct Figure {
        int key = 0;
        QString machine;
    };
    Database& database_;
    QString folder_;
    QHash<QString, int> categories_;
    QHash<QString, Figure> figures_;
    QStringList muscles_, machines_, names_;
};
} // namespace

QString storedPicture(const QString& code) {
    return QStringLiteral("images\\figure\\%1.JPG").arg(code);
}

void buildStore(const Sources& sources, const QString& target) {
    UnfinishedFile file(target);
    {
        Database database(file.path(), Database::Mode::Create);
        // Half a file is thrown away anyhow, so nothing waits for the disk.
        database.execute(QStringLiteral("PRAGMA synchronous = OFF; BEGIN"));
        database.execute(readText(sources.folder + QStringLiteral("/schema.sql")));
        Filler(database, sources.folder).fill();
        database.execute(QStringLiteral("COMMIT"));
    }
    file.finish();
}

} // namespace catalogue
