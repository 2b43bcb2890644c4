// One sheet composed: where everything stands, what shows, and that the way there does not matter.

#include "PageProbe.h"
#include "ProgrammaDiProva.h"
#include "disegni.h"
#include "finestraFinta.h"
#include "fogli.h"

#include "platform/runtime/Error.h"
#include "printing/FittedText.h"
#include "printing/Painting.h"

#include <QTest>

using sheet::Element;
using sheet::FittedText;
using namespace fogli;

class TestPage : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { mProgram.reset(); }
    void grid_data();
    void grid();
    void margins();
    void oneBlock();
    void blockKeepsItsArrangement();
    void exerciseTexts();
    void longValues_data();
    void longValues();
    void freeExercise();
    void blockIsResetOnReuse();
    void orderOfVisitsDoesNotMatter();
    void missingFigure();
    void fixedTextsFit();
    void rasterReducedIsThePreview();

private:
    std::unique_ptr<ProgrammaDiProva> mProgram;
    FinestraFinta mWindow;
};

void TestPage::init() {
    mProgram = std::make_unique<ProgrammaDiProva>();
    mWindow = FinestraFinta();
}

/// Worked by hand: the grid has 23.05 cm (13069.35 twips) to spread over, 20.85 (11821.95) with final notes;
/// a quarter of what the frames leave goes above, half into the gaps, a lone row is centred.
void TestPage::grid_data() {
    QTest::addColumn<int>("exercises");
    QTest::addColumn<bool>("last");
    QTest::addColumn<bool>("notes");
    QTest::addColumn<QList<double>>("tops");
    QTest::addColumn<double>("lastLeft");

    const double right = 5912.1;
    const double middle = 3211.3;
    using Tops = QList<double>;
    QTest::newRow("1") << 1 << true << false << Tops{7403.325} << middle;
    QTest::newRow("1, notes") << 1 << true << true << Tops{6779.625} << middle;
    QTest::newRow("2") << 2 << true << false << Tops{7403.325} << right;
    QTest::newRow("2, notes") << 2 << true << true << Tops{6779.625} << right;
    QTest::newRow("3") << 3 << true << false << Tops{4135.9875, 10727.3625} << middle;
    QTest::newRow("3, notes") << 3 << true << true << Tops{3824.1375, 9791.8125} << middle;
    QTest::newRow("5") << 5 << true << false << Tops{3592.2375, 7460.025, 11327.8125} << middle;
    QTest::newRow("5, notes") << 5 << true << true << Tops{3280.3875, 6836.325, 10392.2625} << middle;
    const Tops full{2504.7375, 5010.73125, 7516.725, 10022.71875, 12528.7125};
    const Tops fullWithNotes{1956.15, 4187.85, 6419.55, 8651.25, 10882.95};
    QTest::newRow("9") << 9 << true << false << full << middle;
    QTest::newRow("9, notes") << 9 << true << true << fullWithNotes << middle;
    QTest::newRow("10") << 10 << true << false << full << right;
    QTest::newRow("10, notes") << 10 << true << true << fullWithNotes << right;
    QTest::newRow("10 of more, notes to come") << 10 << false << true << full << right;
}

void TestPage::grid() {
    QFETCH(int, exercises);
    QFETCH(bool, last);
    QFETCH(bool, notes);
    QFETCH(QList<double>, tops);
    QFETCH(double, lastLeft);
    page(exercises, last, notes ? QStringLiteral("Bere molto.") : QString()).setCanvas(mWindow);

    for (int k = 0; k < 10; ++k) {
        const Element& frame = mWindow.el("cornice", k);
        QCOMPARE(frame.visible, k < exercises);
        QCOMPARE(mWindow.el("figura", k).visible, k < exercises);
        if (k >= exercises)
            continue;
        QCOMPARE(frame.top, tops.at(k / 2));
        const double expected = k == exercises - 1 ? lastLeft : (k % 2 == 0 ? 510.3 : 5912.1);
        QVERIFY2(std::abs(frame.left - expected) < 1e-6, qPrintable(QString::number(frame.left)));
        QCOMPARE(frame.width, 5175.0);
        QCOMPARE(frame.height, 2175.0);
    }
}

void TestPage::margins() {
    Page lone = page(9, true, QStringLiteral("Note"));
    lone.setCanvas(mWindow);
    const PageProbe probe{lone};
    QCOMPARE(probe.margineSinistro(), 0.9 + 5402 / 2.0 / 567); // ties to even of 5401.8: about 5.66 cm
    QCOMPARE(probe.margineSuperiore(), 3.45);
    QCOMPARE(probe.distanzaRighe(), 0.1);
    // The values start afresh each time, whatever the last sheet left in them.
    lone.esercizi.Remove(1);
    probe.centraOrizzontale();
    probe.centraVerticale();
    QCOMPARE(probe.margineSinistro(), 0.9);
    QCOMPARE(probe.margineSuperiore(), 3.45 + (11821.95 - 4 * 2175) / 4 / 567);
    QCOMPARE(probe.distanzaRighe(), 0.1 + (11821.95 - 4 * 2175) / 2 / 3 / 567);
}

