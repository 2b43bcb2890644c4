#include "core/variabiliGlobali.h"
#include "desktop/MonitorResolution.h"
#include "desktop/ResolutionConfirm.h"
#include "desktop/controllaRisoluzione.h"
#include "platform/host/Display.h"
#include "support/WindowTest.h"

using namespace Qt::StringLiterals;
using variabiliGlobali::rispostaRisoluzione;

namespace {

class FakeDisplay : public host::Display {
public:
    FakeDisplay() { host::setDisplay(this); }
    ~FakeDisplay() override { host::setDisplay(nullptr); }

    bool read(host::DisplayMode& mode) override {
        mode = present;
        return true;
    }
    bool set(const host::DisplayMode& mode) override {
        asked.append(u"%1x%2x%3"_s.arg(mode.width).arg(mode.height).arg(mode.bits));
        return accepts;
    }

    host::DisplayMode present;
    bool accepts = true;
    QStringList asked;
};

const QString question = u"Il programma è stato ottimizzato per risoluzioni video 1024x768 o superiori. "
                         "(Risoluzione attuale: 800x600)\n"_s;

} // namespace

class TestRisoluzione : public WindowTest {
    Q_OBJECT
private Q_SLOTS:
    void init() {
        WindowTest::init();
        display_ = std::make_unique<FakeDisplay>();
        display_->present = {800, 600, 24, 60};
        rispostaRisoluzione = 0;
    }
    void cleanup() {
        WindowTest::cleanup();
        display_.reset();
    }

    void starts_data() {
        QTest::addColumn<QString>("stored"); // SQL; empty: no row
        QTest::addColumn<int>("width");
        QTest::addColumn<QString>("after");
        QTest::addColumn<bool>("asks");
        QTest::newRow("first") << QString() << 800 << u"1"_s << true;
        QTest::newRow("eighth") << u"'7'"_s << 1023 << u"8"_s << true;
        QTest::newRow("frozen") << u"'8'"_s << 800 << u"8"_s << false;
        QTest::newRow("beyond") << u"'40000'"_s << 800 << u"40000"_s << false;
        QTest::newRow("wide enough") << QString() << 1024 << u"1"_s << false;
        QTest::newRow("no number") << u"'abc'"_s << 800 << u"1"_s << true;
    }
    void starts() {
        QFETCH(QString, stored);
        QFETCH(int, width);
        QFETCH(bool, asks);
        if (!stored.isEmpty())
            sql(u"INSERT INTO Parametri VALUES ('CAMBIO_RISOLUZIONE',"_s + stored + u')');
        display_->present.width = width;
        if (asks)
            boxes().expectBeginning(Icon::Critical, u"Il programma è stato ottimizzato"_s, Answer::No);
        controllaRisoluzione();
        QTEST(rows(u"SELECT valore FROM Parametri WHERE parametro='CAMBIO_RISOLUZIONE'"), "after");
        QVERIFY(display_->asked.isEmpty());
    }

    void confirmed_data() {
        QTest::addColumn<QString>("act");
        QTest::addColumn<int>("answer");
        QTest::addColumn<bool>("back");
        QTest::newRow("OK") << u"OKButton"_s << 1 << false;
        QTest::newRow("Annulla") << u"CancelButton"_s << 2 << true;
        QTest::newRow("close box") << u"close"_s << 0 << false;
        QTest::newRow("Escape") << u"escape"_s << 0 << false;
        QTest::newRow("nobody answers") << u"timer"_s << 2 << true;
    }
    void confirmed() {
        QFETCH(QString, act);
        QFETCH(bool, back);
        boxes().expectBeginning(Icon::Critical, question, Answer::Yes);
        boxes().expectBeginning(Icon::Information, u"Il programma proverà ora a cambiare risoluzione"_s);
        if (back)
            boxes().expect(Icon::Information, u"Reimpostata risoluzione precedente"_s);
        display_->accepts = act != u"OKButton"_s; // a refused mode brings the confirmation up all the same
        auto* timer = ResolutionConfirm::comune().findChild<QTimer*>(u"Timer"_s);
        QCOMPARE(timer->interval(), 1000);
        QStringList seconds;
        if (act == u"timer"_s) {
            timer->setInterval(0);
            auto* label = ResolutionConfirm::comune().findChild<toolkit::Label*>(u"lblSec"_s);
            connect(timer, &QTimer::timeout, label, [&seconds, label] { seconds.append(label->text()); });
        } else {
            whenModal([act](toolkit::Form& form) {
                QCOMPARE(FormPage(form).text(u"lblSec"_s), u"16"_s);
                if (act == u"close"_s)
                    form.close();
                else if (act == u"escape"_s)
                    QTest::keyClick(&form, Qt::Key_Escape);
                else
                    FormPage(form).press(act);
            });
        }
        controllaRisoluzione();
        QTEST(int(rispostaRisoluzione), "answer");
        QCOMPARE(display_->asked,
                 back ? QStringList({u"1024x768x24"_s, u"800x600x24"_s}) : QStringList({u"1024x768x24"_s}));
        if (act == u"timer"_s) { // 15 at the first tick, 0 at the sixteenth, cancelled at the seventeenth
            QCOMPARE(seconds.size(), 17);
            QCOMPARE(seconds.first(), u"15"_s);
            QCOMPARE(seconds.at(15), u"0"_s);
        }
    }

    void modeIsLogged() {
        display_->present.width = 1280;
        controllaRisoluzione();
        QVERIFY(log().contains(u"Risoluzione 1280x600"_s));
    }

    void withoutADisplay() {
        display_.reset();
        ModoVideo modo{1, 2, 3};
        MonitorResolution().leggiRisoluzione(modo);
        QCOMPARE(modo.larghezza, 0);
        QVERIFY(!MonitorResolution().impostaRisoluzione({1024, 768, 24}));
    }

private:
    std::unique_ptr<FakeDisplay> display_;
};

QUIVERDECK_TEST(TestRisoluzione)
#include "test_risoluzione.moc"
