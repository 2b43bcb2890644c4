#include "desktop/InformazioniSistema.h"
#include "desktop/Tool_BarProg.h"
#include "desktop/frmAbout.h"
#include "desktop/frmDisplay.h"
#include "desktop/frmSplash.h"
#include "platform/host/Application.h"
#include "platform/toolkit/ProgressBar.h"
#include "platform/toolkit/TextArea.h"
#include "support/WindowTest.h"

#include <QDesktopServices>

#include <limits>

using namespace Qt::StringLiterals;

/// Keeps the links that the program opens.
class Links : public QObject {
    Q_OBJECT
public:
    Links() {
        for (const QString& scheme : {u"https"_s, u"mailto"_s})
            QDesktopServices::setUrlHandler(scheme, this, "opened");
    }
    ~Links() override {
        for (const QString& scheme : {u"https"_s, u"mailto"_s})
            QDesktopServices::unsetUrlHandler(scheme);
    }
    Links(const Links&) = delete;
    Links& operator=(const Links&) = delete;

    QStringList urls;
public Q_SLOTS:
    void opened(const QUrl& url) { urls.append(url.toString()); }
};

/// Counts how often a widget is painted.
class Paintings : public QObject {
public:
    explicit Paintings(QWidget& widget) { widget.installEventFilter(this); }
    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        count += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }
    int count = 0;
};

class TestFinestreServizio : public WindowTest {
    Q_OBJECT
private Q_SLOTS:
    void cleanup() {
        WindowTest::cleanup();
        InformazioniSistema::setRegistro({});
    }

    void splashTells() {
        frmSplash& splash = frmSplash::comune();
        splash.show();
        const WindowPage page(splash);
        QCOMPARE(page.text(u"lblProductName"_s), u"Quiver-Deck"_s);
        QCOMPARE(page.text(u"lblVersion"_s), u"Versione "_s + host::versionText());
        QVERIFY(!page.isVisible(u"lblWarning"_s));
    }

    void splashCountsToItsMaximum() {
        frmSplash& splash = frmSplash::comune();
        const auto& bar = WindowPage(splash).find<toolkit::ProgressBar>(u"bar"_s);
        splash.barSetMax(3 + 1);
        splash.barReset();
        for (int figure = 0; figure < 3; ++figure)
            splash.barStep();
        QCOMPARE(bar.value(), bar.maximum());
        QVERIFY_THROWS_EXCEPTION(runtime::Error, splash.barStep());
        QCOMPARE(bar.value(), 4);
        splash.barReset();
        QCOMPARE(bar.value(), 1);
        splash.barSetMax(1); // no figures at all
        splash.barReset();
    }

    void splashGoesByKeyOrClick() {
        frmSplash::comune().show();
        QTest::keyClick(&frmSplash::comune(), Qt::Key_A);
        QVERIFY(!frmSplash::esiste());
        frmSplash::comune().show();
        WindowPage(frmSplash::comune()).press(u"Frame1"_s);
        QVERIFY(!frmSplash::esiste());
    }

    void progressDrawsOncePerPercent() {
        Tool_BarProg& progress = Tool_BarProg::comune();
        progress.show();
        const WindowPage page(progress);
        QCOMPARE(progress.caption(), u"Elaborazione in corso..."_s);
        QCOMPARE(page.text(u"Status"_s), u"0%"_s);
        QWidget& bar = page.widget(u"retStatus"_s);
        QCOMPARE(bar.width(), 0);
        progress.Totale = 200;
        const Paintings paintings(page.widget(u"Status"_s));
        for (int step = 1; step <= 200; ++step) {
            float passo = 0;
            progress.update(passo);
            QCOMPARE(passo, float(step));
            if (step == 101) {
                QCOMPARE(page.text(u"Status"_s), u"50%"_s);
                QCOMPARE(bar.geometry(), QRect(8, 8, 133, 24)); // at the 100th: 3975 / 2 twips, an even half
            }
        }
        QVERIFY(paintings.count <= 2 * 100);
        QCOMPARE(page.text(u"Status"_s), u"100%"_s);
        QCOMPARE(bar.width(), page.widget(u"Status"_s).width());

        float beyond = 0; // the next step, 201
        progress.update(beyond);
        QCOMPARE(beyond, 201.0F);
        beyond = 0;
        progress.update(beyond);
        QCOMPARE(beyond, 201.0F); // the last step stayed at 200
        QCOMPARE(page.text(u"Status"_s), u"100%"_s);
        float first = 1;
        progress.update(first);
        QCOMPARE(page.text(u"Status"_s), u"%"_s); // a zero has no digits
        progress.Chiudi();
        QVERIFY(!Tool_BarProg::esiste());
    }

