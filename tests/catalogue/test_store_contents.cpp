// The store as the build makes it: what the program asks of its schema, and what ships in it.
#include "StoreBuilder.h"
#include "Stores.h"

#include "figures/AreeCorpo.h"

using namespace Qt::StringLiterals;

class TestStoreContents : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        folder_ = std::make_unique<QTemporaryDir>();
        const QString path = folder_->filePath(u"splash.ps"_s);
        QVERIFY(QFile::copy(QStringLiteral(QUIVERDECK_STORE), path));
        store_ = std::make_unique<catalogue::Database>(path, catalogue::Database::Mode::Existing);
    }

    void aKeyIsNeverHandedOutTwice() {
        for (const auto& [table, key] : {std::pair(u"utenti"_s, u"id_utente"_s),
                                         {u"schede"_s, u"id_scheda"_s},
                                         {u"Esercizi"_s, u"ct"_s},
                                         {u"schedeModello"_s, u"id_Scheda"_s},
                                         {u"EserciziModello"_s, u"ct"_s}}) {
            run(u"INSERT INTO %1 (%2) VALUES (5000); DELETE FROM %1 WHERE %2 = 5000;"
                "INSERT INTO %1 DEFAULT VALUES"_s.arg(table, key));
            QCOMPARE(store_->scalar(u"SELECT MAX(%2) FROM %1"_s.arg(table, key)), 5001);
        }
    }

    void aDeletedCardTakesItsExercisesAlone() {
        for (const auto& [cards, exercises] :
             {std::pair(u"schede"_s, u"Esercizi"_s), {u"SCHEDEMODELLO"_s, u"esercizimodello"_s}}) {
            run(u"INSERT INTO %1 (id_scheda) VALUES (901), (902);"
                "INSERT INTO %2 (id_scheda) VALUES (901), (901), (902);"
                "DELETE FROM %1 WHERE id_scheda = 901"_s.arg(cards, exercises));
            QCOMPARE(texts(u"SELECT id_scheda FROM %1 WHERE id_scheda > 900"_s.arg(exercises)), u"902"_s);
        }
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
        QCOMPARE(store_->scalar(u"SELECT count(*) FROM vw_schedacompleta"_s), 2);
    }

    void theCatalogueIsComplete() {
        const QStringList codes(codiciMuscoli().begin(), codiciMuscoli().end());
        QCOMPARE(texts(u"SELECT id_muscolo FROM muscoli ORDER BY 1"_s), codes.join(u", "_s));
        QCOMPARE(texts(u"SELECT ID_MAC||Caricata FROM Macchinari ORDER BY 1"_s), u"GLIDR1, QUIVR1"_s);
        QCOMPARE(texts(u"SELECT '['||nome||responsabile||logo||']' FROM palestra"_s), u"[]"_s);
        QCOMPARE(texts(u"SELECT parametro||valore FROM Parametri"_s), u"PATH_MANUALE\\HELP\\manuale"_s);
        QVERIFY(store_->scalar(u"SELECT count(*) FROM figure"_s) >= 124);
        QVERIFY(store_->scalar(u"SELECT count(*) FROM schedeModello"_s) >= 16);
        // Queries that find none.
        const QString each = u" FROM schedeModello m JOIN EserciziModello e USING (ID_Scheda) "_s;
        QStringList faults{
            u"SELECT 1 FROM utenti UNION SELECT 1 FROM schede UNION SELECT 1 FROM Esercizi"_s,
            u"SELECT figura FROM figure WHERE figura NOT LIKE 'images\\figure\\____.JPG'"_s,
            u"SELECT id_muscolo FROM muscoli m WHERE 6 > (SELECT count(*) FROM vw_figure_muscoli v "
            "WHERE v.id_muscolo = m.id_muscolo AND ID_MAC = 'QUIVR')"_s,
            u"SELECT descrizione FROM schedeModello WHERE NOT preimpostata"_s,
            u"SELECT nome FROM categorie WHERE id_cat NOT IN (SELECT id_cat FROM vw_schedaModellocompleta)"_s,
            u"SELECT nome FROM muscoli GROUP BY 1 HAVING count(*) > 1"_s, // the tree of groups joins them
            u"SELECT descrizione"_s + each +
                u"GROUP BY 1 HAVING count(*) NOT BETWEEN 6 AND 14 OR max(NProg) <> count(*)"_s,
            u"SELECT descrizione"_s + each + u"WHERE NProg = 1 AND (Ampiezza <> 'L' OR Serie <> 1)"_s,
            u"SELECT descrizione||NProg"_s + each + u"WHERE e.Note = ''"_s};
        faults += stores::rows( // no text breaks a statement that it is joined into
            *store_, u"SELECT 'SELECT '||c.name||' FROM '||t.name||' WHERE instr('||c.name||', char(39))' "
                     "FROM sqlite_master t, pragma_table_info(t.name) c WHERE t.type = 'table'"_s);
        for (const QString& fault : faults)
            QCOMPARE(fault + texts(fault), fault);
    }

    void aWrongTemplateIsRefusedByLine() {
        const QString sources = folder_->filePath(u"data"_s);
        const QString target = folder_->filePath(u"prova.ps"_s);
        // Each change makes a sound line wrong.
        for (const auto& change :
             {u"Q001>Q999"_s, u"Q001>G001"_s, u"30s>31s"_s, u"30Hz>45Hz"_s, u"L>M"_s, u"Comb>comb"_s,
              u"0:30>0:60"_s, u"0:30>30"_s, u";2;>;100;"_s, u";n>;dell'anca"_s,
              u"Q001;30s;30Hz;L;0:30;2;Combinata;;n>;;;;;;;;"_s, u";;n>"_s}) {
            QString line = u"Q001;30s;30Hz;L;0:30;2;Combinata;;n"_s;
            line.replace(change.section(u'>', 0, 0), change.section(u'>', 1));
            stores::makeSources(sources, u"prova"_s, u"Tonificazione"_s, line);
            try {
                catalogue::buildStore({sources}, target);
                QFAIL(qPrintable(line));
            } catch (const catalogue::Error& error) {
                QVERIFY2(QByteArray(error.what()).contains("prova.csv:6"), error.what());
            }
            QVERIFY(QDir(folder_->path()).entryList({u"prova.ps*"_s}).isEmpty());
        }
    }

private:
    void run(const QString& sql) const { store_->execute(sql); }
    QString texts(const QString& sql) const { return stores::texts(*store_, sql); }

    std::unique_ptr<QTemporaryDir> folder_;
    std::unique_ptr<catalogue::Database> store_;
};

QUIVERDECK_TEST(TestStoreContents)
#include "test_store_contents.moc"
