#include "cards/scheda.h"
#include "printing/ContatoreTempi.h"
#include "printing/cTime.h"
#include "support/Errors.h"
#include "support/FakeControls.h"
#include "support/Suite.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

class TestTempi : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void adding() {
        // a time, what is added, the sum: no wrap at 24 hours, what was set is reduced, 16 bits at each place
        for (const auto& row : {u"0 59 30 0 0 45 1:00:15"_s, u"99 59 59 0 0 1 100:00:00"_s,
                                u"0 0 90 0 0 0 01:30"_s, u"0 2 0 0 0 -30 01:-30"_s, u"0 0 32767 0 0 1 E6"_s,
                                u"0 32767 59 0 0 1 E6"_s, u"32767 59 0 0 1 0 E6"_s}) {
            const QStringList n = row.split(u' ');
            cTime time;
            time.setTime(n[0].toShort(), n[1].toShort(), n[2].toShort());
            const int error = errorOf([&] { time.Add(n[3].toShort(), n[4].toShort(), n[5].toShort()); });
            QCOMPARE(error == 0 ? time.getTime() : u"E%1"_s.arg(error), n[6]);
        }
        cTime time;
        time.setTime(0, 0, 90);
        QCOMPARE(time.getTime(), u"00:90"_s); // as set, until the next addition
    }

    void counting() {
        static const QRegularExpression time(u"\\d+(:\\d\\d)+"_s);
        // Lines "duration series minutes seconds figure free" = effective time, recovery, total; none:
        // overflow
        for (const auto& row :
             {u" = 00:00 00:00 00:00"_s, u"30sec 3 1 20 1 0 = 01:30 04:00 05:30"_s,
              u"max 2 0 5 1 0 = 00:00 00:10 00:10"_s, u"30 0 1 20 1 0 = 00:00 00:00 00:00"_s,
              u"2.5 1 0 0 1 0, 3.5 1 0 0 1 0 = 00:06 00:00 00:06"_s,               // ties to even
              u"30 3 1 20 1 1, 30 3 1 20 0 0, 10 1 0 0 1 0 = 00:10 00:00 00:10"_s, // free and blank ones
              u"1 255 0 128 1 0 = 04:15 9:04:00 9:08:15"_s, u"1 255 129 0 1 0 = "_s,
              u"129 255 0 0 1 0 = "_s}) {
            const QString times = row.section(u" = "_s, 1);
            FakePanels bar;
            ContatoreTempi counter;
            QCOMPARE(errorOf([&] { counter.contaEstampa(); }), 91);
            counter.schedaCorrente = std::make_shared<scheda>();
            counter.barraStato = &bar;
            for (const QString& line : row.section(u" = "_s, 0, 0).split(u", "_s, Qt::SkipEmptyParts)) {
                const QStringList cells = line.split(u' ');
                auto exercise = std::make_shared<Esercizio>();
                exercise->durata = cells[0];
                exercise->serie = static_cast<quint8>(cells[1].toInt());
                exercise->recuperoMin = static_cast<quint8>(cells[2].toInt());
                exercise->recuperoSec = static_cast<quint8>(cells[3].toInt());
                exercise->id_fig = cells[4].toInt();
                exercise->isLibero = cells[5] == u"1";
                counter.schedaCorrente->esercizi->Add(exercise);
            }
            for (int call = 0; call < 2; ++call) { // nothing carries over
                QCOMPARE(errorOf([&] { counter.contaEstampa(); }), times.isEmpty() ? 6 : 0);
                QStringList told;
                for (auto all = time.globalMatch(bar.panel(u"status"_s)); all.hasNext();)
                    told += all.next().captured();
                QCOMPARE(told.join(u' '), times);
            }
        }
    }
};

QUIVERDECK_TEST(TestTempi)
#include "test_tempi.moc"
