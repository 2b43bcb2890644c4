// The store as the build makes it: what the program asks of its schema, and what ships in it.
#include "StoreBuilder.h"
#include "Stores.h"
#include "TemplateFile.h"

#include "figures/AreeCorpo.h"

#include <memory>

using namespace Qt::StringLiterals;

class TestStoreContents : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        folder_ = std::make_unique<QTemporaryDir>();
        const QString path = folder_->filePath(u"splash.ps"_s);
        QVERIFY(QFile::copy(QStringLiteral(QUIVERDECK_STORE), path));
        store_ = std::make_unique<catalogue::Database>(path, catalogue::Database::Mode::Existing);
        run(u"PRAGMA synchronous = OFF"_s);
    }

    void aKeyIsNeverHandedOutTwice_data() {
        QTest::addColumn<QString>("key");
        QTest::newRow("utenti") << u"id_utente"_s;
        QTest::newRow("schede") << u"id_scheda"_s;
        QTest::newRow("Esercizi") << u"ct"_s;
        QTest::newRow("schedeModello") << u"id_Scheda"_s;
        QTest::newRow("EserciziModello") << u"ct"_s;
    }
    void aKeyIsNeverHandedOutTwice() {
        QFETCH(QString, key);
        const QString table = QString::fromLatin1(QTest::currentDataTag());
        const auto insert = [&] {
            run(u"INSERT INTO %1 DEFAULT VALUES"_s.arg(table));
            return number(u"SELECT MAX(%1) FROM %2"_s.arg(key, table));
        };
        const int first = insert();
        run(u"DELETE FROM %1 WHERE %2 = %3"_s.arg(table, key).arg(first));
        QVERIFY(insert() > first);
    }

    void aDeletedCardTakesItsExercisesAlone_data() {
        QTest::addColumn<QString>("exercises");
        QTest::newRow("schede") << u"Esercizi"_s;
        QTest::newRow("SCHEDEMODELLO") << u"esercizimodello"_s;
    }
    void aDeletedCardTakesItsExercisesAlone() {
        QFETCH(QString, exercises);
        const QString cards = QString::fromLatin1(QTest::currentDataTag());
        run(u"INSERT INTO %1 (id_scheda) VALUES (901), (902);"
            "INSERT INTO %2 (id_scheda) VALUES (901), (901), (902);"
            "DELETE FROM %1 WHERE id_scheda = 901"_s.arg(cards, exercises));
        QCOMPARE(texts(u"SELECT id_scheda FROM %1 WHERE id_scheda > 900"_s.arg(exercises)), u"902"_s);
    }

    void theColumnsKeepWhatTheProgramWrites() {
        run(u"INSERT INTO utenti (nome, cognome) VALUES ('Ada', 'Rossi');"
            "INSERT INTO schede (id_utente, id_cat, GGAllen, Obiettivo, note, FreqAllen) "
            "VALUES ('1', 1, '001010100', '08', 'n', 3);"
            "INSERT INTO Esercizi (serie, recuperomin, islibero) VALUES ('12', 300, TRUE);"_s);
        QCOMPARE(texts(u"SELECT GGAllen || Obiettivo FROM schede"_s), u"00101010008"_s);
        QCOMPARE(texts(u"SELECT typeof(serie)||serie||recuperomin||islibero FROM Esercizi"_s),
                 u"integer123001"_s);
        // The key was written between quotes and still joins; clashing names carry their table's.
        QCOMPARE(texts(u"SELECT \"utenti.nome\"||cognome||\"categorie.nome\"||\"schede.note\" "
                       "FROM vw_schedacompleta WHERE id_scheda=1"_s),
                 u"AdaRossiAvviamenton"_s);
        // A card without category or athlete has no row.
        run(u"INSERT INTO schede (id_utente, id_cat) VALUES (1, 0), (7, 1), (1, 2);"_s);
        QCOMPARE(number(u"SELECT count(*) FROM vw_schedacompleta"_s), 2);
    }

    void theCatalogueIsComplete() {
        QCOMPARE(number(u"PRAGMA user_version"_s), 1);
        QStringList codes;
        for (const char* code : codiciMuscoli())
            codes += QString::fromLatin1(code);
        QCOMPARE(texts(u"SELECT id_muscolo FROM muscoli ORDER BY 1"_s), codes.join(u", "_s));
        // The tree of groups joins neighbours of one name.
        QCOMPARE(number(u"SELECT count(DISTINCT nome) FROM muscoli WHERE nomeMuscolo <> ''"_s),
                 int(codes.size()));
        QCOMPARE(texts(u"SELECT ID_MAC||Caricata FROM Macchinari ORDER BY 1"_s), u"GLIDR1, QUIVR1"_s);
        QCOMPARE(texts(u"SELECT '['||nome||responsabile||logo||']' FROM palestra"_s), u"[]"_s);
        QCOMPARE(texts(u"SELECT parametro||valore FROM Parametri"_s), u"PATH_MANUALE\\HELP\\manuale"_s);
        const auto count = [this](const char* rows) {
            return number(u"SELECT count(*) FROM "_s + QLatin1String(rows));
        };
        QVERIFY(count("categorie") >= 8);
        QVERIFY(count("schedeModello") >= 16);
        QVERIFY(count("figure WHERE ID_MAC = 'QUIVR'") >= 120);
        QVERIFY(count("figure WHERE ID_MAC = 'GLIDR'") >= 4);
        QVERIFY2(count("figure WHERE numero <> round(numero)") > 0, "a few numbers carry a fraction");
        QVERIFY(count("EserciziModello WHERE isLibero AND ID_Fig = 0") > 0);
        QVERIFY(count("(SELECT 1 FROM EserciziModello GROUP BY ID_Scheda HAVING count(*) > 10)") >= 2);
    }

    void nothingIsAmiss_data() {
        QTest::addColumn<QString>("faults"); // a query that finds none
        QTest::newRow("user's rows") << u"SELECT 1 FROM utenti UNION SELECT 1 FROM schede "
                                        "UNION SELECT 1 FROM Esercizi"_s;
        QTest::newRow("paths of figures")
            << u"SELECT figura FROM figure WHERE figura NOT LIKE 'images\\figure\\____.JPG'"_s;
        QTest::newRow("figures of one picture")
            << u"SELECT figura FROM figure GROUP BY 1 HAVING count(*) > 1"_s;
        QTest::newRow("muscles with few figures")
            << u"SELECT id_muscolo FROM muscoli m WHERE 6 > (SELECT count(*) FROM vw_figure_muscoli v "
               "WHERE v.id_muscolo = m.id_muscolo AND ID_MAC = 'QUIVR')"_s;
        QTest::newRow("templates not marked")
            << u"SELECT descrizione FROM schedeModello WHERE NOT preimpostata"_s;
        QTest::newRow("categories without a template")
            << u"SELECT nome FROM categorie WHERE id_cat NOT IN (SELECT id_cat FROM vw_schedaModellocompleta)"_s;
        const QString each = u" FROM schedeModello m JOIN EserciziModello e USING (ID_Scheda) "_s;
        QTest::newRow("lengths and numbers") << u"SELECT descrizione"_s + each +
                                                    u"GROUP BY 1 HAVING count(*) NOT BETWEEN 6 AND 14 "
                                                    "OR max(NProg) <> count(*)"_s;
        QTest::newRow("sessions that do not begin gently")
            << u"SELECT descrizione"_s + each + u"WHERE NProg = 1 AND (Ampiezza <> 'L' OR Serie <> 1)"_s;
        QTest::newRow("lines without a note")
            << u"SELECT descrizione||NProg"_s + each + u"WHERE e.Note = ''"_s;
    }
    void nothingIsAmiss() {
        QFETCH(QString, faults);
        QCOMPARE(texts(faults), QString());
    }

    void noShippedTextBreaksAStatement() {
        const QStringList columns = stores::rows(
            *store_, u"SELECT 'SELECT '||c.name||' FROM '||t.name||' WHERE instr('||c.name||', char(39))' "
                     "FROM sqlite_master t, pragma_table_info(t.name) c WHERE t.type = 'table'"_s);
        QVERIFY(columns.size() > 40);
        for (const QString& faults : columns)
            QCOMPARE(texts(faults), QString());
    }

    void aWrongTemplateIsRefusedByLine_data() {
        QTest::addColumn<QString>("line");
        QTest::newRow("figure") << u"Q999;30s;30Hz;L;0:30;2;Combinata;;n"_s;
        QTest::newRow("other machine") << u"G001;30s;30Hz;L;0:30;2;Combinata;;n"_s;
        QTest::newRow("duration") << u"Q001;31s;30Hz;L;0:30;2;Combinata;;n"_s;
        QTest::newRow("frequency") << u"Q001;30s;45Hz;L;0:30;2;Combinata;;n"_s;
        QTest::newRow("amplitude") << u"Q001;30s;30Hz;M;0:30;2;Combinata;;n"_s;
        QTest::newRow("mode") << u"Q001;30s;30Hz;L;0:30;2;combinata;;n"_s;
        QTest::newRow("seconds") << u"Q001;30s;30Hz;L;0:60;2;Combinata;;n"_s;
        QTest::newRow("recovery") << u"Q001;30s;30Hz;L;30;2;Combinata;;n"_s;
        QTest::newRow("series") << u"Q001;30s;30Hz;L;0:30;100;Combinata;;n"_s;
        QTest::newRow("apostrophe") << u"Q001;30s;30Hz;L;0:30;2;Combinata;;dell'anca"_s;
        QTest::newRow("empty free line") << u";;;;;;;;"_s;
        QTest::newRow("fields") << u"Q001;30s;30Hz;L;0:30;2;Combinata"_s;
    }
    void aWrongTemplateIsRefusedByLine() {
        QFETCH(QString, line);
        const QDir data = stores::sources();
        const QString sources = folder_->filePath(u"data"_s);
        QDir().mkpath(sources + u"/modelli"_s);
        for (const QString& file : data.entryList({u"*.csv"_s, u"*.sql"_s}))
            QFile::copy(data.filePath(file), sources + QLatin1Char('/') + file);
        stores::write(sources + u"/modelli/prova.csv"_s,
                      u"categoria: Tonificazione\ndescrizione: Prova\nnote: n\n\n"
                      "figura;durata;frequenza;ampiezza;recupero;serie;modalita;peso;note\n%1\n"_s.arg(line));
        const QString target = folder_->filePath(u"prova.ps"_s);
        try {
            catalogue::buildStore({sources}, target);
            QFAIL("the template was taken");
        } catch (const catalogue::Error& error) {
            QVERIFY2(QString::fromUtf8(error.what()).contains(u"prova.csv:6"_s), error.what());
        }
        QCOMPARE(QDir(folder_->path()).entryList({u"prova.ps*"_s}), QStringList());
    }

private:
    void run(const QString& sql) const { store_->execute(sql); }
    int number(const QString& sql) const { return store_->scalar(sql); }
    QString texts(const QString& sql) const { return stores::texts(*store_, sql); }

    std::unique_ptr<QTemporaryDir> folder_;
    std::unique_ptr<catalogue::Database> store_;
};

QUIVERDECK_TEST(TestStoreContents)
#include "test_store_contents.moc"
