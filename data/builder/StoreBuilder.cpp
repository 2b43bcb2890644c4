#include "StoreBuilder.h"

#include "CsvFile.h"
#include "Database.h"
#include "TemplateFile.h"
#include "UnfinishedFile.h"

#include <QDir>
#include <QHash>
#include <QRegularExpression>

#include <limits>

using namespace Qt::StringLiterals;

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
        Statement insert(database_, u"INSERT INTO categorie (id_cat, nome) VALUES (?, ?)"_s);
        for (const CsvRow& row : source.rows()) {
            const QString name = row.text(u"nome"_s);
            if (name.isEmpty() || !name.front().isUpper())
                throw Error(u"%1: a category begins with a capital"_s.arg(row.place()));
            const int key = row.number(u"id_cat"_s, 1, greatestKey);
            insert.bind(key).bind(name).run();
            categories_.insert(name, key);
        }
    }

    void muscles() {
        const CsvFile source(file("muscoli.csv"));
        Statement insert(database_,
                         u"INSERT INTO muscoli (id_muscolo, nome, nomeMuscolo) VALUES (?, ?, ?)"_s);
        for (const CsvRow& row : source.rows()) {
            const QString code = row.text(u"id_muscolo"_s);
            const QString name = row.text(u"nome"_s);
            const QString muscle = row.text(u"nomeMuscolo"_s);
            if (code.isEmpty() || code.size() > greatestMuscleCode || name.isEmpty() || muscle.isEmpty())
                throw Error(u"%1: a code of at most 3 characters and two names"_s.arg(row.place()));
            insert.bind(code).bind(name).bind(muscle).run();
            muscles_ += code;
        }
    }

    void machines() {
        const CsvFile source(file("macchinari.csv"));
        Statement insert(database_, u"INSERT INTO Macchinari (ID_MAC, Caricata) VALUES (?, ?)"_s);
        for (const CsvRow& row : source.rows()) {
            const QString code = row.text(u"ID_MAC"_s);
            insert.bind(code).bind(row.number(u"Caricata"_s, 0, 1)).run();
            machines_ += code;
        }
    }

    void figures() {
        const CsvFile source(file("figure.csv"));
        Statement insert(database_,
                         u"INSERT INTO figure (id_fig, ID_MAC, numero, figura) VALUES (?, ?, ?, ?)"_s);
        Statement link(database_, u"INSERT INTO figure_muscoli (id_fig, id_muscolo) VALUES (?, ?)"_s);
        static const QRegularExpression separator(u"[ ,|]+"_s);
        for (const CsvRow& row : source.rows()) {
            const int key = row.number(u"id_fig"_s, 1, greatestKey);
            const QString code = row.text(u"codice"_s);
            const QString machine = row.text(u"ID_MAC"_s);
            if (!machines_.contains(machine))
                throw Error(u"%1: no machine %2"_s.arg(row.place(), machine));
            insert.bind(key).bind(machine).bind(row.real(u"numero"_s)).bind(storedPicture(code)).run();
            const QStringList groups = row.text(u"muscoli"_s).split(separator, Qt::SkipEmptyParts);
            if (groups.isEmpty())
                throw Error(u"%1: a figure without a muscle group is never listed"_s.arg(row.place()));
            for (const QString& group : groups) {
                if (!muscles_.contains(group))
                    throw Error(u"%1: no muscle group %2"_s.arg(row.place(), group));
                link.bind(key).bind(group).run();
            }
            figures_.insert(code, {key, machine});
        }
    }

    void gym() {
        const CsvFile source(file("palestra.csv"));
        Statement insert(database_, u"INSERT INTO palestra (nome, responsabile, logo) VALUES (?, ?, ?)"_s);
        for (const CsvRow& row : source.rows())
            insert.bind(row.text(u"nome"_s))
                .bind(row.text(u"responsabile"_s))
                .bind(row.text(u"logo"_s))
                .run();
    }

    void parameters() {
        const CsvFile source(file("parametri.csv"));
        Statement insert(database_, u"INSERT INTO Parametri (parametro, valore) VALUES (?, ?)"_s);
        for (const CsvRow& row : source.rows())
            insert.bind(row.text(u"parametro"_s)).bind(row.text(u"valore"_s)).run();
    }

    void templates() {
        const QDir folder(folder_ + u"/modelli"_s);
        const QStringList names = folder.entryList({u"*.csv"_s}, QDir::Files, QDir::Name);
        int key = 0;
        for (const QString& name : names)
            addTemplate(TemplateFile(folder.filePath(name)), name, ++key);
    }

    void addTemplate(const TemplateFile& source, const QString& name, int key) {
        if (!categories_.contains(source.categoria))
            throw Error(u"%1: no category \"%2\""_s.arg(name, source.categoria));
        if (names_.contains(source.descrizione))
            throw Error(u"%1: there is a template \"%2\" already"_s.arg(name, source.descrizione));
        names_ += source.descrizione;
        Statement(database_, u"INSERT INTO schedeModello (id_Scheda, id_cat, descrizione, preimpostata, "
                             "note) VALUES (?, ?, ?, 1, ?)"_s)
            .bind(key)
            .bind(categories_.value(source.categoria))
            .bind(source.descrizione)
            .bind(source.note)
            .run();
        Statement insert(database_,
                         u"INSERT INTO EserciziModello (NProg, ID_Scheda, ID_Fig, Durata, Frequenza, "
                         "Ampiezza, RecuperoMin, RecuperoSec, Serie, Modalita, Peso, isLibero, Note) "
                         "VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)"_s);
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
            throw Error(u"%1: no figure \"%2\" of QUIVR"_s.arg(line.place, line.figure));
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
    return u"images\\figure\\%1.JPG"_s.arg(code);
}

void buildStore(const Sources& sources, const QString& target) {
    UnfinishedFile file(target);
    {
        Database database(file.path(), Database::Mode::Create);
        // Half a file is thrown away anyhow, so nothing waits for the disk.
        database.execute(u"PRAGMA synchronous = OFF; BEGIN"_s);
        database.execute(readText(sources.folder + u"/schema.sql"_s));
        Filler(database, sources.folder).fill();
        database.execute(u"COMMIT"_s);
    }
    file.finish();
}

} // namespace catalogue