void TestPage::oneBlock() {
    Page one = page(1);
    one.setCanvas(mWindow);
    const PageProbe probe{one};
    const QRectF other = mWindow.el("figura", 3).rect();
    probe.spostaBlocco(7, 1000, 2000);
    QCOMPARE(mWindow.el("cornice", 7).rect().topLeft(), QPointF(2000, 1000));
    QCOMPARE(mWindow.el("figura", 7).rect().topLeft(), QPointF(2150, 1090));
    QCOMPARE(mWindow.el("recuperoEti", 7).rect().topLeft(), QPointF(5510, 1825));
    QCOMPARE(mWindow.el("figura", 3).rect(), other);
    probe.mostraBlocco(7, true);
    QVERIFY(mWindow.el("serieEti", 7).visible && mWindow.el("cornice", 7).visible);
    QVERIFY(!mWindow.el("serieEti", 6).visible);
    probe.mostraBlocco(7, false);
    for (const Element& e : mWindow.surface.elements())
        QVERIFY2(e.index != 7 || !e.visible, qPrintable(e.name));
}

void TestPage::blockKeepsItsArrangement() {
    page(3).setCanvas(mWindow);
    for (int k = 0; k < 3; ++k) {
        const Element& frame = mWindow.el("cornice", k);
        const auto isAt = [&](const char* name, const QRectF& box) {
            const QRectF is = mWindow.el(name, k).rect().translated(-frame.left, -frame.top);
            return (is.topLeft() - box.topLeft()).manhattanLength() < 1e-6 && is.size() == box.size();
        };
        QVERIFY(isAt("nprog", {180, 120, 255, 255}));
        QVERIFY(isAt("figura", {150, 90, 2280, 1995}));
        QVERIFY(isAt("durata", {3210, 120, 1845, 255}));
        QVERIFY(isAt("frequenza", {3495, 345, 1560, 255}));
        QVERIFY(isAt("ampiezza", {3465, 570, 1590, 255}));
        QVERIFY(isAt("serie", {3060, 825, 375, 255}));
        QVERIFY(isAt("recupero", {4425, 825, 630, 255}));
        QVERIFY(isAt("modalita", {2520, 1080, 2535, 480}));
        // Under the mode, not where it was designed.
        QVERIFY(isAt("note", {2520, 1530, 2535, 600}));
    }
}

void TestPage::exerciseTexts() {
    Page second = page(0);
    second.esercizi.Add(exercise(11));
    second.esercizi.Add(exercise(12));
    second.esercizi.Item(2)->note.clear();
    second.esercizi.Item(2)->peso.clear();
    second.esercizi.Item(2)->recuperoMin = 0;
    second.esercizi.Item(2)->recuperoSec = 5;
    second.setCanvas(mWindow);
    QCOMPARE(mWindow.el("nprog", 0).text, QStringLiteral("11"));
    QCOMPARE(mWindow.el("durata", 0).text, QStringLiteral("45s"));
    QCOMPARE(mWindow.el("frequenza", 0).text, QStringLiteral("35Hz"));
    QCOMPARE(mWindow.el("ampiezza", 0).text, QStringLiteral("H"));
    QCOMPARE(mWindow.el("serie", 0).text, QStringLiteral("3"));
    QCOMPARE(mWindow.el("recupero", 0).text, QStringLiteral("01:90"));
    QCOMPARE(mWindow.el("modalita", 0).text, QStringLiteral("Modalità: Dinamico a carico aggiuntivo 12 kg"));
    QCOMPARE(mWindow.el("note", 0).text, QStringLiteral("Note: Schiena dritta"));
    QCOMPARE(mWindow.el("recupero", 1).text, QStringLiteral("00:05"));
    QCOMPARE(mWindow.el("modalita", 1).text, QStringLiteral("Modalità: Dinamico a carico aggiuntivo "));
    QCOMPARE(mWindow.el("note", 1).text, QStringLiteral("Note: "));
    QVERIFY(!mWindow.el("figura", 0).picture.isNull());
}

void TestPage::longValues_data() {
    QTest::addColumn<QString>("mode");
    QTest::addColumn<QString>("weight");
    QTest::addColumn<bool>("whole");
    for (const char* mode : {"Statico a carico naturale", "Statico a carico aggiuntivo",
                             "Dinamico a carico naturale", "Dinamico a carico aggiuntivo", "Combinata"}) {
        QTest::newRow(mode) << QString::fromUtf8(mode) << QString() << true;
        QTest::addRow("%s, weight", mode) << QString::fromUtf8(mode) << QStringLiteral("127,5 kg") << true;
    }
    QTest::newRow("a phrase for a weight")
        << QStringLiteral("Dinamico a carico aggiuntivo")
        << QStringLiteral("manubri da 10 kg e cintura zavorrata da 20 kg") << true;
    QTest::newRow("a sentence for a weight")
        << QStringLiteral("Combinata") << QStringLiteral("a scelta dell’atleta, ").repeated(20) << false;
}

