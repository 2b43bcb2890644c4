#include "core/Logger.h"
#include "core/ModuloBase.h"
#include "core/db.h"
#include "core/f_library.h"
#include "platform/host/Application.h"
#include "platform/host/Settings.h"
#include "platform/runtime/Dates.h"
#include "support/RecordsTest.h"

#include <QDir>
#include <QFile>

using namespace Qt::StringLiterals;
using runtime::Variant;

namespace {

class Lines : public host::ReportLines {
public:
    int count() const override { return static_cast<int>(lines.size()); }
    QString cell(int line, int column) const override { return lines.at(line).at(column); }
    void select(int line) override { selected = line; }

    QList<QStringList> lines;
    int selected = -1;
};

} // namespace

class TestDb : public RecordsTest {
    Q_OBJECT
private Q_SLOTS:
    void cleanup() {
        RecordsTest::cleanup();
        runtime::setClock({});
    }

    void lookups() {
        const Variant notFound(u"ERR:Dati non trovati"_s);
        QCOMPARE(d.Dlookup(u"id_cat"_s, u"categorie"_s, u"nome = 'Generale'"_s), Variant(2));
        QCOMPARE(d.Dlookup(u"nome"_s, u"CATEGORIE"_s, {}), Variant(u"Forza"_s));
        QCOMPARE(d.Dlookup(u"id_cat"_s, u"categorie"_s, u"nome = 'generale'"_s), notFound);
        QCOMPARE(log(), QStringList({u"DLOOKUP - SELECT id_cat FROM categorie WHERE nome = 'Generale'"_s,
                                     u"DLOOKUP - SELECT nome FROM CATEGORIE "_s,
                                     u"DLOOKUP - SELECT id_cat FROM categorie WHERE nome = 'generale'"_s,
                                     u"DLOOKUP - Errore dati non trovati"_s}));
        program().clearLog();
        QCOMPARE(d.DFirst(u"nome"_s, u"categorie"_s, u"id_cat=3"_s), Variant(u"Recupero"_s));
        QCOMPARE(d.DFirst(u"nome"_s, u"categorie"_s, u"id_cat=9"_s), notFound);
        QCOMPARE(d.dMax(u"id_cat"_s, u"categorie"_s, {}), Variant(3));
        QVERIFY(d.dMax(u"id_utente"_s, u"utenti"_s, {}).isNull());
        QCOMPARE(d.DCount(u"nome"_s, u"categorie"_s, {}), qint16{3});
        QCOMPARE(d.DCount(u"nome"_s, u"categorie"_s, u"id_cat>1"_s), qint16{2});
        QVERIFY(log().isEmpty());
        sql(u"INSERT INTO Parametri VALUES ('VUOTO',NULL)");
        QVERIFY(d.Dlookup(u"valore"_s, u"Parametri"_s, u"parametro='VUOTO'"_s).isNull());
    }

    void failuresOfLookups() {
        const Variant problem(u"ERR:Problemi nella connessione"_s);
        for (int i = 0; i < 4; ++i)
            boxes().expectBeginning(Icon::None,
                                    u"Istruzione non riconosciuta dall’archivio (no such table"_s);
        QCOMPARE(d.Dlookup(u"a"_s, u"niente"_s, {}), problem);
        QCOMPARE(d.DFirst(u"a"_s, u"niente"_s, {}), problem);
        QCOMPARE(d.dMax(u"a"_s, u"niente"_s, {}), problem);
        QCOMPARE(d.DCount(u"a"_s, u"niente"_s, {}), qint16{0});
        QCOMPARE(log(), QStringList(u"DLOOKUP - ERR:Problemi nella connessione"_s));
        QCOMPARE(errorOf([&] { return d.getRs(u"SELECT * FROM niente"_s); }), 1);
    }

    void countBeyond16Bits() {
        sql(u"WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i+1 FROM n WHERE i<32768) "
            "INSERT INTO utenti (nome,cognome) SELECT i,i FROM n");
        boxes().expect(Icon::None, runtime::standardDescription(runtime::Overflow));
        QCOMPARE(d.DCount(u"id_utente"_s, u"utenti"_s, {}), qint16{0});
        QCOMPARE(d.DCount(u"id_utente"_s, u"utenti"_s, u"id_utente>1"_s), qint16{32767});
    }

    void execute() {
        QVERIFY(d.Execute(u"DELETE * FROM categorie WHERE id_cat=1"_s));
        boxes().expectBeginning(Icon::None, u"1-Istruzione non riconosciuta"_s);
        QVERIFY(!d.Execute(u"UPDATE schede SET Istruttore = 'D'Amico'"_s));
        boxes().expectBeginning(Icon::None,
                                u"1555-Il valore non è ammesso"_s); // SQLITE_CONSTRAINT_PRIMARYKEY
        QVERIFY(!d.Execute(u"INSERT INTO categorie VALUES (2,'x')"_s));
        QCOMPARE(rows(u"SELECT nome FROM categorie"), u"Generale, Recupero"_s);
        // The caller's own words, before the statement runs.
        QCOMPARE(log(), QStringList({u"Execute - DELETE * FROM categorie WHERE id_cat=1"_s,
                                     u"Execute - UPDATE schede SET Istruttore = 'D'Amico'"_s,
                                     u"Execute - INSERT INTO categorie VALUES (2,'x')"_s}));
    }

    void missingStore() {
        QFile::remove(program().store());
        QCOMPARE(errorOf([&] { return d.getConn(); }), 14);
        boxes().expectBeginning(Icon::None, u"14-Impossibile aprire l’archivio"_s);
        QVERIFY(!d.Execute(u"DELETE * FROM categorie"_s));
        boxes().expectBeginning(Icon::None, u"Impossibile aprire l’archivio"_s);
        QCOMPARE(d.Load_Param(u"X"_s), u"ERR:Problemi nella connessione"_s);
        QVERIFY(!QFile::exists(program().store())); // never created
        QCOMPARE(log(), QStringList(u"DLOOKUP - ERR:Problemi nella connessione"_s));
    }

