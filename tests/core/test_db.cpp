#include "core/Logger.h"
#include "core/ModuloBase.h"
#include "core/db.h"
#include "platform/runtime/Dates.h"
#include "support/Files.h"
#include "support/RecordsTest.h"

using namespace Qt::StringLiterals;
using runtime::Variant;

class TestDb : public RecordsTest {
    Q_OBJECT

    const db& d = db::comune();

private Q_SLOTS:
    void lookups() {
        const QString categorie = u"categorie"_s;
        const Variant notFound(u"ERR:Dati non trovati"_s);
        QCOMPARE(d.DFirst(u"nome"_s, categorie, u"id_cat=3"_s), Variant(u"Recupero"_s));
        QCOMPARE(d.DFirst(u"nome"_s, categorie, u"id_cat=9"_s), notFound);
        QCOMPARE(d.dMax(u"id_cat"_s, categorie, {}), Variant(3));
        QVERIFY(d.dMax(u"id_utente"_s, u"utenti"_s, {}).isNull());
        QVERIFY(log().isEmpty());
        QCOMPARE(d.Dlookup(u"nome"_s, categorie, {}), Variant(u"Forza"_s));
        QCOMPARE(d.Dlookup(u"id_cat"_s, categorie, u"nome = 'generale'"_s), notFound);
        QCOMPARE(log(), QStringList({u"DLOOKUP - SELECT nome FROM categorie "_s,
                                     u"DLOOKUP - SELECT id_cat FROM categorie WHERE nome = 'generale'"_s,
                                     u"DLOOKUP - Errore dati non trovati"_s}));
    }

    void failuresOfLookups() {
        const Variant problem(u"ERR:Problemi nella connessione"_s);
        for (int i = 0; i < 4; ++i)
            boxes().expectBeginning(Icon::None, u"Istruzione non riconosciuta dall’archivio (no such"_s);
        QCOMPARE(d.Dlookup(u"a"_s, u"niente"_s, {}), problem);
        QCOMPARE(d.DFirst(u"a"_s, u"niente"_s, {}), problem);
        QCOMPARE(d.dMax(u"a"_s, u"niente"_s, {}), problem);
        QCOMPARE(d.DCount(u"a"_s, u"niente"_s, {}), qint16{0});
        QCOMPARE(log(), QStringList(u"DLOOKUP - ERR:Problemi nella connessione"_s));
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
        QCOMPARE(rows(u"SELECT nome FROM categorie"), u"Generale, Recupero"_s);
        // The caller's own words, before the statement runs.
        QCOMPARE(log(), QStringList({u"Execute - DELETE * FROM categorie WHERE id_cat=1"_s,
                                     u"Execute - UPDATE schede SET Istruttore = 'D'Amico'"_s}));
        QFile::remove(program().store());
        boxes().expectBeginning(Icon::None, u"14-Impossibile aprire l’archivio"_s);
        QVERIFY(!d.Execute(u"DELETE * FROM categorie"_s));
        QVERIFY(!QFile::exists(program().store())); // never created
    }

    void dsaveAlwaysFails() {
        boxes().expectBeginning(Icon::None, u"91-"_s);
        Variant value(2.5);
        QVERIFY(!d.DSave(u"nome"_s, value, u"utenti"_s, u"id_utente=1"_s));
        QCOMPARE(value, Variant(u" 2.5"_s));
    }

    void parameters() {
        QCOMPARE(d.Load_Param(u"IGNOTO"_s), u"ERR:Dati non trovati"_s);
        const auto save = [this](QString value) {
            d.Save_Param(u"CAMBIO"_s, value);
            return value + u' ' + rows(u"SELECT valore FROM Parametri WHERE parametro='CAMBIO'");
        };
        QCOMPARE(save(u"1"_s), u"'1' 1"_s);
        QCOMPARE(save(u"nUlL"_s), u"nUlL NULL"_s);
        QCOMPARE(d.Load_Param(u"CAMBIO"_s), QString());
        boxes().expectBeginning(Icon::None, u"1-"_s); // values are not escaped
        save(u"l'ora"_s);
    }

    void conversions() {
        QCOMPARE(db::dataPerSQL(u"31-12.2005 10:30:00"_s), u"#12/31/2005 10:30:00#"_s);
        QCOMPARE(db::dataPerSQL({}), u"null"_s);
        QCOMPARE(db::dataPerSQL(u"1/2/05"_s), u"##"_s);
        QCOMPARE(db::correctApici(QString(32767, u'\'')), QString(32767, u'`'));
        QCOMPARE(errorOf([] { return db::correctApici(QString(32768, u'x')); }), 6);
        QCOMPARE(ModuloBase::nullToStringa({}) + ModuloBase::nullToStringa(true), u"True"_s);
        QCOMPARE(ModuloBase::nullToData({}).date(), QDate(1980, 1, 1));
        QCOMPARE(ModuloBase::nullToByte({}) + ModuloBase::nullToByte(255), 255);
        QCOMPARE(errorOf([] { return ModuloBase::nullToByte(256); }), 6);
    }

    void logLines() {
        runtime::setClock([] { return QDateTime(QDate(2005, 2, 1), QTime(9, 5, 7)); });
        Logger::comune().log(u" **** Application START - è così 🏋"_s);
        runtime::setClock({});
        QCOMPARE(QString::fromUtf8(readFile(program().folder() + u"/log.txt"_s)),
                 u"[01/02/2005 09:05:07]  **** Application START - è così 🏋\r\n"_s);
    }
};

QUIVERDECK_TEST(TestDb)
#include "test_db.moc"