void TestPage::longValues() {
    QFETCH(QString, mode);
    QFETCH(QString, weight);
    Page one = page(1);
    one.esercizi.Item(1)->modalita = mode;
    one.esercizi.Item(1)->peso = weight;
    one.setCanvas(mWindow);
    const FittedText fitted(mWindow.el("modalita"));
    QTEST(!fitted.isCut(), "whole");
    QVERIFY(fitted.bounds().bottom() <= mWindow.el("note").top + 1);
}

void TestPage::freeExercise() {
    Page mixed = page(2);
    const QString text = QStringLiteral("Corsa lenta, poi allungamento. ").repeated(60);
    mixed.esercizi.Add(freeText(3, text));
    mixed.setCanvas(mWindow);
    const Element& frame = mWindow.el("cornice", 2);
    const Element& note = mWindow.el("note", 2);
    QCOMPARE(frame.top, 10727.3625); // counts in the grid like any other
    QCOMPARE(mWindow.el("nprog", 2).text, QStringLiteral("3"));
    QCOMPARE(note.text, text);
    const QRectF expected(frame.left + 150, frame.top + 405, 4875, 1875);
    QVERIFY((note.rect().topLeft() - expected.topLeft()).manhattanLength() < 1e-6);
    QCOMPARE(note.rect().size(), expected.size());
    QVERIFY(frame.visible && note.visible && mWindow.el("nprog", 2).visible);
    for (const char* hidden : {"figura", "durataEti", "durata", "frequenzaEti", "frequenza", "ampiezzaEti",
                               "ampiezza", "serieEti", "serie", "recuperoEti", "recupero", "modalita"})
        QVERIFY2(!mWindow.el(hidden, 2).visible, hidden);
    const FittedText fitted(note);
    QVERIFY(fitted.isCut());
    QVERIFY(frame.rect().contains(fitted.bounds()));
}

void TestPage::blockIsResetOnReuse() {
    Page plain = page(1);
    plain.setCanvas(mWindow);
    const QString before = mWindow.shown();
    Page freeOnly = page(0);
    freeOnly.esercizi.Add(freeText(1, QStringLiteral("Riposo")));
    freeOnly.setCanvas(mWindow);
    QVERIFY(mWindow.shown() != before);
    plain.setCanvas(mWindow);
    QCOMPARE(mWindow.shown(), before);
}

void TestPage::orderOfVisitsDoesNotMatter() {
    const QString notes = QStringLiteral("Note finali");
    QList<Page> sheets{page(10, false, notes), page(9, false, notes), page(3, true, notes)};
    sheets[1].esercizi.Add(freeText(20, QStringLiteral("Libero")));
    QStringList alone;
    for (Page& one : sheets) {
        mWindow = FinestraFinta();
        one.setCanvas(mWindow);
        alone << mWindow.shown();
    }
    for (const int visited : {2, 0, 1, 2, 1, 0, 0}) {
        sheets[visited].setCanvas(mWindow);
        QCOMPARE(mWindow.shown(), alone.at(visited));
    }
}

void TestPage::missingFigure() {
    Page one = page(1);
    one.esercizi.Item(1)->id_fig = ProgrammaDiProva::figuraSenzaFile;
    try {
        one.setCanvas(mWindow);
        QFAIL("a missing figure was not reported");
    } catch (const runtime::Error& error) {
        QCOMPARE(error.number(), int(runtime::FileNotFound));
    }
}

void TestPage::fixedTextsFit() {
    Page full = page(10, true, QStringLiteral("Note"));
    full.scheda->GGAllen = QStringLiteral("001111111");
    for (const auto& e : full.esercizi) {
        e->nprog += 9;
        e->serie = 255;
        e->recuperoMin = 59;
        e->modalita.clear();
        e->peso.clear();
    }
    full.setCanvas(mWindow);
    for (const Element& e : mWindow.surface.elements()) {
        if (e.kind != sheet::Kind::Text || !e.visible)
            continue;
        const FittedText fitted(e);
        const QByteArray what = e.name.toUtf8() + ": " + e.text.toUtf8();
        QVERIFY2(!fitted.isCut() && fitted.sizeScale() == 1 && fitted.widthScale() >= 0.85, what.constData());
        QVERIFY2(fitted.bounds().width() <= e.width + 1 && fitted.bounds().height() <= e.height,
                 what.constData());
    }
}

void TestPage::rasterReducedIsThePreview() {
    Page full = page(9, true, QStringLiteral("Bere molto. ").repeated(40));
    full.esercizi.Add(freeText(10, QStringLiteral("Perché no? Corsa, bicicletta e così via. ").repeated(6)));
    full.setCanvas(mWindow);
    const QImage preview = sheet::raster(mWindow.surface, 1);
    QImage printed = sheet::raster(mWindow.surface, 4);
    printed.setDevicePixelRatio(1);
    const QImage reduced = printed.scaled(preview.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    const double difference =
        disegni::greatestBlockDifference(preview, reduced.convertToFormat(preview.format()), 12);
    QVERIFY2(difference < 14, qPrintable(QString::number(difference)));
}

QTEST_MAIN(TestPage)
#include "test_page.moc"
