#include "cards/Esercizio.h"
#include "cards/GGAllenHELPER.h"
#include "support/FakeControls.h"
#include "support/RecordsTest.h"

using namespace Qt::StringLiterals;

class TestEsercizio : public RecordsTest {
    Q_OBJECT
private Q_SLOTS:
    void roundTrip_data() {
        QTest::addColumn<bool>("isModello");
        QTest::newRow("card") << false;
        QTest::newRow("template") << true;
    }
    void roundTrip() {
        QFETCH(bool, isModello);
        const QString table = isModello ? u"EserciziModello"_s : u"Esercizi"_s;
        const QString stored = u"SELECT * FROM %1 WHERE ID_Scheda=100000"_s.arg(table);
        const QString whole =
            u"%1|7|100000|3|30 \"|\t|è|254|255|253|DELETE * FROM x|08|1|#1/1/2005# 🏋`"_s;
        sql(u"INSERT INTO %1 VALUES (900,7,100000,3,'30 \"','\t','è',254,255,253,'DELETE * FROM x','08',1,"
            "'#1/1/2005# 🏋`')"_s.arg(table));
        Esercizio line;
        line.isModello = isModello;
        QVERIFY(line.carica(900));
        QCOMPARE(line.id_scheda, 0); // never read
        line.id_scheda = 100000;
        line.note.replace(u'`', u'\'');
        sql(u"UPDATE %1 SET NProg=0,ID_Fig=0,Durata='',Frequenza='',Ampiezza='',RecuperoMin=0,RecuperoSec=0,"
            "Serie=0,Modalita='',Peso='',isLibero=0,Note=''"_s.arg(table));
        QCOMPARE(line.save(), 0);
        QCOMPARE(rows(stored), whole.arg(900));
        line.ct = 0;
        QVERIFY(line.Elimina()); // key 0 touches nothing
        QVERIFY(line.Elimina(900));
        QCOMPARE(line.save(), 901);
        QCOMPARE(rows(stored), whole.arg(901));
        line.svuotaDati(); // keeps its row, its place and its kind
        QCOMPARE(line.save(), 0);
        QCOMPARE(rows(stored), u"901|7|100000|0||||0|0|0|||1|"_s);
        boxes().expect(Icon::Critical, u"ERR:Problemi di connessione"_s);
        QVERIFY(!line.carica(900));
    }

    void badRows() {
        const auto errorAfter = [this](const QString& change) {
            sql(u"DELETE FROM Esercizi");
            Esercizio line;
            line.save();
            sql(u"UPDATE Esercizi SET "_s + change);
            return errorOf([&] { return line.carica(line.ct); });
        };
        for (const QString& field : {u"Durata"_s, u"Frequenza"_s, u"Ampiezza"_s, u"isLibero"_s})
            QCOMPARE(errorAfter(field + u"=NULL"_s), 94);
        for (const QString& field : {u"RecuperoMin"_s, u"RecuperoSec"_s, u"Serie"_s})
            QCOMPARE(errorAfter(field + u"=256"_s), int(runtime::Overflow));
        QCOMPARE(
            errorAfter(u"RecuperoMin=NULL,RecuperoSec=NULL,Serie=NULL,Modalita=NULL,Peso=NULL,Note=NULL"_s),
            0);
    }

    void trainingDays() {
        QCOMPARE(GGAllenHELPER::descrizioneGGAllen(u"001010101"_s), u"LUN - MER - VEN - DOM"_s);
        QCOMPARE(GGAllenHELPER::descrizioneGGAllen(u"111000000"_s), u"GIORNALIERO"_s);
        QCOMPARE(GGAllenHELPER::descrizioneGGAllen(u"011000000"_s), u"NESSUNO"_s);
        FakeCheckList list(9);
        list.ticks[8] = true;
        GGAllenHELPER::scriviGGAllen(u"0100"_s, list); // ticks, and takes no tick away
        QCOMPARE(GGAllenHELPER::leggiGGAllen(list), u"010000001"_s);
    }
};

QUIVERDECK_TEST(TestEsercizio)
#include "test_esercizio.moc"
