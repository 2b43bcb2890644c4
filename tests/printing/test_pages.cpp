// A stored card cut into sheets and paged through.

#include "ProgrammaDiProva.h"
#include "finestraFinta.h"

#include "platform/runtime/Error.h"
#include "printing/pages.h"

#include <QTest>

class TestPages : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { mProgram = std::make_unique<ProgrammaDiProva>(); }
    void cleanup() { mProgram.reset(); }
    void sheets_data();
    void sheets();
    void createAgain();
    void paging();

private:
    std::unique_ptr<ProgrammaDiProva> mProgram;
};

void TestPages::sheets_data() {
    QTest::addColumn<int>("exercises");
    QTest::addColumn<QList<int>>("sizes");
    QTest::newRow("0") << 0 << QList<int>{};
    QTest::newRow("1") << 1 << QList<int>{1};
    QTest::newRow("10") << 10 << QList<int>{10};
    QTest::newRow("11") << 11 << QList<int>{10, 1};
    QTest::newRow("20") << 20 << QList<int>{10, 10};
    QTest::newRow("34") << 34 << QList<int>{10, 10, 10, 4};
}

void TestPages::sheets() {
    QFETCH(int, exercises);
    QFETCH(QList<int>, sizes);
    FinestraFinta window;
    pages job(window);
    const qint32 key = mProgram->storedCard(exercises);
    job.createPages(key);
    QCOMPARE(job.pages_.Count(), int(sizes.size()));
    QCOMPARE(job.currentPage, std::int16_t(0));
    int number = 1;
    for (int p = 1; p <= job.pages_.Count(); ++p) {
        const Page& page = *job.pages_.Item(p);
        QCOMPARE(page.id_scheda, key);
        QCOMPARE(page.scheda, job.pages_.Item(1)->scheda);
        QCOMPARE(page.isLastPage, p == job.pages_.Count());
        QCOMPARE(page.esercizi.Count(), sizes.at(p - 1));
        for (const auto& line : page.esercizi)
            QCOMPARE(line->nprog, number++);
    }
}

void TestPages::createAgain() {
    FinestraFinta window;
    pages job(window);
    const qint32 longer = mProgram->storedCard(21);
    const qint32 shorter = mProgram->storedCard(2);
    job.createPages(longer);
    QCOMPARE(job.pages_.Count(), 3);
    job.createPages(shorter);
    QCOMPARE(job.pages_.Count(), 1);
    QCOMPARE(job.pages_.Item(1)->esercizi.Count(), 2);
    job.createPages(); // the key given before stands
    QCOMPARE(job.id_scheda, shorter);
    QCOMPARE(job.pages_.Count(), 1);
}

void TestPages::paging() {
    FinestraFinta window;
    pages job(window);
    job.createPages(mProgram->storedCard(11));
    job.OpenCanvas();
    QCOMPARE(window.el("info").text, QStringLiteral("Printed with: Quiver-Deck"));

    job.PreviewPage(2);
    QCOMPARE(job.currentPage, std::int16_t(2));
    QCOMPARE(window.firstPanel, QStringLiteral("Pagina 2/2"));
    QCOMPARE(window.el("piepagina").text, QStringLiteral("Pagina 2/2"));
    QCOMPARE(window.el("nprog", 0).text, QStringLiteral("11"));
    QVERIFY(!window.el("cornice", 1).visible);

    job.PreviewPage(1);
    QCOMPARE(window.el("piepagina").text, QStringLiteral("Pagina 1/2"));
    QCOMPARE(window.el("nprog", 9).text, QStringLiteral("10"));
    QVERIFY(window.el("cornice", 9).visible);
    QVERIFY_THROWS_EXCEPTION(runtime::Error, job.PreviewPage(3));
    QCOMPARE(job.currentPage, std::int16_t(1));
}

QTEST_MAIN(TestPages)
#include "test_pages.moc"
