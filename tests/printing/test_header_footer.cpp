// What stands around the exercises of a sheet: header, gym's logo, footer and final notes.

#include "ProgrammaDiProva.h"
#include "disegni.h"
#include "finestraFinta.h"
#include "fogli.h"

#include "platform/runtime/Error.h"
#include "printing/FittedText.h"
#include "printing/Painting.h"
#include "printing/percorsoLogo.h"

#include <QTest>

using sheet::Element;
using sheet::FittedText;
using namespace fogli;

class TestHeaderFooter : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        mProgram = std::make_unique<ProgrammaDiProva>();
        mWindow = FinestraFinta();
    }
    void cleanup() { mProgram.reset(); }
    void header();
    void headerRows_data();
    void headerRows();
    void footer();
    void finalNotes_data();
    void finalNotes();
    void gymLogo_data();
    void gymLogo();
    void logoOfAMovedFolder();

private:
    std::unique_ptr<ProgrammaDiProva> mProgram;
    FinestraFinta mWindow;
};

void TestHeaderFooter::header() {
    page(1).setCanvas(mWindow);
    struct Expected {
        const char* name;
        QString text;
        double left;
        double top;
    };
    const QList<Expected> all{
        {"UtenteEti", QStringLiteral("Utente: "), 567, 283.5},
        {"utente", QStringLiteral("D’Angelo Niccolò"), 2142, 283.5},
        {"istruttoreEti", QStringLiteral("Istruttore: "), 567, 658.5},
        {"Istruttore", QStringLiteral("Bianchi Zoë"), 2142, 658.5},
        {"periodoEti", QStringLiteral("Periodo: "), 567, 1003.5},
        {"Periodo", QStringLiteral("01/03/2026 - 22/03/2026"), 2142, 1003.5},
        {"FreqAllen", QStringLiteral("Frequenza di allenamento: 3 giorni la settimana"), 567, 1348.5},
        {"GGAllenEti", QStringLiteral("Giorni: "), 567, 1693.5},
        {"GGAllen", QStringLiteral("LUN - MER - VEN"), 2142, 1693.5},
    };
    for (const Expected& row : all) {
        const Element& e = mWindow.el(row.name);
        QVERIFY2(e.visible, row.name);
        QCOMPARE(e.text, row.text);
        QCOMPARE(e.left, row.left);
        QCOMPARE(e.top, row.top);
    }
    const Element& rule = mWindow.el("linea");
    QCOMPARE(rule.top, 2058.5);
    QCOMPARE(rule.left, 550.0);
    QCOMPARE(rule.width, 10440.0);
    QVERIFY(!mWindow.el("logoPalestra").visible);
    QVERIFY(!mWindow.el("intestazione").visible);
    QCOMPARE(mWindow.el("intestazione").text, QStringLiteral("Top"));
    QCOMPARE(mWindow.el("intestazione").left, 7680.0);
}

void TestHeaderFooter::headerRows_data() {
    QTest::addColumn<QString>("days");
    QTest::addColumn<bool>("showsDays");
    QTest::addColumn<bool>("showsFrequency");
    QTest::addColumn<QString>("frequency");
    const QString weekly = QStringLiteral("Frequenza di allenamento: 3 giorni la settimana");
    QTest::newRow("days") << "000000011" << true << true << weekly;
    QTest::newRow("no day ticked") << "000000000" << false << true << weekly;
    QTest::newRow("nothing stored") << "" << false << true << weekly;
    QTest::newRow("daily") << "101000000" << false << true << "Frequenza di allenamento: ad ogni seduta";
    QTest::newRow("none") << "010000000" << false << false << weekly;
}

void TestHeaderFooter::headerRows() {
    QFETCH(QString, days);
    // Rows that an earlier sheet hid come back.
    Page hiding = page(1);
    hiding.scheda->GGAllen = QStringLiteral("010000000");
    hiding.setCanvas(mWindow);
    Page one = page(1);
    one.scheda->GGAllen = days;
    one.setCanvas(mWindow);
    QTEST(mWindow.el("GGAllen").visible, "showsDays");
    QTEST(mWindow.el("GGAllenEti").visible, "showsDays");
    QTEST(mWindow.el("FreqAllen").visible, "showsFrequency");
    QTEST(mWindow.el("FreqAllen").text, "frequency");
    QCOMPARE(mWindow.el("linea").top, 2058.5); // a hidden row keeps its place
}