    void aboutTellsAndLinks() {
        Links links;
        frmAbout& about = frmAbout::comune();
        about.show();
        const FormPage page(about);
        QCOMPARE(about.caption(), u"Informazioni su Quiver-Deck"_s);
        QCOMPARE(page.text(u"lblTitle"_s), u"Quiver-Deck"_s);
        QCOMPARE(page.text(u"lblVersion"_s), u"Versione "_s + host::versionText());
        QVERIFY(page.text(u"lblDisclaimer"_s).startsWith(u"ATTENZIONE:"_s));
        QVERIFY(page.text(u"lblDescription"_s).contains(QLatin1String(qVersion())));
        QCOMPARE(about.focusWidget(), &page.widget(u"cmdOK"_s));
        page.press(u"lblLink"_s);
        page.key(u"lblLinkEmailAuthor"_s, Qt::Key_Return);
        page.key(u"lblLink"_s, Qt::Key_Space);
        page.key(u"lblLink"_s, Qt::Key_A);
        QCOMPARE(links.urls, QStringList({frmAbout::paginaWeb(), frmAbout::posta(), frmAbout::paginaWeb()}));
        QVERIFY(frmAbout::esiste());
        page.press(u"cmdOK"_s);
        QVERIFY(!frmAbout::esiste());
    }

    void systemInformation_data() {
        QTest::addColumn<QString>("path");     // the value of the first key
        QTest::addColumn<QString>("location"); // of the second
        QTest::addColumn<int>("error");        // -1: the message
        QTest::newRow("no registry") << QString() << QString() << -1;
        QTest::newRow("a place without the tool") << QString() << u"C:\\niente"_s << -1;
        QTest::newRow("a tool that cannot be started") << u"C:\\niente\\info"_s << QString() << 53;
    }
    void systemInformation() {
        QFETCH(QString, path);
        QFETCH(QString, location);
        QFETCH(int, error);
        const ExpectedFatal fatal;
        InformazioniSistema::setRegistro([&](const QString& key, const QString& name, QString& value) {
            value = key.endsWith(u"MSINFO"_s) && name == u"PATH"_s ? path : location;
            return !value.isEmpty();
        });
        if (error < 0)
            boxes().expect(Icon::None, u"Le informazioni sul sistema non sono attualmente disponibili."_s);
        frmAbout::comune().show();
        WindowPage(frmAbout::comune()).press(u"cmdSysInfo"_s);
        QCOMPARE(fatal.lastNumber, std::max(error, 0));
        QVERIFY(frmAbout::esiste());
    }

    void displayAppends() {
        frmDisplay& display = frmDisplay::comune();
        display.show();
        const WindowPage page(display);
        display.stampa(u"utenti: 3"_s);
        display.stampa({});
        display.stampa(u"riga\n"_s.repeated(100));
        QVERIFY(page.text(u"txtDisplay"_s).startsWith(u"\nutenti: 3\n\nriga\n"_s));
        const auto& text = page.find<toolkit::TextArea>(u"txtDisplay"_s);
        QVERIFY(text.textCursor().atEnd());
        display.resize(500, 200);
        QCOMPARE(text.geometry(), display.client()->rect());
    }
};

QUIVERDECK_TEST(TestFinestreServizio)
#include "test_finestre_servizio.moc"
