// The store as the build makes it: what the program asks of its schema, and what ships in it.
#include "CsvFile.h"
#include "Database.h"
#include "StoreBuilder.h"
#include "TemplateFile.h"

#include "figures/AreeCorpo.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

using catalogue::Database;
using catalogue::Statement;

namespace {
const QString shipped = QStringLiteral(QUIVERDECK_STORE);

void write(const QString& path, const QString& text) {
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(text.toUtf8());
}

QStringList texts(Database& store, const QString& sql) {
    QStringList result;
    Statement statement(store, sql);
    while (statement.next())
        result += statement.text(0);
    return result;
}
} // namespace

class TestStore : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        folder_ = std::make_unique<QTemporaryDir>();
        path_ = folder_->filePath(QStringLiteral("splash.ps"));
        QVERIFY(QFile::copy(shipped, path_));
        store_ = std::make_unique<Database>(path_, Database::Mode::Existing);
        store_->execute(QStringLiteral("PRAGMA synchronous = OFF"));
    }

    void aKeyIsNeverHandedOutTwice_data() {
        QTest::addColumn<QString>("table");
        QTest::addColumn<QString>("key");
        for (const auto& [table, key] :
             {std::pair{"utenti", "id_utente"}, std::pair{"schede", "id_scheda"}, std::pair{"Esercizi", "ct"},
              std::pair{"schedeModello", "id_Scheda"}, std::pair{"EserciziModello", "ct"}})
            QTest::newRow(table) << QString::fromLatin1(table) << QString::fromLatin1(key);
    }
    void aKeyIsNeverHandedOutTwice() {
        QFETCH(QString, table);
        QFETCH(QString, key);
        const auto insert = [&] {
            store_->execute(QStringLiteral("INSERT INTO %1 DEFAULT VALUES").arg(table));
            return store_->scalar(QStringLiteral("SELECT MAX(%1) FROM %2").arg(key, table));
        };
        const int first = insert();
        store_->execute(QStringLiteral("DELETE FROM %1 WHERE %2 = %3").arg(table, key).arg(first));
        QVERIFY(insert() > first);
    }

    void aDeletedCardTakesItsExercisesAlone_data() {
        QTest::addColumn<QString>("cards");
        QTest::addColumn<QString>("exercises");
        QTest::newRow("cards") << QStringLiteral("schede") << QStringLiteral("Esercizi");
        QTest::newRow("templates") << QStringLiteral("SCHEDEMODELLO") << QStringLiteral("esercizimodello");
    }
    void aDeletedCardTakesItsExercisesAlone() {
        QFETCH(QString, cards);
        QFETCH(QString, exercises);
        store_->execute(QStringLiteral("INSERT INTO %1 (id_scheda) VALUES (901), (902);"
                                       "INSERT INTO %2 (id_scheda) VALUES (901), (901), (902);")
                            .arg(cards, exercises));
        store_->execute(QStringLiteral("DELETE FROM %1 WHERE id_scheda = 901").arg(cards));
        const QString count = QStringLiteral("SELECT count(*) FROM %1 WHERE id_scheda = %2").arg(exercises);
        QCOMPARE(store_->scalar(count.arg(901)), 0);
        QCOMPARE(store_->scalar(count.arg(902)), 1);
    }

    void theColumnsKeepWhatTheProgramWrites() {
        store_->execute(
            QStringLiteral("INSERT INTO utenti (nome, cognome) VALUES ('Ada', 'Rossi');"
                           "INSERT INTO schede (id_utente, id_cat, GGAllen, Obiettivo, note, FreqAllen) "
                           "VALUES ('1', 1, '001010100', '08', 'n', 3);"
                           "INSERT INTO Esercizi (serie, recuperomin, islibero) VALUES ('12', 300, TRUE);"));
        QCOMPARE(texts(*store_, QStringLiteral("SELECT GGAllen || Obiettivo FROM schede")),
                 QStringList(QStringLiteral("00101010008")));
        QCOMPARE(texts(*store_,
                       QStringLiteral("SELECT typeof(serie)||serie||recuperomin||islibero FROM Esercizi")),
                 QStringList(QStringLiteral("integer123001")));
        // The key was written between quotes and still joins; clashing names carry their table's.
        QCOMPARE(texts(*store_,
                       QStringLiteral("SELECT \"utenti.nome\"||cognome||\"categorie.nome\"||\"schede.note\" "
                                      "FROM vw_schedacompleta WHERE id_scheda=1")),
                 QStringList(QStringLiteral("AdaRossiAvviamenton")));
    }

    void aCardWithoutCategoryOrAthleteHasNoRow() {
        store_->execute(
            QStringLiteral("INSERT INTO utenti (nome) VALUES ('Ada');"
                           "INSERT INTO schede (id_utente, id_cat) VALUES (1, 0), (7, 1), (1, 2);"));
        QCOMPARE(store_->scalar(QStringLiteral("SELECT count(*) FROM vw_schedacompleta")), 1);
    }

    void theCatalogueIsComplete() {
        QCOMPARE(store_->scalar(QStringLiteral("PRAGMA user_version")), 1);
        QVERIFY(store_->scalar(QStringLiteral("SELECT count(*) FROM categorie")) >= 8);
        QStringList codes;
        for (const char* code : codiciMuscoli())
            codes += QString::fromLatin1(code);
        QCOMPARE(texts(*store_, QStringLiteral("SELECT id_muscolo FROM muscoli ORDER BY 1")), codes);
        // The tree of groups joins neighbours of one name.
        QCOMPARE(store_->scalar(
                     QStringLiteral("SELECT count(DISTINCT nome) FROM muscoli WHERE nomeMuscolo <> ''")),
                 int(codes.size()));
        QCOMPARE(texts(*store_, QStringLiteral("SELECT ID_MAC||Caricata FROM Macchinari ORDER BY 1")),
                 QStringList({QStringLiteral("GLIDR1"), QStringLiteral("QUIVR1")}));
        QCOMPARE(texts(*store_, QStringLiteral("SELECT '['||nome||responsabile||logo||']' FROM palestra")),
                 QStringList(QStringLiteral("[]")));
        QCOMPARE(texts(*store_, QStringLiteral("SELECT parametro||valore FROM Parametri")),
                 QStringList(QStringLiteral("PATH_MANUALE\\HELP\\manuale")));
        for (const char* table : {"utenti", "schede", "Esercizi"})
            QCOMPARE(store_->scalar(QStringLiteral("SELECT count(*) FROM %1").arg(QLatin1String(table))), 0);
    }

    void figuresAreEnoughAndInOrder() {
        const auto count = [this](const char* condition) {
            return store_->scalar(
                QStringLiteral("SELECT count(*) FROM figure WHERE %1").arg(QLatin1String(condition)));
        };
        QVERIFY(count("ID_MAC = 'QUIVR'") >= 120);
        QVERIFY(count("ID_MAC = 'GLIDR'") >= 4);
        QCOMPARE(count("figura NOT LIKE 'images\\figure\\____.JPG'"), 0);
        QVERIFY2(count("numero <> round(numero)") > 0, "a few numbers carry a fraction");
        QCOMPARE(
            texts(*store_, QStringLiteral("SELECT id_muscolo FROM vw_figure_muscoli WHERE ID_MAC = 'QUIVR' "
                                          "GROUP BY 1 HAVING count(*) < 6")),
            QStringList());
        QCOMPARE(texts(*store_, QStringLiteral("SELECT figura FROM figure GROUP BY 1 HAVING count(*) > 1")),
                 QStringList());
    }

    void suppliedTemplatesAreCredible() {
        const QString each = QStringLiteral("FROM schedeModello m JOIN EserciziModello e USING (ID_Scheda) ");
        QVERIFY(store_->scalar(QStringLiteral("SELECT count(*) FROM schedeModello")) >= 16);
        QCOMPARE(store_->scalar(QStringLiteral("SELECT count(*) FROM schedeModello WHERE NOT preimpostata")),
                 0);
        QCOMPARE(texts(*store_, QStringLiteral("SELECT nome FROM categorie WHERE id_cat NOT IN "
                                               "(SELECT id_cat FROM vw_schedaModellocompleta)")),
                 QStringList());
        QCOMPARE(texts(*store_,
                       QStringLiteral("SELECT descrizione %1 GROUP BY 1 HAVING count(*) NOT BETWEEN 6 AND 14 "
                                      "OR max(NProg) <> count(*)")
                           .arg(each)),
                 QStringList());
        QVERIFY(
            texts(*store_, QStringLiteral("SELECT descrizione %1 GROUP BY 1 HAVING count(*) > 10").arg(each))
                .size() >= 2);
        QVERIFY(store_->scalar(QStringLiteral("SELECT count(*) %1 WHERE isLibero AND ID_Fig = 0").arg(each)) >
                0);
        // A session begins and ends gently: low amplitude, one series.
        QCOMPARE(
            texts(*store_,
                  QStringLiteral("SELECT descrizione %1 WHERE NProg = 1 AND (Ampiezza <> 'L' OR Serie <> 1)")
                      .arg(each)),
            QStringList());
        QCOMPARE(texts(*store_,
                       QStringLiteral(
                           "SELECT descrizione||NProg %1 WHERE NOT isLibero AND (Serie NOT BETWEEN 1 AND 99 "
                           "OR RecuperoSec > 59 OR e.Note = '' OR NOT EXISTS (SELECT 1 FROM figure f "
                           "WHERE f.id_fig = e.ID_Fig AND ID_MAC = 'QUIVR'))")
                           .arg(each)),
                 QStringList());
    }

    void templatesHoldValuesOfTheEditorsLists_data() {
        QTest::addColumn<QString>("column");
        QTest::addColumn<QStringList>("values");
        QTest::newRow("durata") << QStringLiteral("Durata") << QStringList{"30s", "45s", "60s"};
        QTest::newRow("frequenza") << QStringLiteral("Frequenza")
                                   << QStringList{"30Hz", "35Hz", "40Hz", "50Hz"};
        QTest::newRow("ampiezza") << QStringLiteral("Ampiezza") << QStringList{"L", "H"};
        QTest::newRow("modalita") << QStringLiteral("Modalita")
                                  << QStringList{"Statico a carico naturale", "Statico a carico aggiuntivo",
                                                 "Dinamico a carico naturale", "Dinamico a carico aggiuntivo",
                                                 "Combinata"};
    }
    void templatesHoldValuesOfTheEditorsLists() {
        QFETCH(QString, column);
        QFETCH(QStringList, values);
        for (const QString& used :
             texts(*store_, QStringLiteral("SELECT DISTINCT %1 FROM EserciziModello").arg(column)))
            QVERIFY2(values.contains(used), qPrintable(used));
    }

    void noShippedTextBreaksAStatement() {
        for (const QString& table :
             texts(*store_, QStringLiteral("SELECT name FROM sqlite_master WHERE type = 'table'"))) {
            for (const QString& column :
                 texts(*store_, QStringLiteral("SELECT name FROM pragma_table_info('%1')").arg(table)))
                QCOMPARE(
                    texts(*store_,
                          QStringLiteral("SELECT %1 FROM %2 WHERE instr(%1, char(39))").arg(column, table)),
                    QStringList());
        }
    }

    void aWrongTemplateIsRefusedByLine_data() {
        QTest::addColumn<QString>("line");
        const auto row = [](const char* name, const QString& line) { QTest::newRow(name) << line; };
        row("figure", QStringLiteral("Q999;30s;30Hz;L;0:30;2;Combinata;;n"));
        row("other machine", QStringLiteral("G001;30s;30Hz;L;0:30;2;Combinata;;n"));
        row("duration", QStringLiteral("Q001;31s;30Hz;L;0:30;2;Combinata;;n"));
        row("frequency", QStringLiteral("Q001;30s;45Hz;L;0:30;2;Combinata;;n"));
        row("amplitude", QStringLiteral("Q001;30s;30Hz;M;0:30;2;Combinata;;n"));
        row("mode", QStringLiteral("Q001;30s;30Hz;L;0:30;2;combinata;;n"));
        row("seconds", QStringLiteral("Q001;30s;30Hz;L;0:60;2;Combinata;;n"));
        row("recovery", QStringLiteral("Q001;30s;30Hz;L;30;2;Combinata;;n"));
        row("series", QStringLiteral("Q001;30s;30Hz;L;0:30;100;Combinata;;n"));
        row("apostrophe", QStringLiteral("Q001;30s;30Hz;L;0:30;2;Combinata;;dell'anca"));
        row("empty free line", QStringLiteral(";;;;;;;;"));
        row("fields", QStringLiteral("Q001;30s;30Hz;L;0:30;2;Combinata"));
    }
    void aWrongTemplateIsRefusedByLine() {
        QFETCH(QString, line);
        const QDir data(qEnvironmentVariable("QUIVERDECK_SOURCE") + QStringLiteral("/data"));
        const QString sources = folder_->filePath(QStringLiteral("data"));
        QDir().mkpath(sources + QStringLiteral("/modelli"));
        for (const QString& file : data.entryList({QStringLiteral("*.csv"), QStringLiteral("*.sql")}))
            QFile::copy(data.filePath(file), sources + QLatin1Char('/') + file);
        write(sources + QStringLiteral("/modelli/prova.csv"),
              QStringLiteral("categoria: Tonificazione\ndescrizione: Prova\nnote: n\n\n"
                             "figura;durata;frequenza;ampiezza;recupero;serie;modalita;peso;note\n%1\n")
                  .arg(line));
        const QString target = folder_->filePath(QStringLiteral("prova.ps"));
        try {
            catalogue::buildStore({sources}, target);
            QFAIL("the template was taken");
        } catch (const catalogue::Error& error) {
            QVERIFY2(QString::fromUtf8(error.what()).contains(QStringLiteral("prova.csv:6")), error.what());
        }
        QCOMPARE(QDir(folder_->path()).entryList({QStringLiteral("prova.ps*")}), QStringList());
    }

private:
    std::unique_ptr<QTemporaryDir> folder_;
    QString path_;
    std::unique_ptr<Database> store_;
};

QTEST_GUILESS_MAIN(TestStore)
#include "test_store.moc"
