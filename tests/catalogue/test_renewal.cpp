// A store in use takes over a newer catalogue and keeps every row of its user.
#include "CsvFile.h"
#include "Database.h"
#include "StoreBuilder.h"
#include "StoreRenewal.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using catalogue::Database;
using catalogue::Statement;

namespace {
const QStringList usersTables{QStringLiteral("utenti"), QStringLiteral("schede"), QStringLiteral("Esercizi"),
                              QStringLiteral("palestra"), QStringLiteral("Parametri")};

void write(const QString& path, const QString& text) {
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(text.toUtf8());
}

QByteArray contents(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Every value of the rows that `sql` gives, with its type, in order.
QStringList rows(Database& store, const QString& sql) {
    QStringList result;
    Statement statement(store, sql);
    while (statement.next())
        result += statement.text(0);
    return result;
}

QString everyColumn(Database& store, const QString& table) {
    QStringList columns;
    Statement info(store, QStringLiteral("SELECT name FROM pragma_table_info('%1')").arg(table));
    while (info.next())
        columns += QStringLiteral("quote(%1)").arg(info.text(0));
    return columns.join(QStringLiteral("||'|'||"));
}

QStringList dump(Database& store, const QString& table, const QString& where = QStringLiteral("1")) {
    return rows(
        store,
        QStringLiteral("SELECT %1 FROM %2 WHERE %3 ORDER BY 1").arg(everyColumn(store, table), table, where));
}
} // namespace

class TestRenewal : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        folder_ = std::make_unique<QTemporaryDir>();
        old_ = source(QStringLiteral("old"),
                      QStringLiteral("Q001;1;QUIVR;1;Uno;QUA,GLU\nQ002;2;QUIVR;2;Due;PET\n"
                                     "Q009;9;QUIVR;9;Nove;TRA\n"),
                      {QStringLiteral("Primo")});
        fresh_ = source(QStringLiteral("fresh"),
                        QStringLiteral("Q001;1;QUIVR;1.5;Uno;QUA,POL\nQ002;2;QUIVR;2;Due;PET\n"
                                       "Q003;3;QUIVR;3;Tre;BIC\nG001;50;GLIDR;1;Altra;ADD\n"),
                        {QStringLiteral("Primo"), QStringLiteral("Secondo")});
        write(fresh_ + QStringLiteral("/categorie.csv"), QStringLiteral("id_cat;nome\n1;Base\n2;Nuova\n"));
        store_ = folder_->filePath(QStringLiteral("splash.ps"));
        freshStore_ = folder_->filePath(QStringLiteral("fresh.ps"));
        catalogue::buildStore({old_}, store_);
        catalogue::buildStore({fresh_}, freshStore_);
        addUserRows();
    }

    void theCatalogueIsRenewedAndTheUserKeepsEveryRow() {
        QStringList before;
        {
            Database store(store_, Database::Mode::ReadOnly);
            for (const QString& table : usersTables)
                before += dump(store, table);
            before += dump(store, QStringLiteral("schedeModello"));
            before += dump(store, QStringLiteral("EserciziModello"));
        }
        QVERIFY(catalogue::renewStore(freshStore_, store_));

        Database store(store_, Database::Mode::ReadOnly);
        QStringList after;
        for (const QString& table : usersTables)
            after += dump(store, table);
        after += dump(store, QStringLiteral("schedeModello"), QStringLiteral("id_Scheda <= 3"));
        after += dump(store, QStringLiteral("EserciziModello"), QStringLiteral("ID_Scheda <= 3"));
        QCOMPARE(after, before);

        // The figure that no longer ships stays for the cards that hold it.
        QCOMPARE(rows(store, QStringLiteral("SELECT id_fig||' '||numero FROM figure ORDER BY id_fig")),
                 QStringList({QStringLiteral("1 1.5"), QStringLiteral("2 2.0"), QStringLiteral("3 3.0"),
                              QStringLiteral("9 9.0"), QStringLiteral("50 1.0")}));
        QCOMPARE(
            rows(store,
                 QStringLiteral("SELECT id_fig||id_muscolo FROM figure_muscoli ORDER BY id_fig, id_muscolo")),
            QStringList({QStringLiteral("1POL"), QStringLiteral("1QUA"), QStringLiteral("2PET"),
                         QStringLiteral("3BIC"), QStringLiteral("9TRA"), QStringLiteral("50ADD")}));
        QCOMPARE(rows(store, QStringLiteral("SELECT nome FROM categorie ORDER BY id_cat")),
                 QStringList({QStringLiteral("Base"), QStringLiteral("Nuova")}));
        // The user's template of the same name is no supplied one; the new one stands behind it with its
        // lines.
        QCOMPARE(rows(store, QStringLiteral(
                                 "SELECT descrizione||preimpostata FROM schedeModello ORDER BY id_Scheda")),
                 QStringList({QStringLiteral("Primo1"), QStringLiteral("Mio0"), QStringLiteral("Secondo0"),
                              QStringLiteral("Secondo1")}));
        QCOMPARE(store.scalar(QStringLiteral("SELECT count(*) FROM EserciziModello WHERE ID_Scheda = 4")), 2);
    }

    void everyCardStillOpens() {
        catalogue::renewStore(freshStore_, store_);
        Database store(store_, Database::Mode::ReadOnly);
        QCOMPARE(store.scalar(QStringLiteral("SELECT count(*) FROM vw_schedacompleta")), 2);
        QCOMPARE(store.scalar(
                     QStringLiteral("SELECT count(*) FROM Esercizi e JOIN figure f ON f.id_fig = e.ID_Fig")),
                 3);
    }

    void aStoreUpToDateIsLeftAsItIs() {
        QVERIFY(catalogue::renewStore(freshStore_, store_));
        const QByteArray before = contents(store_);
        QVERIFY(!catalogue::renewStore(freshStore_, store_));
        QCOMPARE(contents(store_), before);
    }

    void aRefusalLeavesTheStoreUntouched_data() {
        QTest::addColumn<QString>("fault");
        QTest::newRow("other schema") << QStringLiteral("schema");
        QTest::newRow("no store") << QStringLiteral("text");
        QTest::newRow("no catalogue") << QStringLiteral("missing");
        QTest::newRow("a writer at work") << QStringLiteral("locked");
    }
    void aRefusalLeavesTheStoreUntouched() {
        QFETCH(QString, fault);
        if (fault == QLatin1String("schema"))
            Database(store_, Database::Mode::Existing).execute(QStringLiteral("PRAGMA user_version = 7"));
        else if (fault == QLatin1String("text"))
            write(store_, QStringLiteral("no database at all, but long enough to be read as one"));
        else if (fault == QLatin1String("missing"))
            QFile::remove(freshStore_);
        const QByteArray before = contents(store_);
        {
            std::unique_ptr<Database> writer;
            if (fault == QLatin1String("locked")) {
                writer = std::make_unique<Database>(store_, Database::Mode::Existing);
                writer->execute(QStringLiteral("BEGIN IMMEDIATE"));
            }
            QVERIFY_THROWS_EXCEPTION(catalogue::Error, catalogue::renewStore(freshStore_, store_));
        }
        QCOMPARE(contents(store_), before);
        QCOMPARE(QDir(folder_->path()).entryList({QStringLiteral("splash.ps?*")}), QStringList());
    }

