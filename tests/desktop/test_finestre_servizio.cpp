#include "core/Principale.h"
#include "desktop/Tool_BarProg.h"
#include "desktop/frmAbout.h"
#include "desktop/frmSplash.h"
#include "desktop/testClassi.h"
#include "platform/toolkit/ProgressBar.h"
#include "support/WindowTest.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

class TestFinestreServizio : public WindowTest {
    Q_OBJECT

    int paintings_ = 0;

public:
    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        paintings_ += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }

private Q_SLOTS:
    void splashCountsToItsMaximum() {
        frmSplash& splash = frmSplash::comune();
        const auto& bar = WindowPage(splash).find<toolkit::ProgressBar>(u"bar"_s);
        splash.barSetMax(3 + 1);
        splash.barReset();
        for (int figure = 0; figure < 3; ++figure)
            splash.barStep();
        QCOMPARE(bar.value(), bar.maximum());
        QVERIFY_THROWS_EXCEPTION(runtime::Error, splash.barStep());
        splash.barSetMax(1); // no figures at all
        splash.barReset();
    }

    void progressDrawsOncePerPercent() {
        Tool_BarProg& progress = Tool_BarProg::comune();
        progress.show();
        const WindowPage page(progress);
        const auto shown = [&page] {
            return page.text(u"Status"_s) + u" %1"_s.arg(page.widget(u"retStatus"_s).width());
        };
        QCOMPARE(shown(), u"0% 0"_s);
        progress.Totale = 200;
        page.widget(u"Status"_s).installEventFilter(this);
        const auto next = [&progress] {
            float passo = 0;
            progress.update(passo);
            return passo;
        };
        for (int step = 1; step <= 200; ++step) {
            QCOMPARE(next(), float(step));
            if (step == 101)
                QCOMPARE(shown(), u"50% 133"_s); // as at the 100th: 3975 / 2 twips, an even half
        }
        QVERIFY(paintings_ > 0 && paintings_ <= 2 * 100);
        QCOMPARE(shown(), u"100% 265"_s);
        QVERIFY(next() == 201 && next() == 201); // the last step stays at 200
        float first = 1;
        progress.update(first);
        QCOMPARE(page.text(u"Status"_s), u"%"_s); // a zero has no digits
        progress.Chiudi();
        QVERIFY(!Tool_BarProg::esiste());
    }

    void systemInformation() {
        frmAbout::comune().show();
        boxes().expect(Icon::None, u"Le informazioni sul sistema non sono attualmente disponibili."_s);
        WindowPage(frmAbout::comune()).press(u"cmdSysInfo"_s);
    }

    void counts() {
        sql(u"INSERT INTO utenti (cognome) VALUES ('Rossi'),('Verdi'); DROP TABLE muscoli"_s);
        Principale::comune().show();
        QVERIFY(!WindowPage(Principale::comune()).isVisible(u"test"_s)); // the way to it
        // A table that cannot be counted tells why.
        const QRegularExpression lines(u"^utenti: 2\nschede: 0\n.*\nmuscoli: [^0-9].*\nParametri: 1\n$"_s,
                                       QRegularExpression::DotMatchesEverythingOption);
        QVERIFY(lines.match(testClassi::conteggi()).hasMatch());
    }
};

QUIVERDECK_TEST(TestFinestreServizio)
#include "test_finestre_servizio.moc"