void TestHeaderFooter::footer() {
    page(1).setCanvas(mWindow);
    struct Expected {
        const char* name;
        double left;
        double top;
    };
    for (const Expected& row : {Expected{"linea2", 550, 14876}, Expected{"piepagina", 4582.5, 15366},
                                Expected{"info", 7087.5, 15336}, Expected{"LogoZentara", 9297.5, 14961},
                                Expected{"logoQD", 610.3, 15181}}) {
        QCOMPARE(mWindow.el(row.name).left, row.left);
        QCOMPARE(mWindow.el(row.name).top, row.top);
    }
    QVERIFY(!mWindow.el("info").visible);
    // The logos have their own ink, at both ends of the footer.
    const QImage printed = sheet::raster(mWindow.surface, 1);
    for (const char* name : {"LogoZentara", "logoQD"}) {
        const QRectF box = mWindow.el(name).rect();
        const QRect pixels = QRectF(box.topLeft() / 15, box.size() / 15).toAlignedRect();
        QImage white(pixels.size(), printed.format());
        white.fill(Qt::white);
        QVERIFY2(printed.copy(pixels) != white, name);
    }
}

void TestHeaderFooter::finalNotes_data() {
    QTest::addColumn<QString>("notes");
    QTest::addColumn<bool>("last");
    QTest::addColumn<bool>("visible");
    QTest::addColumn<bool>("whole");
    QTest::newRow("last sheet") << "Bere molto, è importante." << true << true << true;
    QTest::newRow("sheet before") << "Bere molto, è importante." << false << false << true;
    QTest::newRow("no notes") << "" << true << false << true;
    QTest::newRow("six lines") << "1\n2\n3\n4\n5\n6" << true << true << true;
    QTest::newRow("a field full") << QStringLiteral("Tornare fra tre settimane. ").repeated(1200) << true
                                  << true << false;
}

void TestHeaderFooter::finalNotes() {
    QFETCH(QString, notes);
    QFETCH(bool, last);
    page(10, last, notes).setCanvas(mWindow);
    const Element& e = mWindow.el("NoteFinali");
    QTEST(e.visible, "visible");
    QCOMPARE(e.text, notes);
    if (!last)
        return;
    QCOMPARE(e.left, 510.0);
    QCOMPARE(e.top, 13778.1);
    const FittedText fitted(e);
    QTEST(!fitted.isCut(), "whole");
    QVERIFY(fitted.bounds().bottom() < mWindow.el("linea2").top);
}

void TestHeaderFooter::gymLogo_data() {
    QTest::addColumn<QSize>("pixels");
    QTest::addColumn<QRectF>("box");
    // Reduced to 2300 twips and centred in that square at 8505, 170.1.
    QTest::newRow("small") << QSize(60, 40) << QRectF(9205, 1020.1, 900, 600);
    QTest::newRow("wide") << QSize(400, 200) << QRectF(8505, 745.1, 2300, 1150);
    QTest::newRow("high") << QSize(200, 400) << QRectF(9080, 170.1, 1150, 2300);
}

void TestHeaderFooter::gymLogo() {
    QFETCH(QSize, pixels);
    const QString stored = mProgram->folder() + QStringLiteral("\\images\\Il mio logo.BMP");
    QVERIFY(disegni::writeFigure(mProgram->folder() + QStringLiteral("/images/il mio logo.bmp"), pixels));
    mProgram->setLogo(stored);
    Page one = page(1);
    // Twice: the second composition starts from the picture's own size again.
    one.setCanvas(mWindow);
    one.setCanvas(mWindow);
    const Element& logo = mWindow.el("logoPalestra");
    QVERIFY(logo.visible);
    QTEST(logo.rect(), "box");
    mProgram->setLogo(QString());
    one.setCanvas(mWindow);
    QVERIFY(!logo.visible);
}

void TestHeaderFooter::logoOfAMovedFolder() {
    QVERIFY(disegni::writeFigure(mProgram->folder() + QStringLiteral("/images/logo.png"), {60, 40}));
    const QString here = mProgram->folder() + QStringLiteral("/images/logo.png");
    QCOMPARE(percorsoLogo(QStringLiteral("D:\\Palestra\\Quiverdeck\\Images\\LOGO.png")), here);
    QCOMPARE(percorsoLogo(QStringLiteral("/vecchia/cartella/images/logo.png")), here);
    QVERIFY(!QFileInfo::exists(percorsoLogo(QStringLiteral("/vecchia/cartella/logo.png"))));
    mProgram->setLogo(QStringLiteral("/vecchia/cartella/images/altro.png"));
    try {
        page(1).setCanvas(mWindow);
        QFAIL("a missing logo was not reported");
    } catch (const runtime::Error& error) {
        QCOMPARE(error.number(), int(runtime::FileNotFound));
    }
}

QTEST_MAIN(TestHeaderFooter)
#include "test_header_footer.moc"