    void dsaveAlwaysFails() {
        for (const auto& [value, prepared] :
             {std::pair(Variant(u"Vero"_s), u"TRUE"_s), std::pair(Variant(2.5), u" 2.5"_s)}) {
            boxes().expectBeginning(Icon::None, u"91-"_s);
            Variant given = value;
            QVERIFY(!d.DSave(u"nome"_s, given, u"utenti"_s, u"id_utente=1"_s));
            QCOMPARE(given, Variant(prepared));
        }
    }

    void parameters() {
        QCOMPARE(d.Load_Param(u"IGNOTO"_s), u"ERR:Dati non trovati"_s);
        const auto save = [this](const QString& name, QString value) {
            return d.Save_Param(name, value).isNull() ? value : QString();
        };
        QCOMPARE(save(u"CAMBIO"_s, u"1"_s), u"'1'"_s);
        QCOMPARE(d.Load_Param(u"CAMBIO"_s), u"1"_s);
        QCOMPARE(save(u"CAMBIO"_s, u"nUlL"_s), u"nUlL"_s);
        QCOMPARE(d.Load_Param(u"CAMBIO"_s), QString());
        save(u"NUOVO"_s, u"null"_s);
        QCOMPARE(rows(u"SELECT * FROM Parametri WHERE parametro<>'PATH_MANUALE'"),
                 u"CAMBIO|NULL, NUOVO|NULL"_s);
        boxes().expectBeginning(Icon::None, u"1-"_s); // values are not escaped
        save(u"NUOVO"_s, u"l'ora"_s);
    }

    void quoting_data() {
        QTest::addColumn<QString>("date");
        QTest::addColumn<QString>("sql");
        QTest::newRow("any separators") << u"31-12.2005"_s << u"#12/31/2005#"_s;
        QTest::newRow("the time goes along") << u"31/12/2005 10:30:00"_s << u"#12/31/2005 10:30:00#"_s;
        QTest::newRow("empty") << QString() << u"null"_s;
        QTest::newRow("too short") << u"1/2/05"_s << u"##"_s;
    }
    void quoting() {
        QFETCH(QString, date);
        QTEST(db::dataPerSQL(date), "sql");
    }

    void apostrophesAndNulls() {
        QCOMPARE(db::correctApici(QString(32767, u'\'')), QString(32767, u'`'));
        QCOMPARE(errorOf([] { return db::correctApici(QString(32768, u'x')); }), 6);
        QCOMPARE(ModuloBase::nullToStringa({}) + ModuloBase::nullToStringa(true), u"True"_s);
        QCOMPARE(ModuloBase::nullToData({}).date(), QDate(1980, 1, 1));
        QCOMPARE(errorOf([] { return ModuloBase::nullToData(u"domani"_s); }), 13);
        QCOMPARE(ModuloBase::nullToByte({}), quint8{0});
        QCOMPARE(ModuloBase::nullToByte(255), quint8{255});
        for (const int wrong : {256, -1})
            QCOMPARE(errorOf([wrong] { return ModuloBase::nullToByte(wrong); }), 6);
    }

    void logLines() {
        runtime::setClock([] { return QDateTime(QDate(2005, 2, 1), QTime(9, 5, 7)); });
        Logger::comune().log(u" **** Application START - è così 🏋"_s);
        Logger::comune().log(u"DELETE * FROM x #1/1/2005#"_s);
        QFile file(program().folder() + u"/log.txt"_s);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(QString::fromUtf8(file.readAll()),
                 u"[01/02/2005 09:05:07]  **** Application START - è così 🏋\r\n"
                 "[01/02/2005 09:05:07] DELETE * FROM x #1/1/2005#\r\n"_s);
    }

    void logThatCannotBeWritten() {
        QVERIFY(QDir().mkdir(program().folder() + u"/log.txt"_s)); // a folder stands in its place
        boxes().expectBeginning(Icon::None, u"75-Impossibile scrivere"_s);
        QVERIFY(!d.Execute(u"DELETE * FROM categorie"_s));
        QCOMPARE(rows(u"SELECT COUNT(*) FROM categorie"), u"3"_s);
    }

    void pathInTheSettings() {
        ModuloBase::salvaPercorso();
        QCOMPARE(host::readSetting(u"General"_s, u"Path"_s), program().folder());
        QFile file(program().settingsFolder() + u"/Quiver-Deck.ini"_s);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QVERIFY(file.readAll().startsWith("[General]\nPath="));
    }

    void searchInList_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("line");
        QTest::newRow("surname") << u"ro"_s << 1;
        QTest::newRow("middle of a name") << u"ssi"_s << 7;
        QTest::newRow("accents") << u"é"_s << 2;
        QTest::newRow("empty selects the first") << QString() << 0;
        QTest::newRow("the key is not looked at") << u"3"_s << 7;
    }
    void searchInList() {
        QFETCH(QString, text);
        Lines lines;
        lines.lines = {{u"1"_s, u"Bianchi"_s, u"Ada"_s, u"Rosa"_s},
                       {u"2"_s, u"Verdi"_s, u"Roberta"_s, QString()},
                       {u"3"_s, u"Rossi"_s, u"Élia"_s, QString()}};
        lines.selected = 7;
        cercaInLista(lines, text, 2);
        QTEST(lines.selected, "line");
    }

private:
    const db& d = db::comune();
};

QUIVERDECK_TEST(TestDb)
#include "test_db.moc"
