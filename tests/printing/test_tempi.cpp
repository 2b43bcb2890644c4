#include "cards/scheda.h"
#include "printing/ContatoreTempi.h"
#include "printing/cTime.h"
#include "support/Errors.h"
#include "support/FakeControls.h"
#include "support/Suite.h"

using namespace Qt::StringLiterals;

namespace {

struct Line {
    QString durata;
    quint8 serie;
    quint8 min;
    quint8 sec;
    qint32 figure = 1;
    bool libero = false;
};

} // namespace

class TestTempi : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void adding_data() {
        QTest::addColumn<QList<qint16>>("left");
        QTest::addColumn<QList<qint16>>("right");
        QTest::addColumn<QString>("sum"); // empty: overflow
        using Time = QList<qint16>;
        QTest::newRow("carries") << Time{0, 59, 30} << Time{0, 0, 45} << u"1:00:15"_s;
        QTest::newRow("no wrap at 24") << Time{99, 59, 59} << Time{0, 0, 1} << u"100:00:00"_s;
        QTest::newRow("reduces what was set") << Time{0, 0, 90} << Time{0, 0, 0} << u"01:30"_s;
        QTest::newRow("too many seconds") << Time{0, 0, 32767} << Time{0, 0, 1} << QString();
        QTest::newRow("too many with the carry") << Time{0, 32767, 59} << Time{0, 0, 1} << QString();
        QTest::newRow("too many hours") << Time{32767, 59, 0} << Time{0, 1, 0} << QString();
        QTest::newRow("negative seconds") << Time{0, 2, 0} << Time{0, 0, -30} << u"01:-30"_s;
    }
    void adding() {
        QFETCH(QList<qint16>, left);
        QFETCH(QList<qint16>, right);
        QFETCH(QString, sum);
        cTime time;
        time.setTime(left[0], left[1], left[2]);
        const int error = errorOf([&] { time.Add(right[0], right[1], right[2]); });
        QCOMPARE(error, sum.isEmpty() ? 6 : 0);
        if (!sum.isEmpty())
            QCOMPARE(time.getTime(), sum);
    }

    void textOfATime() {
        cTime time;
        time.setTime(0, 0, 90);
        QCOMPARE(time.getTime(), u"00:90"_s); // as set, until the next addition
        time.setTime(1, 5, 9);
        time.addTime(time);
        QCOMPARE(time.getTime(), u"2:10:18"_s);
    }

    void counting_data() {
        QTest::addColumn<QList<Line>>("lines");
        QTest::addColumn<QString>("times"); // effective, recovery, total; empty: overflow
        QTest::newRow("no line") << QList<Line>{} << u"00:00 00:00 00:00"_s;
        QTest::newRow("text behind the number")
            << QList<Line>{{u"30 sec"_s, 3, 1, 20}} << u"01:30 04:00 05:30"_s;
        QTest::newRow("no number") << QList<Line>{{u"max"_s, 2, 0, 5}} << u"00:00 00:10 00:10"_s;
        QTest::newRow("no series") << QList<Line>{{u"30"_s, 0, 1, 20}} << u"00:00 00:00 00:00"_s;
        QTest::newRow("ties to even")
            << QList<Line>{{u"2.5"_s, 1, 0, 0}, {u"3.5"_s, 1, 0, 0}} << u"00:06 00:00 00:06"_s;
        QTest::newRow("free and empty lines take no part")
            << QList<Line>{{u"30"_s, 3, 1, 20, 1, true}, {u"30"_s, 3, 1, 20, 0, false}, {u"10"_s, 1, 0, 0}}
            << u"00:10 00:00 00:10"_s;
        QTest::newRow("largest products") << QList<Line>{{u"1"_s, 255, 0, 128}} << u"04:15 9:04:00 9:08:15"_s;
        QTest::newRow("product too large") << QList<Line>{{u"1"_s, 255, 129, 0}} << QString();
        QTest::newRow("duration too large") << QList<Line>{{u"129"_s, 255, 0, 0}} << QString();
    }
    void counting() {
        QFETCH(QList<Line>, lines);
        QFETCH(QString, times);
        FakePanels bar;
        ContatoreTempi counter;
        QCOMPARE(errorOf([&] { counter.contaEstampa(); }), 91);
        counter.schedaCorrente = std::make_shared<scheda>();
        counter.barraStato = &bar;
        for (const Line& line : lines) {
            auto exercise = std::make_shared<Esercizio>();
            exercise->durata = line.durata;
            exercise->serie = line.serie;
            exercise->recuperoMin = line.min;
            exercise->recuperoSec = line.sec;
            exercise->id_fig = line.figure;
            exercise->isLibero = line.libero;
            counter.schedaCorrente->esercizi->Add(exercise);
        }
        const QStringList t = (times.isEmpty() ? u"  "_s : times).split(u' ');
        const QString told =
            u"Tempi Quiver-Deck: Tempo effettivo: %1 - Tempo recupero: %2 - Tempo totale: %3              "
            u"[NOTA: "
            "Nel caso di allenamento a circuito il conteggio dei tempi riguarda solo uno di essi]"_s.arg(
                t[0], t[1], t[2]);
        for (int call = 0; call < 2; ++call) { // nothing carries over
            QCOMPARE(errorOf([&] { counter.contaEstampa(); }), times.isEmpty() ? 6 : 0);
            QCOMPARE(bar.panel(u"status"_s), times.isEmpty() ? QString() : told);
        }
    }
};

QUIVERDECK_TEST(TestTempi)
#include "test_tempi.moc"
