// A stored card cut into sheets and paged through.

#include "SheetTest.h"

#include "printing/pages.h"

using namespace Qt::StringLiterals;

class TestPages : public SheetTest {
    Q_OBJECT

private Q_SLOTS:
    void sheets_data() {
        QTest::addColumn<QList<int>>("sizes");
        QTest::newRow("0") << QList<int>{};
        QTest::newRow("10") << QList<int>{10};
        QTest::newRow("11") << QList<int>{10, 1};
        QTest::newRow("34") << QList<int>{10, 10, 10, 4};
    }
    void sheets() {
        QFETCH(QList<int>, sizes);
        pages job(window);
        const qint32 key = program().storedCard(QByteArray(QTest::currentDataTag()).toInt());
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

    void createAgain() {
        pages job(window);
        const qint32 longer = program().storedCard(21);
        const qint32 shorter = program().storedCard(2);
        job.createPages(longer);
        QCOMPARE(job.pages_.Count(), 3);
        job.createPages(shorter);
        QCOMPARE(job.pages_.Count(), 1);
        QCOMPARE(job.pages_.Item(1)->esercizi.Count(), 2);
        job.createPages(); // the key given before stands
        QCOMPARE(job.id_scheda, shorter);
        QCOMPARE(job.pages_.Count(), 1);
    }

    void paging() {
        pages job(window);
        job.createPages(program().storedCard(11));
        job.OpenCanvas();
        QCOMPARE(el("info").text, u"Printed with: Quiver-Deck"_s);

        job.PreviewPage(2);
        QCOMPARE(job.currentPage, std::int16_t(2));
        QCOMPARE(window.firstPanel, u"Pagina 2/2"_s);
        QCOMPARE(el("piepagina").text, u"Pagina 2/2"_s);
        QCOMPARE(el("nprog", 0).text, u"11"_s);
        QVERIFY(!el("cornice", 1).visible);

        job.PreviewPage(1);
        QCOMPARE(el("piepagina").text, u"Pagina 1/2"_s);
        QCOMPARE(el("nprog", 9).text, u"10"_s);
        QVERIFY(el("cornice", 9).visible);
        QCOMPARE(errorOf([&] { job.PreviewPage(3); }), int(runtime::SubscriptOutOfRange));
        QCOMPARE(job.currentPage, std::int16_t(1));
    }
};

QUIVERDECK_TEST(TestPages)
#include "test_pages.moc"
