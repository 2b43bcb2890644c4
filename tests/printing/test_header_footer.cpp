// What stands around the exercises of a sheet: header, gym's logo, footer and final notes.

#include "SheetTest.h"

#include "printing/percorsoLogo.h"

using namespace Qt::StringLiterals;
using sheet::Element;
using namespace fogli;

class TestHeaderFooter : public SheetTest {
    Q_OBJECT

private Q_SLOTS:
    /// Worked by hand from the lengths in centimetres, 567 twips each, and the heights of the rows.
    void places() {
        page(1).setCanvas(window);
        // name, left, top
        for (const auto& row : {u"utente 2142 283.5"_s, u"Istruttore 2142 658.5"_s, u"Periodo 2142 1003.5"_s,
                                u"FreqAllen 567 1348.5"_s, u"GGAllen 2142 1693.5"_s, u"linea 550 2058.5"_s,
                                u"linea2 550 14876"_s, u"piepagina 4582.5 15366"_s,
                                u"LogoZentara 9297.5 14961"_s, u"logoQD 610.3 15181"_s}) {
            const Element& e = window.surface.element(row.section(u' ', 0, 0));
            QVERIFY2(e.visible, qPrintable(row));
            QCOMPARE(u"%1 %2 %3"_s.arg(e.name).arg(e.left).arg(e.top), row);
        }
        QCOMPARE(el("utente").text, u"D’Angelo Niccolò"_s);
        QCOMPARE(el("Istruttore").text + el("Periodo").text, u"Bianchi Zoë01/03/2026 - 22/03/2026"_s);
        QCOMPARE(el("GGAllen").text, u"LUN - MER - VEN"_s);
        for (const char* hidden : {"logoPalestra", "intestazione", "info"})
            QVERIFY2(!el(hidden).visible, hidden);
    }

    void headerRows() {
        // Days, days shown, frequency shown. Each row that a sheet hides comes back on the next one.
        for (const auto& row : {u"000000011|SAB - DOM|3 giorni la settimana"_s, u"010000000||"_s,
                                u"000000000||3 giorni la settimana"_s, u"101000000||ad ogni seduta"_s,
                                u"000000011|SAB - DOM|3 giorni la settimana"_s}) {
            const QStringList cells = row.split(u'|');
            Page one = page(1);
            one.scheda->GGAllen = cells[0];
            one.setCanvas(window);
            QCOMPARE(el("GGAllen").visible, !cells[1].isEmpty());
            QCOMPARE(el("GGAllenEti").visible, !cells[1].isEmpty());
            QVERIFY(cells[1].isEmpty() || el("GGAllen").text == cells[1]);
            QCOMPARE(el("FreqAllen").visible, !cells[2].isEmpty());
            QVERIFY(el("FreqAllen").text.endsWith(cells[2]));
            QCOMPARE(el("linea").top, 2058.5); // a hidden row keeps its place
        }
    }

    void finalNotes() {
        const QString field = u"Tornare fra tre settimane. "_s.repeated(1200);
        for (const auto& [notes, cut] : {std::pair(u"1\n2\n3\n4\n5\n6"_s, false), {field, true}}) {
            page(10, true, notes).setCanvas(window);
            const Element& e = el("NoteFinali");
            const sheet::FittedText fitted(e);
            QVERIFY(e.visible && e.text == notes);
            QCOMPARE(e.rect().topLeft(), QPointF(510, 13778.1));
            QCOMPARE(fitted.isCut(), cut);
            QVERIFY(fitted.bounds().bottom() < el("linea2").top);
        }
        for (Page none : {page(10, false, field), page(10)}) {
            none.setCanvas(window);
            QVERIFY(!el("NoteFinali").visible);
        }
    }

    void gymLogo() {
        // Reduced to 2300 twips and centred in that square at 8505, 170.1.
        for (const auto& [pixels, box] : {std::pair(QSize(60, 40), QRectF(9205, 1020.1, 900, 600)),
                                          {{400, 200}, {8505, 745.1, 2300, 1150}},
                                          {{200, 400}, {9080, 170.1, 1150, 2300}}}) {
            givePicture(program(), u"il mio logo.bmp"_s, Qt::red, pixels);
            setLogo(program().folder() + u"\\images\\Il mio logo.BMP"_s);
            // Twice: the second composition starts from the picture's own size again.
            for (int time = 0; time < 2; ++time)
                page(1).setCanvas(window);
            QVERIFY(el("logoPalestra").visible);
            QCOMPARE(el("logoPalestra").rect(), box);
        }
        setLogo({});
        page(1).setCanvas(window);
        QVERIFY(!el("logoPalestra").visible);
    }

    void logoOfAMovedFolder() {
        const QString here = program().folder() + u"/images/logo.png"_s;
        givePicture(program(), u"logo.png"_s, Qt::red);
        QCOMPARE(percorsoLogo(u"D:\\Palestra\\Quiverdeck\\Images\\LOGO.png"_s), here);
        QCOMPARE(percorsoLogo(u"/vecchia/cartella/images/logo.png"_s), here);
        QVERIFY(!QFile::exists(percorsoLogo(u"/vecchia/cartella/logo.png"_s)));
        setLogo(u"/vecchia/cartella/images/altro.png"_s);
        QCOMPARE(errorOf([&] { page(1).setCanvas(window); }), int(runtime::FileNotFound));
    }

private:
    void setLogo(const QString& stored) const { sql(u"UPDATE palestra SET logo = '%1'"_s.arg(stored)); }
};

QUIVERDECK_TEST(TestHeaderFooter)
#include "test_header_footer.moc"
