#include "cards/Esercizio.h"
#include "cards/GGAllenHELPER.h"
#include "support/Errors.h"
#include "support/FakeControls.h"
#include "support/ScratchProgram.h"
#include "support/ScriptedBoxes.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

/// A line whose values all differ.
Esercizio fullLine(bool isModello) {
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

class TestEsercizio : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() {
        program_ = std::make_unique<ScratchProgram>();
        boxes_ = std::make_unique<ScriptedBoxes>();
    }
    void cleanup() {
        QVERIFY(boxes_->satisfied());
        boxes_.reset();
        program_.reset();
    }

    void roundTrip_data() {
        QTest::addColumn<bool>("isModello");
        QTest::addColumn<QString>("table");
        QTest::newRow("card") << false << u"Esercizi"_s;
        QTest::newRow("template") << true << u"EserciziModello"_s;
    }
    void roundTrip() {
        QFETCH(bool, isModello);
        QFETCH(QString, table);
        Esercizio line = fullLine(isModello);
        const qint32 key = line.save();
        QCOMPARE(line.ct, key);
        QCOMPARE(program_->rows(u"SELECT ct, ID_Scheda FROM "_s + table + u" WHERE NProg=7"_s),
                 QStringList({QString::number(key) + u"|100000"_s}));
        Esercizio read;
        read.isModello = isModello;
        read.id_scheda = 5;
        QVERIFY(read.carica(key));
        line.note.replace(u'\'', u'`');
        QCOMPARE(values(read), values(line));
        QCOMPARE(read.id_scheda, 5); // never read
        QCOMPARE(read.isModello, isModello);

        read.svuotaDati();
        QCOMPARE(values(read),
                 QStringList({u"7"_s, u"0"_s, {}, {}, {}, u"0"_s, u"0"_s, u"0"_s, {}, {}, {}, u"1"_s}));
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
        QVERIFY(program_->rows(u"SELECT ct FROM "_s + table + u" WHERE NProg=7"_s).isEmpty());
        boxes_->expect(host::Icon::Critical, u"ERR:Problemi di connessione"_s);
        QVERIFY(!again.carica(key));
        QCOMPARE(values(again), values(read));
    }

    void statements() {
        Esercizio line = fullLine(false);
        line.note = u"l'ora"_s;
        line.save();
        line.save();
        const QString data = u"'30 sec','35 Hz','High',254,255,'0','Dinàmico \"x\"','08',TRUE,'l`ora')"_s;
        QCOMPARE(
            program_->log(),
            QStringList({u"Execute - INSERT INTO Esercizi  (NProg, ID_Scheda, ID_Fig, Durata, Frequenza, "
                         "Ampiezza, RecuperoMin,RecuperoSec,Serie, Modalita, Peso, isLibero, [Note])  VALUES "
                         "(7,100000,3,"_s +
                             data,
                         u"Execute - UPDATE Esercizi SET NProg = 7,ID_Scheda = 100000,ID_Fig = 3,Durata = "
                         "'30 sec',Frequenza = '35 Hz',Ampiezza = 'High',RecuperoMin = 254,RecuperoSec = "
                         "255,Serie = 0,Modalita = 'Dinàmico \"x\"',peso = '08',isLibero = "
                         "TRUE,[Note]='l`ora' WHERE ct=1"_s}));
    }

    void unescapedFields_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("stored");
        QTest::newRow("apostrophe") << u"D'Amico"_s << false;
        QTest::newRow("SQL") << u"DELETE * FROM x #1/1/2005#"_s << true;
        QTest::newRow("typographic") << u"D’Amico è 🏋"_s << true;
    }
    void unescapedFields() {
        QFETCH(QString, text);
        QFETCH(bool, stored);
        for (QString Esercizio::*field : {&Esercizio::durata, &Esercizio::frequenza, &Esercizio::ampiezza,
                                          &Esercizio::modalita, &Esercizio::peso}) {
            program_->sql(u"DELETE FROM Esercizi; INSERT INTO Esercizi (ct) VALUES (900)"_s);
            Esercizio line = fullLine(false);
            line.*field = text;
            if (!stored)
                boxes_->expectBeginning(host::Icon::None, u"1-"_s);
            line.save();
            if (!stored) {
                QCOMPARE(line.ct, 900); // the table's highest, somebody else's
                continue;
            }
            Esercizio read;
            QVERIFY(read.carica(line.ct));
            QCOMPARE(read.*field, text);
        }
    }

    void longNotes() {
        Esercizio line = fullLine(false);
        line.note = QString(32767, u'\'');
        QVERIFY(line.save() > 0);
        QCOMPARE(program_->rows(u"SELECT length(Note) FROM Esercizi"_s), QStringList({u"32767"_s}));
        line.note += u'x';
        QCOMPARE(errorOf([&] { return line.save(); }), 6);
        QCOMPARE(program_->rows(u"SELECT length(Note) FROM Esercizi"_s), QStringList({u"32767"_s}));
    }

    void badRows_data() {
        QTest::addColumn<QString>("change");
        QTest::addColumn<int>("error");
        for (const auto& field : {u"Durata"_s, u"Frequenza"_s, u"Ampiezza"_s, u"isLibero"_s})
            QTest::addRow("Null in %s", qPrintable(field)) << field + u"=NULL"_s << 94;
        for (const auto& field : {u"RecuperoMin"_s, u"RecuperoSec"_s, u"Serie"_s}) {
            QTest::addRow("256 in %s", qPrintable(field)) << field + u"=256"_s << 6;
            QTest::addRow("Null in %s", qPrintable(field)) << field + u"=NULL"_s << 0;
        }
        QTest::newRow("Null in texts") << u"Modalita=NULL, Peso=NULL, Note=NULL"_s << 0;
    }
    void badRows() {
        QFETCH(QString, change);
        Esercizio line = fullLine(false);
        line.save();
        program_->sql(u"UPDATE Esercizi SET "_s + change);
        Esercizio read;
        QTEST(errorOf([&] { return read.carica(line.ct); }), "error");
    }

    void copies() {
        Esercizio origin = fullLine(true);
        origin.ct = 44;
        Esercizio copy;
        copy.nuovoDaEsercizio(origin);
        QCOMPARE(values(copy), values(origin));
        QCOMPARE(copy.ct, 44);
        QCOMPARE(copy.id_scheda, 0);
        QVERIFY(!copy.isModello);
    }

    void picture() {
        Esercizio line;
        line.id_fig = 2;
        QCOMPARE(line.getFoto(), u"images\\Q\\002.JPG"_s);
        line.id_fig = 99;
        QCOMPARE(line.getFoto(), u"ERR:Dati non trovati"_s);
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
    }

    void trainingDaysAreOnlyTicked() {
        FakeCheckList list(9);
        list.ticks[0] = true;
        GGAllenHELPER::scriviGGAllen(u"001"_s, list);
        QCOMPARE(GGAllenHELPER::leggiGGAllen(list), u"101000000"_s);
        QCOMPARE(errorOf([&] { return GGAllenHELPER::scriviGGAllen(u"0000000001"_s, list), 0; }), 9);
    }

private:
    std::unique_ptr<ScratchProgram> program_;
    std::unique_ptr<ScriptedBoxes> boxes_;
};

QTEST_GUILESS_MAIN(TestEsercizio)
#include "test_esercizio.moc"
