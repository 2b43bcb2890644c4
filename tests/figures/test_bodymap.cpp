#include "figures/BodyMap.h"
#include "platform/toolkit/Twips.h"
#include "support/WindowTest.h"

#include <QFrame>
#include <QSignalSpy>

using namespace Qt::StringLiterals;

class TestBodyMap : public WindowTest {
    Q_OBJECT

    std::unique_ptr<BodyMap> mappa_;

    /// Clicks a point in twips and gives what the map told.
    QString clic(int x, int y) const {
        QSignalSpy eventi(mappa_.get(), &BodyMap::Change);
        const QPoint punto(toolkit::toPixels(x), toolkit::toPixels(y));
        QWidget* sotto = mappa_->childAt(punto);
        if (sotto == nullptr)
            sotto = mappa_.get();
        QTest::mouseClick(sotto, Qt::LeftButton, {}, sotto->mapFrom(mappa_.get(), punto));
        QStringList codici;
        for (const auto& evento : eventi)
            codici += evento.first().toString();
        return codici.join(u',');
    }
    QColor colore() const { return mappa_->grab().toImage().pixelColor(60, 10); }

private Q_SLOTS:
    void init() {
        WindowTest::init();
        mappa_ = std::make_unique<BodyMap>(u"BodyMap1"_s, nullptr);
        mappa_->show();
    }
    void cleanup() {
        mappa_.reset();
        WindowTest::cleanup();
    }

    void punti_data() {
        QTest::addColumn<int>("x");
        QTest::addColumn<int>("y");
        QTest::addColumn<QString>("codice");
        QTest::newRow("the code of DEL differs from its name") << 330 << 750 << u"DAL"_s;
        QTest::newRow("Add") << 2370 << 1200 << u"ADD"_s;
        QTest::newRow("DOR over TRA") << 1335 << 690 << u"DOR"_s;
        QTest::newRow("ADU over QUA") << 2385 << 1845 << u"ADU"_s;
        QTest::newRow("PET over DEL") << 2520 << 637 << u"PET"_s;
        QTest::newRow("ICI over POL") << 1200 << 2137 << u"ICI"_s;
        QTest::newRow("beside all areas") << 30 << 30 << QString();
        QTest::newRow("below the feet") << 1200 << 2900 << QString();
        QTest::newRow("margin outside the picture") << 2830 << 3005 << QString();
    }
    void punti() {
        QFETCH(const int, x);
        QFETCH(const int, y);
        QTEST(clic(x, y), "codice");
    }

    void ogniClicSiDice() {
        QCOMPARE(clic(1200, 1200), u"ERE"_s);
        QCOMPARE(clic(1200, 1200), u"ERE"_s);
        QFrame* area = mappa_->findChild<QFrame*>(u"ERE_0"_s);
        QSignalSpy eventi(mappa_.get(), &BodyMap::Change);
        QTest::mouseClick(area, Qt::RightButton);
        QTest::mousePress(area, Qt::LeftButton);
        QTest::mouseRelease(area, Qt::LeftButton, {}, QPoint(-5, 3)); // let go outside
        QCOMPARE(eventi.count(), 0);
    }

    void bordiSoloNelDisegno() {
        QCOMPARE(mappa_->findChild<QFrame*>(u"POL_1"_s)->frameShape(), QFrame::Box);
        mappa_->onLoad();
        for (const QFrame* uno : mappa_->findChildren<QFrame*>())
            QCOMPARE(uno->frameShape(), QFrame::NoFrame);
    }

    void figureDellaMappa() {
        mappa_->onLoad();
        QVERIFY(alike(colore(), colourOfMap({})));
        mappa_->changeMuscle(u"DAL"_s);
        QVERIFY(alike(colore(), colourOfMap(u"DAL"_s)));
        mappa_->changeBackground({});
        QVERIFY(alike(colore(), colourOfMap(u"DAL"_s)));
        QCOMPARE(errorOf([&] { return mappa_->changeMuscle(u"DEL"_s), 0; }), int(runtime::FileNotFound));
        QVERIFY(alike(colore(), colourOfMap(u"DAL"_s)));
        mappa_->onLoad();
        QVERIFY(alike(colore(), colourOfMap({})));
    }
};

QUIVERDECK_TEST(TestBodyMap)
#include "test_bodymap.moc"
