#include "SheetTest.h"

#include "core/variabiliGlobali.h"
#include "platform/toolkit/ScrollBar.h"
#include "platform/toolkit/StatusBar.h"
#include "printing/MisureAnteprima.h"
#include "printing/PrinterCanvas.h"
#include "support/FakeControls.h"
#include "support/Files.h"
#include "support/ScriptedDialogs.h"
#include "support/WindowChecks.h"
#include "support/WindowTest.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

class TestAnteprima : public WindowTest {
    Q_OBJECT

private Q_SLOTS:
    void measures() {
        // Height of the window; the bar's height, its maximum and both steps (0: it keeps its range).
        for (const auto& [height, bar] : {std::pair(11420, QList<double>{10120, 5556, 278, 556}),
                                          {16975, {15675, 1, 0, 0}}, // one twip short
                                          {16976, {15676, 0, 0, 0}}}) {
            const auto found = misuraAnteprima(15360, height, 900, 255, 11340, 15876);
            const auto [max, small, large] = found.corsa.value_or(MisureAnteprima::Corsa{});
            QCOMPARE(QList<double>({found.barHeight, double(max), double(small), double(large)}), bar);
            QCOMPARE(QPointF(found.barLeft, found.canvasLeft), QPointF(15005, 2010));
        }
        QCOMPARE(misuraAnteprima(9000, 9000, 900, 255, 11340, 15876).canvasLeft, 0); // narrower than the page
        QCOMPARE(errorOf([] { misuraAnteprima(100, 100, 0, 255, 11340, 33000); }), 6);
    }

    void pagingStopsAtBothEnds() {
        const WindowPage form(open(11));
        auto& bar = form.find<toolkit::ScrollBar>(u"VScroll1"_s);
        form.press(u"PagPrec"_s);
        QCOMPARE(shown(), u"Pagina 1/2"_s);
        bar.setValue(bar.maximum());
        QVERIFY2(form.widget(u"canvas"_s).y() < 0, "the page follows the bar");
        const int left = form.widget(u"canvas"_s).x();
        for (int press = 0; press < 2; ++press) {
            form.press(u"PagSucc"_s);
            QCOMPARE(shown(), u"Pagina 2/2"_s);
            QCOMPARE(form.widget(u"canvas"_s).pos(), QPoint(left, 0));
        }
        QCOMPARE(cutTexts(form.window()), QStringList());
        form.press(u"esci"_s);
        QVERIFY(!PrinterCanvas::esiste());
    }

    void anEmptyCardHasNothingToPrint() {
        ScriptedPrinterDialog printer;
        boxes().expect(Icon::Critical, u"Nessun esercizio caricato in questa scheda!"_s);
        const WindowPage form(open(0));
        form.press(u"Stampa"_s);
        form.press(u"PagSucc"_s);
        QCOMPARE(printer.calls, 0);
    }

    void printing() {
        ScriptedPrinterDialog printer;
        const WindowPage form(open(11));
        form.press(u"Stampa"_s); // dismissed
        printer.pdf = program().folder() + u"/manca/scheda.pdf"_s;
        boxes().expectBeginning(Icon::None, u"La stampa non è riuscita"_s);
        form.press(u"Stampa"_s);
        QCOMPARE(printer.calls, 2);
        QCOMPARE(printer.asked.maximum, 2);
        QVERIFY(printer.asked.proposedFile.endsWith(u".pdf") && !printer.asked.proposedFile.contains(u'/'));
        // from, to, copies, sheets of paper, the sheet that stays on show
        for (const auto& row : {u"0 0 1 2 Pagina 2/2"_s, u"0 0 3 6 Pagina 2/2"_s, u"1 1 1 1 Pagina 1/2"_s,
                                u"2 2 2 2 Pagina 2/2"_s}) {
            const QStringList cells = row.split(u' ');
            printer.pdf = program().folder() + u"/scheda d’allenamento.pdf"_s;
            printer.from = cells[0].toInt();
            printer.to = cells[1].toInt();
            printer.copies = cells[2].toInt();
            form.press(u"Stampa"_s);
            const QRegularExpression page(u"/Type /Page\\b(?!s)"_s);
            const auto sheets = QString::fromLatin1(readFile(printer.pdf)).count(page);
            QCOMPARE(cells.mid(0, 3).join(u' ') + u" %1 "_s.arg(sheets) + shown(), row);
        }
    }

    void theHandDragsThePage() {
        FakeCursor cursor;
        const WindowPage form(open(4));
        QWidget& canvas = form.widget(u"canvas"_s);
        auto& bar = form.find<toolkit::ScrollBar>(u"VScroll1"_s);
        QVERIFY(bar.maximum() > 400);
        const auto drag = [&](QPoint from, Qt::MouseButton button) {
            const auto move = [&](int y, Qt::MouseButtons buttons) {
                cursor.at = QPoint(0, y);
                QMouseEvent event(QEvent::MouseMove, from, canvas.mapToGlobal(from), Qt::NoButton, buttons,
                                  {});
                QCoreApplication::sendEvent(&canvas, &event);
            };
            move(500, Qt::NoButton);
            QTest::mousePress(&canvas, button, {}, from);
            for (const int y : {490, 2000, -2000}) // 10 pixels up are 400 twips on; past the ends: dropped
                move(y, button);
            QTest::mouseRelease(&canvas, button, {}, from);
            return bar.value();
        };
        const int still = bar.value();
        QCOMPARE(drag({150, 25}, Qt::LeftButton), still); // the athlete's name is inert
        QCOMPARE(drag({10, 1000}, Qt::RightButton), still);
        QCOMPARE(drag({10, 1000}, Qt::LeftButton), 400); // bare paper
    }

private:
    /// The preview of a new card with `exercises` lines.
    PrinterCanvas& open(int exercises) {
        variabiliGlobali::idSchedaSelezionata = fogli::storedCard(program(), exercises);
        PrinterCanvas::comune().show();
        return PrinterCanvas::comune();
    }
    static QString shown() {
        return PrinterCanvas::comune().findChild<toolkit::StatusBar*>(u"StatusBar1"_s)->panel(u"info"_s);
    }
};

QUIVERDECK_TEST(TestAnteprima)
#include "test_anteprima.moc"
