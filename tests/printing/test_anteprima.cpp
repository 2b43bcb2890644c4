#include "ProgrammaDiProva.h"
#include "core/variabiliGlobali.h"
#include "platform/runtime/Error.h"
#include "platform/toolkit/ScrollBar.h"
#include "platform/toolkit/StatusBar.h"
#include "printing/MisureAnteprima.h"
#include "printing/Painting.h"
#include "printing/PrinterCanvas.h"
#include "support/ScriptedBoxes.h"
#include "support/ScriptedDialogs.h"
#include "support/ToolkitTest.h"
#include "support/WindowChecks.h"
#include "support/WindowPage.h"

#include <QFile>
#include <QRegularExpression>

namespace {

/// The mouse where the test puts it.
class FakeCursor : public host::Cursor {
public:
    FakeCursor() { host::setCursor(this); }
    ~FakeCursor() override { host::setCursor(nullptr); }
    FakeCursor(const FakeCursor&) = delete;
    FakeCursor& operator=(const FakeCursor&) = delete;
    QPoint position() override { return at; }

    QPoint at;
};

qsizetype pdfPages(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return -1;
    return QString::fromLatin1(file.readAll())
        .count(QRegularExpression(QStringLiteral("/Type /Page\\b(?!s)")));
}

PrinterCanvas& open(qint32 card) {
    variabiliGlobali::idSchedaSelezionata = card;
    PrinterCanvas& window = PrinterCanvas::comune();
    window.show();
    return window;
}

QString page(const PrinterCanvas& window) {
    return window.findChild<toolkit::StatusBar*>(QStringLiteral("StatusBar1"))->panel(QStringLiteral("info"));
}

} // namespace

class AnteprimaTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup() {
        if (PrinterCanvas::esiste())
            PrinterCanvas::comune().unload();
        toolkit::Application::purge();
        QVERIFY(boxes.satisfied());
    }

    void measures_data() {
        QTest::addColumn<double>("width");
        QTest::addColumn<double>("height");
        QTest::addColumn<double>("barLeft");
        QTest::addColumn<double>("barHeight");
        QTest::addColumn<int>("max"); // 0: the bar keeps its range
        QTest::addColumn<int>("small");
        QTest::addColumn<int>("large");
        QTest::addColumn<double>("left");
        QTest::newRow("1024 x 768") << 15360.0 << 11420.0 << 15005.0 << 10120.0 << 5556 << 278 << 556
                                    << 2010.0;
        QTest::newRow("narrower than the page")
            << 9000.0 << 9000.0 << 8645.0 << 7700.0 << 7976 << 399 << 798 << 0.0;
        QTest::newRow("as wide as the page")
            << 11340.0 << 9000.0 << 10985.0 << 7700.0 << 7976 << 399 << 798 << 0.0;
        QTest::newRow("one twip short") << 15360.0 << 16975.0 << 15005.0 << 15675.0 << 1 << 0 << 0 << 2010.0;
        QTest::newRow("the whole page shows")
            << 15360.0 << 16976.0 << 15005.0 << 15676.0 << 0 << 0 << 0 << 2010.0;
    }
    void measures() {
        QFETCH(double, width);
        QFETCH(double, height);
        const MisureAnteprima found = misuraAnteprima(width, height, 900, 255, 11340, 15876);
        QTEST(found.barLeft, "barLeft");
        QTEST(found.barHeight, "barHeight");
        QTEST(found.canvasLeft, "left");
        QTEST(found.corsa ? found.corsa->Max : 0, "max");
        QTEST(found.corsa ? found.corsa->SmallChange : 0, "small");
        QTEST(found.corsa ? found.corsa->LargeChange : 0, "large");
    }
    void measuresBeyond16Bits() {
        QVERIFY_THROWS_EXCEPTION(runtime::Error, misuraAnteprima(100, 100, 0, 255, 11340, 33000));
    }

    void pagingStopsAtBothEnds() {
        PrinterCanvas& window = open(program.storedCard(11));
        const WindowPage form(window);
        QCOMPARE(page(window), QStringLiteral("Pagina 1/2"));
        form.press(QStringLiteral("PagPrec"));
        QCOMPARE(page(window), QStringLiteral("Pagina 1/2"));
        auto& bar = form.find<toolkit::ScrollBar>(QStringLiteral("VScroll1"));
        bar.setValue(bar.maximum());
        const int lowest = form.widget(QStringLiteral("canvas")).y();
        QVERIFY2(lowest < 0, "the page follows the bar");
        const int left = form.widget(QStringLiteral("canvas")).x();
        form.press(QStringLiteral("PagSucc"));
        QCOMPARE(page(window), QStringLiteral("Pagina 2/2"));
        QCOMPARE(form.widget(QStringLiteral("canvas")).pos(), QPoint(left, 0));
        form.press(QStringLiteral("PagSucc"));
        QCOMPARE(page(window), QStringLiteral("Pagina 2/2"));
        QCOMPARE(cutTexts(window), QStringList());
        form.press(QStringLiteral("esci"));
        QVERIFY(!PrinterCanvas::esiste());
    }

    void anEmptyCardHasNothingToPrint() {
        ScriptedPrinterDialog printer;
        boxes.expect(host::Icon::Critical, QStringLiteral("Nessun esercizio caricato in questa scheda!"));
        const WindowPage form(open(program.storedCard(0)));
        form.press(QStringLiteral("Stampa"));
        form.press(QStringLiteral("PagSucc"));
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
        printer.pdf = folder.filePath(QStringLiteral("scheda d’allenamento.pdf"));
        printer.from = from;
        printer.to = to;
        printer.copies = copies;
        PrinterCanvas& window = open(program.storedCard(11));
        WindowPage(window).press(QStringLiteral("Stampa"));
        QTEST(static_cast<int>(pdfPages(printer.pdf)), "sheets");
        QTEST(page(window), "shown"); // the last printed sheet stays on show
        QCOMPARE(printer.asked.maximum, 2);
        QVERIFY2(printer.asked.proposedFile.endsWith(QStringLiteral(".pdf")),
                 qPrintable(printer.asked.proposedFile));
        QVERIFY2(!printer.asked.proposedFile.contains(u'/'), qPrintable(printer.asked.proposedFile));
    }

    void aCancelIsSilentAndAnErrorIsTold() {
        ScriptedPrinterDialog printer;
        const WindowPage form(open(program.storedCard(3)));
        form.press(QStringLiteral("Stampa")); // dismissed
        QCOMPARE(printer.calls, 1);
        printer.pdf = program.folder() + QStringLiteral("/manca/scheda.pdf");
        boxes.expectBeginning(host::Icon::None, QStringLiteral("La stampa non è riuscita"));
        form.press(QStringLiteral("Stampa"));
        QVERIFY(form.isVisible(QStringLiteral("canvas")));
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
        QWidget& canvas = form.widget(QStringLiteral("canvas"));
        auto& bar = form.find<toolkit::ScrollBar>(QStringLiteral("VScroll1"));
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
        QTEST(bar.value() == 400, "moves"); // 10 pixels up are 400 twips on
        move(2000, button);
        QTEST(bar.value() == 400, "moves"); // a step past the end is dropped, not clamped
        QTest::mouseRelease(&canvas, button, {}, from);
    }

private:
    ProgrammaDiProva program;
    ScriptedBoxes boxes;
};

QUIVERDECK_WINDOW_TEST_MAIN(AnteprimaTest)
#include "test_anteprima.moc"
