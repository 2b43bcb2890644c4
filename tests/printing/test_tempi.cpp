#include "cards/scheda.h"
#include "printing/ContatoreTempi.h"
#include "support/Errors.h"
#include "support/FakeControls.h"
#include "support/Suite.h"

using namespace Qt::StringLiterals;

class TestTempi : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void counting() {
        // Lines "duration series minutes seconds figure free" = effective time, recovery, total; none:
        // beyond 16 bits, by a product or at one place of a sum
        for (const auto& row :
             {u" = 00:00 00:00 00:00"_s, u"30sec 3 1 20 1 0 = 01:30 04:00 05:30"_s,
              u"max 2 0 5 1 0 = 00:00 00:10 00:10"_s, u"30 0 1 20 1 0 = 00:00 00:00 00:00"_s,
              u"2.5 1 0 0 1 0, 3.5 1 0 0 1 0 = 00:06 00:00 00:06"_s,               // ties to even
              u"30 3 1 20 1 1, 30 3 1 20 0 0, 10 1 0 0 1 0 = 00:10 00:00 00:10"_s, // free and blank ones
              u"1 255 59 128 1 0 = 04:15 259:49:00 259:53:15"_s,                   // more than a day
              u"120 1 0 0 1 0, -30 1 0 0 1 0 = 01:-30 00:00 -1:-01:-30"_s, u"1 255 129 0 1 0 = "_s,
              u"129 255 0 0 1 0 = "_s, u"1 1 0 0 1 0, 32767 1 0 0 1 0 = "_s,
              u"1 1 59 0 1 0, 1 255 128 128 1 0 = "_s}) {
            const QStringList times = row.section(u" = "_s, 1).split(u' ', Qt::SkipEmptyParts);
            FakePanels bar;
            ContatoreTempi counter;
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
            QCOMPARE(errorOf([&] { counter.contaEstampa(); }), times.isEmpty() ? 6 : 0);
            const QString told = u"effettivo: %1 - Tempo recupero: %2 - Tempo totale: %3 "_s;
            if (!times.isEmpty())
                QVERIFY2(bar.panel(u"status"_s).contains(told.arg(times[0], times[1], times[2])),
                         qPrintable(row));
        }
    }
};

QUIVERDECK_TEST(TestTempi)
#include "test_tempi.moc"
