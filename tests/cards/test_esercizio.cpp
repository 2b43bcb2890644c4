#include "cards/Esercizio.h"
#include "cards/GGAllenHELPER.h"
#include "support/FakeControls.h"
#include "support/RecordsTest.h"

using namespace Qt::StringLiterals;

namespace {

/// A line whose values all differ.
Esercizio fullLine(bool isModello = false) {
    Esercizio line;
    line.nprog = 7;
    line.id_scheda = 100000;
    line.id_fig = 3;
    line.durata = u"30 sec"_s;
    line.frequenza = u"35 Hz"_s;
    line.ampiezza = u"High"_s;
    line.recuperoMin = 254;
    line.recuperoSec = 255;
    line.serie = 0;
    line.modalita = u"Dinàmico \"x\""_s;
    line.peso = u"08"_s;
    line.note = u"dell'anca DELETE * FROM x #1/1/2005# 🏋"_s;
    line.isModello = isModello;
    line.isLibero = true;
    return line;
}

QStringList values(const Esercizio& e) {
    const auto number = [](auto value) { return QString::number(value); };
    return {
        number(e.nprog),       number(e.id_fig), e.durata,   e.frequenza, e.ampiezza, number(e.recuperoMin),
        number(e.recuperoSec), number(e.serie),  e.modalita, e.peso,      e.note,     number(e.isLibero)};
}

} // namespace

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
        const QString stored = isModello ? u"SELECT ct, ID_Scheda FROM EserciziModello WHERE NProg=7"_s
                                         : u"SELECT ct, ID_Scheda FROM Esercizi WHERE NProg=7"_s;
        Esercizio line = fullLine(isModello);
        const qint32 key = line.save();
        QCOMPARE(line.ct, key);
        QCOMPARE(rows(stored), u"%1|100000"_s.arg(key));
        Esercizio read;
        read.isModello = isModello;
        read.id_scheda = 5;
        QVERIFY(read.carica(key));
        line.note.replace(u'\'', u'`');
        QCOMPARE(values(read), values(line));
        QCOMPARE(read.id_scheda, 5); // never read

        // An update of every field but the number.
        read.svuotaDati();
        QCOMPARE(values(read),
                 QStringList({u"7"_s, u"0"_s, {}, {}, {}, u"0"_s, u"0"_s, u"0"_s, {}, {}, {}, u"1"_s}));
        read.recuperoMin = 10;
        read.recuperoSec = 11;
        read.serie = 12;
        read.isLibero = false;
        QCOMPARE(read.save(), 0);
        Esercizio again;
        again.isModello = isModello;
        QVERIFY(again.carica(key));
        QCOMPARE(values(again), values(read));

        Esercizio fresh;
        fresh.isModello = isModello;
        QVERIFY(fresh.Elimina()); // key 0 touches nothing
        QVERIFY(fresh.Elimina(key));
        QCOMPARE(rows(stored), QString());
        boxes().expect(Icon::Critical, u"ERR:Problemi di connessione"_s);
        QVERIFY(!again.carica(key));
        QCOMPARE(values(again), values(read));
    }

    void textsThatAreNotEscaped() {
        for (QString Esercizio::*field : {&Esercizio::durata, &Esercizio::frequenza, &Esercizio::ampiezza,
                                          &Esercizio::modalita, &Esercizio::peso}) {
            sql(u"DELETE FROM Esercizi; INSERT INTO Esercizi (ct) VALUES (900)");
            Esercizio line = fullLine();
            line.*field = u"D'Amico"_s;
            boxes().expectBeginning(Icon::None, u"1-"_s);
            line.save();
            QCOMPARE(line.ct, 900); // the table's highest, somebody else's
            line = fullLine();
            line.*field = u"D’Amico è 🏋 DELETE * FROM x #1/1/2005#"_s;
            Esercizio read;
            QVERIFY(read.carica(line.save()));
            QCOMPARE(read.*field, line.*field);
        }
    }

    void badRows_data() {
        QTest::addColumn<QString>("change");
        QTest::addColumn<int>("error");
        for (const auto& field : {u"Durata"_s, u"Frequenza"_s, u"Ampiezza"_s, u"isLibero"_s})
            QTest::addRow("Null in %s", qPrintable(field)) << field + u"=NULL"_s << 94;
        for (const auto& field : {u"RecuperoMin"_s, u"RecuperoSec"_s, u"Serie"_s})
            QTest::addRow("256 in %s", qPrintable(field)) << field + u"=256"_s << 6;
        QTest::newRow("Null that may be")
            << u"RecuperoMin=NULL, RecuperoSec=NULL, Serie=NULL, Modalita=NULL, Peso=NULL, Note=NULL"_s << 0;
    }
    void badRows() {
        QFETCH(QString, change);
        Esercizio line = fullLine();
        line.save();
        program().sql(u"UPDATE Esercizi SET "_s + change);
        Esercizio read;
        QTEST(errorOf([&] { return read.carica(line.ct); }), "error");
    }

    void copiesAndPictures() {
        Esercizio origin = fullLine(true);
        origin.ct = 44;
        Esercizio copy;
        copy.nuovoDaEsercizio(origin);
        QCOMPARE(values(copy), values(origin));
        QVERIFY(copy.ct == 44 && copy.id_scheda == 0 && !copy.isModello);
        QCOMPARE(copy.getFoto(), u"images\\Q\\003.JPG"_s);
        copy.id_fig = 99;
        QCOMPARE(copy.getFoto(), u"ERR:Dati non trovati"_s);
    }

    void trainingDays_data() {
        QTest::addColumn<QString>("days");
        QTest::addColumn<QString>("text");
        QTest::newRow("three") << u"001010100"_s << u"LUN - MER - VEN"_s;
        QTest::newRow("last") << u"000000001"_s << u"DOM"_s;
        QTest::newRow("daily before all") << u"111000000"_s << u"GIORNALIERO"_s;
        QTest::newRow("none before days") << u"011000000"_s << u"NESSUNO"_s;
        QTest::newRow("nine zeros") << u"000000000"_s << QString();
        QTest::newRow("empty") << QString() << QString();
        QTest::newRow("short") << u"0001"_s << u"MAR"_s;
    }
    void trainingDays() {
        QFETCH(QString, days);
        QTEST(GGAllenHELPER::descrizioneGGAllen(days), "text");
        FakeCheckList list(9);
        GGAllenHELPER::scriviGGAllen(days, list);
        QCOMPARE(GGAllenHELPER::leggiGGAllen(list), days.leftJustified(9, u'0'));
        list.ticks[8] = true;
        GGAllenHELPER::scriviGGAllen(days, list); // ticks, and takes no tick away
        QVERIFY(list.ticks[8]);
        QCOMPARE(errorOf([&] { GGAllenHELPER::scriviGGAllen(u"0000000001"_s, list); }), 9);
    }
};

QUIVERDECK_TEST(TestEsercizio)
#include "test_esercizio.moc"
