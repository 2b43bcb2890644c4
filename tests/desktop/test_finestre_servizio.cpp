#include "core/Principale.h"
#include "desktop/Tool_BarProg.h"
#include "desktop/frmSplash.h"
#include "desktop/testClassi.h"
#include "platform/toolkit/ProgressBar.h"
#include "support/WindowTest.h"

using namespace Qt::StringLiterals;

class TestFinestreServizio : public WindowTest {
    Q_OBJECT

private Q_SLOTS:
    void splashCountsToItsMaximum() {
        frmSplash& splash = frmSplash::comune();
        const auto& bar = WindowPage(splash).find<toolkit::ProgressBar>(u"bar"_s);
        splash.barSetMax(3 + 1);
        splash.barReset();
        for (int figure = 0; figure < 3; ++figure)
            splash.barStep();
        QCOMPARE(bar.value(), bar.maximum());
        splash.barSetMax(1); // no figures at all
        splash.barReset();
    }

    void progressDrawsOncePerPercent() {
        Tool_BarProg& progress = Tool_BarProg::comune();
        progress.show();
        const WindowPage page(progress);
        progress.Totale = 200;
        const auto next = [&](float step = 0) {
            progress.update(step);
            return page.text(u"Status"_s) + u" %1 %2"_s.arg(page.widget(u"retStatus"_s).width()).arg(step);
        };
        for (int step = 1; step <= 100; ++step)
            next();
        QCOMPARE(next(), u"50% 133 101"_s); // drawn at the 100th: 3975 / 2 twips, an even half
        for (int step = 102; step <= 200; ++step)
            next();
        for (int again = 0; again < 2; ++again) // the last step stays at 200
            QCOMPARE(next(), u"100% 265 201"_s);
        QCOMPARE(next(1), u"% 1 1"_s); // a zero has no digits
        progress.Chiudi();
        QVERIFY(!Tool_BarProg::esiste());
    }

    void counts() {
        sql(u"INSERT INTO utenti (cognome) VALUES ('Rossi'),('Verdi'); DROP TABLE muscoli"_s);
        Principale::comune().show();
        QVERIFY(!WindowPage(Principale::comune()).isVisible(u"test"_s)); // the way to it
        // A table that cannot be counted tells why.
        // A table that cannot be counted does not end the list.
        const QString counts = testClassi::conteggi();
        QVERIFY(counts.startsWith(u"utenti: 2\nschede: 0\n") && counts.endsWith(u"Parametri: 1\n"));
    }
};

QUIVERDECK_TEST(TestFinestreServizio)
#include "test_finestre_servizio.moc"
