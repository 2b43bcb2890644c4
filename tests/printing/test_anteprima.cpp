#include "ProgrammaDiProva.h"
#include "core/variabiliGlobali.h"
#include "platform/toolkit/Application.h"
#include "platform/toolkit/ScrollBar.h"
#include "platform/toolkit/StatusBar.h"
#include "printing/MisureAnteprima.h"
#include "printing/PrinterCanvas.h"
#include "support/Errors.h"
#include "support/FakeControls.h"
#include "support/ScriptedBoxes.h"
#include "support/ScriptedDialogs.h"
#include "support/Suite.h"
#include "support/WindowChecks.h"
#include "support/WindowPage.h"

#include <QFile>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace {

qsizetype pdfPages(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return -1;
    return QString::fromLatin1(file.readAll()).count(QRegularExpression(u"/Type /Page\\b(?!s)"_s));
}

PrinterCanvas& open(qint32 card) {
    variabiliGlobali::idSchedaSelezionata = card;
    PrinterCanvas& window = PrinterCanvas::comune();
    window.show();
    return window;
}

QString page(const PrinterCanvas& window) {
    return window.findChild<toolkit::StatusBar*>(u"StatusBar1"_s)->panel(u"info"_s);
}

} // namespace

class TestAnteprima : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup() {
        if (PrinterCanvas::esiste())
            PrinterCanvas::comune().unload();
        toolkit::Application::purge();
        QVERIFY(boxes.satisfied());
    }

    void measures_data() {
        QTest::addColumn<QSizeF>("size");
        // The bar's left and height, its maximum and both steps (0: it keeps its range), the page's left.
        QTest::addColumn<QList<double>>("measures");
        using Measures = QList<double>;
        QTest::newRow("1024 x 768") << QSizeF(15360, 11420) << Measures{15005, 10120, 5556, 278, 556, 2010};
        QTest::newRow("narrower than the page")
            << QSizeF(9000, 9000) << Measures{8645, 7700, 7976, 399, 798, 0};
        QTest::newRow("one twip short") << QSizeF(15360, 16975) << Measures{15005, 15675, 1, 0, 0, 2010};
        QTest::newRow("the whole page shows")
            << QSizeF(15360, 16976) << Measures{15005, 15676, 0, 0, 0, 2010};
    }
    void measures() {
        QFETCH(QSizeF, size);
        const auto found = misuraAnteprima(size.width(), size.height(), 900, 255, 11340, 15876);
        const auto range = found.corsa.value_or(decltype(found.corsa)::value_type{});
        QTEST(QList<double>({found.barLeft, found.barHeight, double(range.Max), double(range.SmallChange),
                             double(range.LargeChange), found.canvasLeft}),
              "measures");
        QCOMPARE(errorOf([] { misuraAnteprima(100, 100, 0, 255, 11340, 33000); }), 6);
    }

    void pagingStopsAtBothEnds() {
        PrinterCanvas& window = open(program.storedCard(11));
        const WindowPage form(window);
        QCOMPARE(page(window), u"Pagina 1/2"_s);
        form.press(u"PagPrec"_s);
        QCOMPARE(page(window), u"Pagina 1/2"_s);
        auto& bar = form.find<toolkit::ScrollBar>(u"VScroll1"_s);
        bar.setValue(bar.maximum());
        const int lowest = form.widget(u"canvas"_s).y();
        QVERIFY2(lowest < 0, "the page follows the bar");
        const int left = form.widget(u"canvas"_s).x();
        form.press(u"PagSucc"_s);
        QCOMPARE(page(window), u"Pagina 2/2"_s);
        QCOMPARE(form.widget(u"canvas"_s).pos(), QPoint(left, 0));
        form.press(u"PagSucc"_s);
        QCOMPARE(page(window), u"Pagina 2/2"_s);
        QCOMPARE(cutTexts(window), QStringList());
        form.press(u"esci"_s);
        QVERIFY(!PrinterCanvas::esiste());
    }

    void anEmptyCardHasNothingToPrint() {
        ScriptedPrinterDialog printer;
        boxes.expect(host::Icon::Critical, u"Nessun esercizio caricato in questa scheda!"_s);
        const WindowPage form(open(program.storedCard(0)));
        form.press(u"Stampa"_s);
        form.press(u"PagSucc"_s);
        QCOMPARE(printer.calls, 0);
    }

    void printing_data() {
        QTest::addColumn<int>("from");
        QTest::addColumn<int>("to");
        QTest::addColumn<int>("copies");
        QTest::addColumn<int>("sheets");
        QTest::addColumn<QString>("shown");
        QTest::newRow("all") << 0 << 0 << 1 << 2 << "Pagina 2/2";
        QTest::newRow("three of each") << 0 << 0 << 3 << 6 << "Pagina 2/2";
        QTest::newRow("the first alone") << 1 << 1 << 1 << 1 << "Pagina 1/2";
        QTest::newRow("the second twice") << 2 << 2 << 2 << 2 << "Pagina 2/2";
    }
    void printing() {
        QFETCH(int, from);
        QFETCH(int, to);
        QFETCH(int, copies);
        ScriptedPrinterDialog printer;
        QTemporaryDir folder;
        printer.pdf = folder.filePath(u"scheda d’allenamento.pdf"_s);
        printer.from = from;
        printer.to = to;
        printer.copies = copies;
        PrinterCanvas& window = open(program.storedCard(11));
        WindowPage(window).press(u"Stampa"_s);
        QTEST(static_cast<int>(pdfPages(printer.pdf)), "sheets");
        QTEST(page(window), "shown"); // the last printed sheet stays on show
        QCOMPARE(printer.asked.maximum, 2);
        QVERIFY2(printer.asked.proposedFile.endsWith(u".pdf"_s), qPrintable(printer.asked.proposedFile));
        QVERIFY2(!printer.asked.proposedFile.contains(u'/'), qPrintable(printer.asked.proposedFile));
    }

    void aCancelIsSilentAndAnErrorIsTold() {
        ScriptedPrinterDialog printer;
        const WindowPage form(open(program.storedCard(3)));
        form.press(u"Stampa"_s); // dismissed
        QCOMPARE(printer.calls, 1);
        printer.pdf = program.folder() + u"/manca/scheda.pdf"_s;
        boxes.expectBeginning(host::Icon::None, u"La stampa non è riuscita"_s);
        form.press(u"Stampa"_s);
        QVERIFY(form.isVisible(u"canvas"_s));
    }

    void theHandDragsThePage_data() {
        QTest::addColumn<QPoint>("from"); // on the sheet, pixels
        QTest::addColumn<Qt::MouseButton>("button");
        QTest::addColumn<bool>("moves");
        const QPoint paper(10, 1000);
        QTest::newRow("bare paper") << paper << Qt::LeftButton << true;
        QTest::newRow("right button") << paper << Qt::RightButton << false;
        QTest::newRow("the athlete's name is inert") << QPoint(150, 25) << Qt::LeftButton << false;
    }
    void theHandDragsThePage() {
        QFETCH(QPoint, from);
        QFETCH(Qt::MouseButton, button);
        FakeCursor cursor;
        const WindowPage form(open(program.storedCard(4)));
        QWidget& canvas = form.widget(u"canvas"_s);
        auto& bar = form.find<toolkit::ScrollBar>(u"VScroll1"_s);
        QVERIFY(bar.maximum() > 400);
        const auto move = [&](int y, Qt::MouseButtons buttons) {
            cursor.at = QPoint(0, y);
            const QPointF spot(from);
            QMouseEvent event(QEvent::MouseMove, spot, canvas.mapToGlobal(spot), Qt::NoButton, buttons,
                              Qt::NoModifier);
            QCoreApplication::sendEvent(&canvas, &event);
        };
        move(500, Qt::NoButton);
        QTest::mousePress(&canvas, button, {}, from);
        move(490, button);
        QTEST(bar.value() == 400, "moves");          // 10 pixels up are 400 twips on
        for (const int pastTheEnd : {2000, -2000}) { // dropped, not clamped
            move(pastTheEnd, button);
            QTEST(bar.value() == 400, "moves");
        }
        QTest::mouseRelease(&canvas, button, {}, from);
    }

private:
    ProgrammaDiProva program;
    ScriptedBoxes boxes;
};

QUIVERDECK_TEST(TestAnteprima)
#include "test_anteprima.moc"
