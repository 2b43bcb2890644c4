#include "cards/EditorTest.h"
#include "platform/toolkit/StatusBar.h"
#include "printing/MisureAnteprima.h"
#include "printing/PrinterCanvas.h"
#include "support/FakeControls.h"
#include "support/Files.h"
#include "support/ScriptedDialogs.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

class TestAnteprima : public EditorTest {
    Q_OBJECT

private Q_SLOTS:
    void measures() {
        // Height of the window, the bar's maximum (0: it keeps its range).
        for (const auto& [height, maximum] : {std::pair(11420, 5556), {16975, 1}, {16976, 0}}) {
            const auto found = misuraAnteprima(15360, height, 900, 255, 11340, 15876);
            QCOMPARE(found.corsa.value_or(MisureAnteprima::Corsa{}).Max, maximum);
            QCOMPARE(QPointF(found.barLeft, found.canvasLeft), QPointF(15005, 2010));
        }
        QCOMPARE(misuraAnteprima(9000, 9000, 900, 255, 11340, 15876).canvasLeft, 0); // narrower than the page
        QCOMPARE(errorOf([] { misuraAnteprima(100, 100, 0, 255, 11340, 33000); }), 6);
    }

    void dragsAndPages() {
        const WindowPage form(open(11));
        const auto& bar = form.find<toolkit::ScrollBar>(u"VScroll1"_s);
        form.press(u"PagPrec"_s);
        QCOMPARE(shown(), u"Pagina 1/2"_s);
        QWidget& canvas = form.widget(u"canvas"_s);
        FakeCursor cursor;
        // The hand drags bare paper; the athlete's name is inert.
        for (const auto& [from, scrolled] : {std::pair(QPoint(150, 25), 0), {QPoint(10, 1000), 400}}) {
            for (const int y : {500, 490, 2000, -2000}) { // 10 pixels up are 400 twips on; beyond: dropped
                cursor.at = QPoint(0, y);
                QMouseEvent event(QEvent::MouseMove, from, canvas.mapToGlobal(from), Qt::NoButton,
                                  y == 500 ? Qt::NoButton : Qt::LeftButton, {});
                QCoreApplication::sendEvent(&canvas, &event);
                if (y == 500)
                    QTest::mousePress(&canvas, Qt::LeftButton, {}, from);
            }
            QTest::mouseRelease(&canvas, Qt::LeftButton, {}, from);
            QCOMPARE(bar.value(), scrolled);
        }
        QVERIFY2(canvas.y() < 0, "the page follows the bar");
        const int left = canvas.x();
        for (int press = 0; press < 2; ++press) {
            form.press(u"PagSucc"_s);
            QCOMPARE(shown(), u"Pagina 2/2"_s);
            QCOMPARE(canvas.pos(), QPoint(left, 0));
        }
    }

    void printing() {
        ScriptedPrinterDialog printer;
        boxes().expect(Icon::Critical, u"Nessun esercizio caricato in questa scheda!"_s);
        const WindowPage empty(open(0));
        empty.press(u"Stampa"_s);
        empty.press(u"PagSucc"_s);
        QCOMPARE(printer.calls, 0);
        empty.press(u"esci"_s);
        const WindowPage form(open(11));
        form.press(u"Stampa"_s); // dismissed
        printer.pdf = program().folder() + u"/manca/scheda.pdf"_s;
        boxes().expectBeginning(Icon::None, u"La stampa non è riuscita"_s);
        form.press(u"Stampa"_s);
        QCOMPARE(printer.asked.maximum, 2);
        QCOMPARE(printer.asked.proposedFile, u"Rossi Mario 02.11.2026-30.11.2026.pdf"_s);
        printer.pdf = program().folder() + u"/scheda d’allenamento.pdf"_s;
        for (const auto& [from, to, copies, sheets, last] :
             {std::tuple(0, 0, 1, 2, 2), {0, 0, 3, 6, 2}, {1, 1, 1, 1, 1}, {2, 2, 2, 2, 2}}) {
            printer.from = from;
            printer.to = to;
            printer.copies = copies;
            form.press(u"Stampa"_s);
            const QRegularExpression page(u"/Type /Page\\b(?!s)"_s);
            QCOMPARE(QString::fromLatin1(readFile(printer.pdf)).count(page), sheets);
            QCOMPARE(shown(), u"Pagina %1/2"_s.arg(last)); // the sheet that stays on show
        }
    }

private:
    /// The preview of a new card with `exercises` lines.
    PrinterCanvas& open(int exercises) {
        variabiliGlobali::idSchedaSelezionata = nuovaScheda(QList<int>(exercises, 1));
        PrinterCanvas::comune().show();
        return PrinterCanvas::comune();
    }
    static QString shown() {
        return PrinterCanvas::comune().findChild<toolkit::StatusBar*>(u"StatusBar1"_s)->panel(u"info"_s);
    }
};

QUIVERDECK_TEST(TestAnteprima)
#include "test_anteprima.moc"