private:
    /// A folder of sources with the real schema, muscles and machines, `figures` and one template for each
    /// name.
    QString source(const QString& name, const QString& figures, const QStringList& templates) {
        const QString data = qEnvironmentVariable("QUIVERDECK_SOURCE") + QStringLiteral("/data/");
        QString folder = folder_->filePath(name);
        QDir().mkpath(folder + QStringLiteral("/modelli"));
        for (const char* file :
             {"schema.sql", "muscoli.csv", "macchinari.csv", "palestra.csv", "parametri.csv"})
            QFile::copy(data + QLatin1String(file), folder + QLatin1Char('/') + QLatin1String(file));
        write(folder + QStringLiteral("/categorie.csv"), QStringLiteral("id_cat;nome\n1;Base\n"));
        write(folder + QStringLiteral("/figure.csv"),
              QStringLiteral("codice;id_fig;ID_MAC;numero;nome;muscoli\n") + figures);
        for (const QString& title : templates)
            write(folder + QStringLiteral("/modelli/") + title + QStringLiteral(".csv"),
                  QStringLiteral("categoria: Base\ndescrizione: %1\nnote: n\n\n"
                                 "figura;durata;frequenza;ampiezza;recupero;serie;modalita;peso;note\n"
                                 "Q001;30s;30Hz;L;0:30;2;Combinata;;\n;;;;;;;;Acqua\n")
                      .arg(title));
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

QTEST_GUILESS_MAIN(TestRenewal)
#include "test_renewal.moc"
