// What stands around the exercises of a sheet: header, gym's logo, footer and final notes.

#include "SheetTest.h"

#include "printing/FittedText.h"
#include "printing/Painting.h"
#include "printing/percorsoLogo.h"

using namespace Qt::StringLiterals;

using sheet::Element;
using sheet::FittedText;
using namespace fogli;

class TestHeaderFooter : public SheetTest {
    Q_OBJECT

private Q_SLOTS:
    /// Worked by hand from the lengths in centimetres, 567 twips each, and the heights of the rows.
    void places_data() {
        QTest::addColumn<QString>("text"); // empty: not asked
        QTest::addColumn<QPointF>("at");
        const auto row = [](const char* name, const char* text, double left, double top) {
            QTest::newRow(name) << QString::fromUtf8(text) << QPointF(left, top);
        };
        row("utente", "D’Angelo Niccolò", 2142, 283.5);
        row("istruttoreEti", "Istruttore: ", 567, 658.5);
        row("Istruttore", "Bianchi Zoë", 2142, 658.5);
        row("Periodo", "01/03/2026 - 22/03/2026", 2142, 1003.5);
        row("FreqAllen", "Frequenza di allenamento: 3 giorni la settimana", 567, 1348.5);
        row("GGAllen", "LUN - MER - VEN", 2142, 1693.5);
        row("linea", "", 550, 2058.5);
        row("linea2", "", 550, 14876);
        row("piepagina", "", 4582.5, 15366);
        row("LogoZentara", "", 9297.5, 14961);
        row("logoQD", "", 610.3, 15181);
    }
    void places() {
        QFETCH(QString, text);
        QFETCH(QPointF, at);
        page(1).setCanvas(window);
        const Element& e = el(QTest::currentDataTag());
        QVERIFY(e.visible);
        QCOMPARE(e.rect().topLeft(), at);
        if (!text.isEmpty())
            QCOMPARE(e.text, text);
        for (const char* hidden : {"logoPalestra", "intestazione", "info"})
            QVERIFY2(!el(hidden).visible, hidden);
    }

    void headerRows_data() {
        QTest::addColumn<QString>("days");
        QTest::addColumn<bool>("showsDays");
        QTest::addColumn<bool>("showsFrequency");
        QTest::addColumn<QString>("frequency");
        const QString weekly = u"Frequenza di allenamento: 3 giorni la settimana"_s;
        QTest::newRow("days") << "000000011" << true << true << weekly;
        QTest::newRow("no day ticked") << "000000000" << false << true << weekly;
        QTest::newRow("daily") << "101000000" << false << true << "Frequenza di allenamento: ad ogni seduta";
        QTest::newRow("none") << "010000000" << false << false << weekly;
    }
    void headerRows() {
        QFETCH(QString, days);
        // Rows that an earlier sheet hid come back.
        Page hiding = page(1);
        hiding.scheda->GGAllen = u"010000000"_s;
        hiding.setCanvas(window);
        Page one = page(1);
        one.scheda->GGAllen = days;
        one.setCanvas(window);
        QTEST(el("GGAllen").visible, "showsDays");
        QTEST(el("GGAllenEti").visible, "showsDays");
        QTEST(el("FreqAllen").visible, "showsFrequency");
        QTEST(el("FreqAllen").text, "frequency");
        QCOMPARE(el("linea").top, 2058.5); // a hidden row keeps its place
    }

    void footerLogosHaveInk() {
        page(1).setCanvas(window);
        const QImage printed = sheet::raster(window.surface, 1);
        for (const char* name : {"LogoZentara", "logoQD"}) {
            const QRectF box = el(name).rect();
            const QRect pixels = QRectF(box.topLeft() / 15, box.size() / 15).toAlignedRect();
            QImage white(pixels.size(), printed.format());
            white.fill(Qt::white);
            QVERIFY2(printed.copy(pixels) != white, name);
        }
    }

    void finalNotes_data() {
        QTest::addColumn<QString>("notes");
        QTest::addColumn<bool>("last");
        QTest::addColumn<bool>("visible");
        QTest::addColumn<bool>("whole");
        QTest::newRow("sheet before") << "Bere molto, è importante." << false << false << true;
        QTest::newRow("no notes") << "" << true << false << true;
        QTest::newRow("six lines") << "1\n2\n3\n4\n5\n6" << true << true << true;
        QTest::newRow("a field full")
            << u"Tornare fra tre settimane. "_s.repeated(1200) << true << true << false;
    }
    void finalNotes() {
        QFETCH(QString, notes);
        QFETCH(bool, last);
        page(10, last, notes).setCanvas(window);
        const Element& e = el("NoteFinali");
        QTEST(e.visible, "visible");
        if (!e.visible)
            return;
        QCOMPARE(e.text, notes);
        QCOMPARE(e.rect().topLeft(), QPointF(510, 13778.1));
        const FittedText fitted(e);
        QTEST(!fitted.isCut(), "whole");
        QVERIFY(fitted.bounds().bottom() < el("linea2").top);
    }

    void gymLogo_data() {
        QTest::addColumn<QSize>("pixels");
        QTest::addColumn<QRectF>("box");
        // Reduced to 2300 twips and centred in that square at 8505, 170.1.
        QTest::newRow("small") << QSize(60, 40) << QRectF(9205, 1020.1, 900, 600);
        QTest::newRow("wide") << QSize(400, 200) << QRectF(8505, 745.1, 2300, 1150);
        QTest::newRow("high") << QSize(200, 400) << QRectF(9080, 170.1, 1150, 2300);
    }
    void gymLogo() {
        QFETCH(QSize, pixels);
        QVERIFY(disegni::writeFigure(program().folder() + u"/images/il mio logo.bmp"_s, pixels));
        program().setLogo(program().folder() + u"\\images\\Il mio logo.BMP"_s);
        Page one = page(1);
        // Twice: the second composition starts from the picture's own size again.
        one.setCanvas(window);
        one.setCanvas(window);
        QVERIFY(el("logoPalestra").visible);
        QTEST(el("logoPalestra").rect(), "box");
        program().setLogo(QString());
        one.setCanvas(window);
        QVERIFY(!el("logoPalestra").visible);
    }

    void logoOfAMovedFolder() {
        const QString here = program().folder() + u"/images/logo.png"_s;
        QVERIFY(disegni::writeFigure(here, {60, 40}));
        QCOMPARE(percorsoLogo(u"D:\\Palestra\\Quiverdeck\\Images\\LOGO.png"_s), here);
        QCOMPARE(percorsoLogo(u"/vecchia/cartella/images/logo.png"_s), here);
        QVERIFY(!QFileInfo::exists(percorsoLogo(u"/vecchia/cartella/logo.png"_s)));
        program().setLogo(u"/vecchia/cartella/images/altro.png"_s);
        QCOMPARE(errorOf([&] { page(1).setCanvas(window); }), int(runtime::FileNotFound));
    }
};

QUIVERDECK_TEST(TestHeaderFooter)
#include "test_header_footer.moc"
