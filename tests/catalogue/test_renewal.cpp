// A store in use takes over a newer catalogue and keeps every row of its user.
#include "StoreBuilder.h"
#include "StoreRenewal.h"
#include "Stores.h"

using namespace Qt::StringLiterals;

using catalogue::Database;
using stores::texts;
using stores::write;

namespace {
QByteArray contents(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Every value of a table's rows, with its type.
QString dump(Database& store, const QString& table, const QString& where) {
    const QString columns = texts(
        store,
        u"SELECT group_concat('quote('||name||')', '||''|''||') FROM pragma_table_info('%1')"_s.arg(table));
    return texts(store, u"SELECT %1 FROM %2 WHERE %3 ORDER BY 1"_s.arg(columns, table, where));
}

/// What is the user's: every row of the tables of the program's own, and the templates up to a key.
QString usersRows(const QString& path) {
    Database store(path, Database::Mode::ReadOnly);
    QString all;
    for (const char* table : {"utenti", "schede", "Esercizi", "palestra", "Parametri"})
        all += dump(store, QString::fromLatin1(table), u"1"_s) + u'\n';
    return all + dump(store, u"schedeModello"_s, u"id_Scheda <= 3"_s) +
           dump(store, u"EserciziModello"_s, u"ID_Scheda <= 3"_s);
}
} // namespace

class TestRenewal : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        folder_ = std::make_unique<QTemporaryDir>();
        old_ = source(u"old"_s,
                      u"Q001;1;QUIVR;1;Uno;QUA,GLU\nQ002;2;QUIVR;2;Due;PET\n"
                      "Q009;9;QUIVR;9;Nove;TRA\n"_s,
                      {u"Primo"_s});
        fresh_ = source(u"fresh"_s,
                        u"Q001;1;QUIVR;1.5;Uno;QUA,POL\nQ002;2;QUIVR;2;Due;PET\n"
                        "Q003;3;QUIVR;3;Tre;BIC\nG001;50;GLIDR;1;Altra;ADD\n"_s,
                        {u"Primo"_s, u"Secondo"_s});
        write(fresh_ + u"/categorie.csv"_s, u"id_cat;nome\n1;Base\n2;Nuova\n"_s);
        store_ = folder_->filePath(u"splash.ps"_s);
        freshStore_ = folder_->filePath(u"fresh.ps"_s);
        catalogue::buildStore({old_}, store_);
        catalogue::buildStore({fresh_}, freshStore_);
        addUserRows();
    }

    void theCatalogueIsRenewedAndTheUserKeepsEveryRow() {
        const QString before = usersRows(store_);
        QVERIFY(catalogue::renewStore(freshStore_, store_));
        QCOMPARE(usersRows(store_), before);
        Database store(store_, Database::Mode::ReadOnly);
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
    }

    void aStoreUpToDateIsLeftAsItIs() {
        QVERIFY(catalogue::renewStore(freshStore_, store_));
        const QByteArray before = contents(store_);
        QVERIFY(!catalogue::renewStore(freshStore_, store_));
        QCOMPARE(contents(store_), before);
    }

    void aRefusalLeavesTheStoreUntouched_data() {
        QTest::addColumn<QString>("fault");
        QTest::newRow("other schema") << u"schema"_s;
        QTest::newRow("no store") << u"text"_s;
        QTest::newRow("no catalogue") << u"missing"_s;
        QTest::newRow("a writer at work") << u"locked"_s;
    }
    void aRefusalLeavesTheStoreUntouched() {
        QFETCH(QString, fault);
        if (fault == QLatin1String("schema"))
            Database(store_, Database::Mode::Existing).execute(u"PRAGMA user_version = 7"_s);
        else if (fault == QLatin1String("text"))
            write(store_, u"no database at all, but long enough to be read as one"_s);
        else if (fault == QLatin1String("missing"))
            QFile::remove(freshStore_);
        const QByteArray before = contents(store_);
        {
            std::unique_ptr<Database> writer;
            if (fault == QLatin1String("locked")) {
                writer = std::make_unique<Database>(store_, Database::Mode::Existing);
                writer->execute(u"BEGIN IMMEDIATE"_s);
            }
            QVERIFY_THROWS_EXCEPTION(catalogue::Error, catalogue::renewStore(freshStore_, store_));
        }
        QCOMPARE(contents(store_), before);
        QCOMPARE(QDir(folder_->path()).entryList({u"splash.ps?*"_s}), QStringList());
    }

private:
    /// A folder of sources with the real schema, muscles and machines, `figures` and one template for each
    /// name.
    QString source(const QString& name, const QString& figures, const QStringList& templates) {
        QString folder = folder_->filePath(name);
        QDir().mkpath(folder + u"/modelli"_s);
        for (const char* file :
             {"schema.sql", "muscoli.csv", "macchinari.csv", "palestra.csv", "parametri.csv"})
            QFile::copy(stores::sources().filePath(QLatin1String(file)), folder + u'/' + QLatin1String(file));
        write(folder + u"/categorie.csv"_s, u"id_cat;nome\n1;Base\n"_s);
        write(folder + u"/figure.csv"_s, u"codice;id_fig;ID_MAC;numero;nome;muscoli\n"_s + figures);
        for (const QString& title : templates)
            write(folder + u"/modelli/"_s + title + u".csv"_s,
                  u"categoria: Base\ndescrizione: %1\nnote: n\n\n"
                  "figura;durata;frequenza;ampiezza;recupero;serie;modalita;peso;note\n"
                  "Q001;30s;30Hz;L;0:30;2;Combinata;;\n;;;;;;;;Acqua\n"_s.arg(title));
        return folder;
    }

    void addUserRows() {
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

    std::unique_ptr<QTemporaryDir> folder_;
    QString old_, fresh_, store_, freshStore_;
};

QUIVERDECK_TEST(TestRenewal)
#include "test_renewal.moc"
