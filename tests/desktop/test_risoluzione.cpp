#include "core/variabiliGlobali.h"
#include "desktop/ResolutionConfirm.h"
#include "desktop/controllaRisoluzione.h"
#include "support/FakeDisplay.h"
#include "support/WindowTest.h"

using namespace Qt::StringLiterals;
using variabiliGlobali::rispostaRisoluzione;

class TestRisoluzione : public WindowTest {
    Q_OBJECT
private Q_SLOTS:
    void starts() {
        // The count that is stored, the screen's width, the count afterwards, and whether there is a
        // question.
        for (const auto& row :
             {u"|800|1|asks"_s, u"7|1023|8|asks"_s, u"8|800|8|frozen"_s, u"40000|800|40000|beyond 16 bits"_s,
              u"|1024|1|wide enough"_s, u"abc|800|1|asks"_s}) {
            const QStringList cells = row.split(u'|');
            sql(u"DELETE FROM Parametri WHERE parametro = 'CAMBIO_RISOLUZIONE'");
            if (!cells[0].isEmpty())
                sql(u"INSERT INTO Parametri VALUES ('CAMBIO_RISOLUZIONE','%1')"_s.arg(cells[0]));
            if (cells[3] == u"asks")
                boxes().expectBeginning(Icon::Critical, u"Il programma è stato ottimizzato"_s, Answer::No);
            const FakeDisplay display(cells[1].toInt());
            controllaRisoluzione();
            QCOMPARE(rows(u"SELECT valore FROM Parametri WHERE parametro='CAMBIO_RISOLUZIONE'"), cells[2]);
            QCOMPARE(display.asked, QString());
            QVERIFY(boxes().satisfied());
        }
    }

    void confirmed() {
        for (const QString& act : {u"OKButton"_s, u"CancelButton"_s, u"close"_s, u"timer"_s}) {
            const int answer = act == u"OKButton" ? 1 : act == u"close" ? 0 : 2;
            rispostaRisoluzione = 0;
            boxes().expectBeginning(Icon::Critical, u"Il programma è stato ottimizzato"_s, Answer::Yes);
            boxes().expectBeginning(Icon::Information, u"Il programma proverà ora a cambiare risoluzione"_s);
            if (answer == 2)
                boxes().expect(Icon::Information, u"Reimpostata risoluzione precedente"_s);
            FakeDisplay display;
            display.accepts = answer != 1; // a refused mode brings the confirmation up all the same
            const FormPage page(ResolutionConfirm::comune());
            auto* timer = page.window().findChild<QTimer*>(u"Timer"_s);
            QCOMPARE(timer->interval(), 1000);
            QString seconds;
            if (act == u"timer") {
                timer->setInterval(0);
                connect(timer, &QTimer::timeout, this, [&] { seconds += page.text(u"lblSec"_s) + u' '; });
            } else {
                whenModal([&](toolkit::Form& form) {
                    QCOMPARE(page.text(u"lblSec"_s), u"16"_s);
                    act == u"close" ? static_cast<void>(form.close()) : page.press(act);
                });
            }
            controllaRisoluzione();
            QCOMPARE(int(rispostaRisoluzione), answer);
            QCOMPARE(display.asked, answer == 2 ? u"1024x768x24 800x600x24 "_s : u"1024x768x24 "_s);
            if (act == u"timer") // cancelled one tick after the last second
                QCOMPARE(seconds, u"15 14 13 12 11 10 9 8 7 6 5 4 3 2 1 0 0 "_s);
            QVERIFY(boxes().satisfied());
        }
    }
};

QUIVERDECK_TEST(TestRisoluzione)
#include "test_risoluzione.moc"
