// A store in use takes over a newer catalogue and keeps every row of its user.
#include "StoreBuilder.h"
#include "StoreRenewal.h"
#include "Stores.h"

using namespace Qt::StringLiterals;
using catalogue::Database;
using stores::texts;

class TestRenewal : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        QFile::remove(store_);
        QFile::remove(fresh_);
        build(store_, "1;Base\n",
              "Q001;1;QUIVR;1;Uno;QUA,GLU\nQ002;2;QUIVR;2;Due;PET\nQ009;9;QUIVR;9;Nove;TRA\n", {u"Primo"_s});
        build(fresh_, "1;Base\n2;Nuova\n",
              "Q001;1;QUIVR;1.5;Uno;QUA,POL\nQ002;2;QUIVR;2;Due;PET\n"
              "Q003;3;QUIVR;3;Tre;BIC\nG001;50;GLIDR;1;Altra;ADD\n",
              {u"Primo"_s, u"Secondo"_s});
        Database(store_, Database::Mode::Existing).execute(QStringLiteral(R"(
INSERT INTO utenti (nome, cognome, dataNascita, sesso, Note) VALUES ('Ada', 'Rossi', '1980-02-03', 'F', 'n');
INSERT INTO schede (id_utente, Istruttore, PeriodoDal, id_cat, FreqAllen, GGAllen) VALUES
    (1, 'Bo', '2005-01-02', 1, 3, '001010100'), (1, '', NULL, 1, 0, '');
INSERT INTO Esercizi (NProg, ID_Scheda, ID_Fig, Durata, Frequenza, Ampiezza, Serie, isLibero) VALUES
    (1, 1, 1, '30s', '30Hz', 'L', 1, 0), (2, 1, 9, '45s', '30Hz', 'H', 300, 0), (1, 2, 2, '', '', '', 1, 0);
INSERT INTO schedeModello (id_cat, descrizione, preimpostata, note) VALUES (1, 'Mio', 0, ''), (1, 'Secondo', 0, '');
INSERT INTO EserciziModello (NProg, ID_Scheda, ID_Fig, isLibero, Note) VALUES (1, 2, 0, 1, 'mio');
UPDATE palestra SET nome = 'Palestra', logo = 'x';
INSERT INTO Parametri VALUES ('CAMBIO_RISOLUZIONE', '8');
UPDATE Parametri SET valore = 'altrove' WHERE parametro = 'PATH_MANUALE';
)"));
    }

    void theCatalogueIsRenewedAndTheUserKeepsEveryRow() {
        const QString former = folder_.filePath(u"former.ps"_s);
        QVERIFY(QFile::copy(store_, former));
        QVERIFY(catalogue::renewStore(fresh_, store_));
        Database store(store_, Database::Mode::ReadOnly);
        store.execute(u"ATTACH '%1' AS former"_s.arg(former));
        // What is the user's: the tables of the program's own, and the templates up to a key.
        for (const QString& table :
             u"utenti|schede|Esercizi|palestra|Parametri|schedeModello WHERE id_Scheda <= 3|"
             "EserciziModello WHERE ID_Scheda <= 3"_s.split(u'|'))
            for (const auto& difference : {u"SELECT * FROM former.%1 EXCEPT SELECT * FROM main.%1"_s,
                                           u"SELECT * FROM main.%1 EXCEPT SELECT * FROM former.%1"_s})
                QVERIFY2(!catalogue::Statement(store, difference.arg(table)).next(), qPrintable(table));
        // The figure that no longer ships stays for the cards that hold it.
        QCOMPARE(texts(store, u"SELECT id_fig||' '||numero FROM figure ORDER BY id_fig"_s),
                 u"1 1.5, 2 2.0, 3 3.0, 9 9.0, 50 1.0"_s);
        QCOMPARE(texts(store, u"SELECT id_fig||id_muscolo FROM figure_muscoli ORDER BY id_fig, id_muscolo"_s),
                 u"1POL, 1QUA, 2PET, 3BIC, 9TRA, 50ADD"_s);
        QCOMPARE(texts(store, u"SELECT nome FROM categorie ORDER BY id_cat"_s), u"Base, Nuova"_s);
        // The user's template of the same name is no supplied one; the new one stands behind it.
        QCOMPARE(texts(store, u"SELECT descrizione||preimpostata FROM schedeModello ORDER BY id_Scheda"_s),
                 u"Primo1, Mio0, Secondo0, Secondo1"_s);
        QCOMPARE(store.scalar(u"SELECT count(*) FROM EserciziModello WHERE ID_Scheda = 4"_s), 2);
        // Every card still opens.
        QCOMPARE(store.scalar(u"SELECT count(*) FROM vw_schedacompleta"_s), 2);
        QCOMPARE(store.scalar(u"SELECT count(*) FROM Esercizi e JOIN figure f ON f.id_fig = e.ID_Fig"_s), 3);
        const QByteArray renewed = readFile(store_);
        QVERIFY(!catalogue::renewStore(fresh_, store_)); // up to date: left as it is
        QCOMPARE(readFile(store_), renewed);
    }

    void aRefusalLeavesTheStoreUntouched() {
        for (const auto& fault : {u"locked by a writer"_s, u"other schema"_s, u"no store"_s}) {
            if (fault == u"other schema")
                Database(store_, Database::Mode::Existing).execute(u"PRAGMA user_version = 7"_s);
            if (fault == u"no store")
                writeFile(store_, "no database at all, but long enough to be read as one");
            const QByteArray before = readFile(store_);
            std::optional<Database> writer;
            if (fault == u"locked by a writer")
                writer.emplace(store_, Database::Mode::Existing).execute(u"BEGIN IMMEDIATE"_s);
            QVERIFY_THROWS_EXCEPTION(catalogue::Error, catalogue::renewStore(fresh_, store_));
            writer.reset();
            QCOMPARE(readFile(store_), before);
            QCOMPARE(QDir(folder_.path()).entryList({u"splash.ps?*"_s}), QStringList());
        }
    }

private:
    /// A store of the real schema, muscles and machines, `figures` and one template for each title.
    static void build(const QString& path, const QByteArray& categories, const QByteArray& figures,
                      const QStringList& titles) {
        const QTemporaryDir folder;
        for (const QString& title : titles)
            stores::makeSources(folder.path(), title, u"Base"_s,
                                u"Q001;30s;30Hz;L;0:30;2;Combinata;;\n;;;;;;;;Acqua"_s);
        writeFile(folder.filePath(u"categorie.csv"_s), "id_cat;nome\n" + categories);
        writeFile(folder.filePath(u"figure.csv"_s), "codice;id_fig;ID_MAC;numero;nome;muscoli\n" + figures);
        catalogue::buildStore({folder.path()}, path);
    }

    const QTemporaryDir folder_;
    const QString store_ = folder_.filePath(u"splash.ps"_s);
    const QString fresh_ = folder_.filePath(u"fresh.ps"_s);
};

QUIVERDECK_TEST(TestRenewal)
#include "test_renewal.moc"
