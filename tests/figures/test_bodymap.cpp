#include "figures/AreeCorpo.h"
#include "figures/BodyMap.h"
#include "platform/runtime/Error.h"
#include "platform/toolkit/Twips.h"
#include "support/ProgrammaConFigure.h"
#include "support/ToolkitTest.h"

#include <QFrame>
#include <QSignalSpy>

using namespace Qt::StringLiterals;

namespace {

/// Whether two colours are the same but for what JPEG makes of them.
bool simili(const QColor& a, const QColor& b) {
    return qAbs(a.red() - b.red()) < 12 && qAbs(a.green() - b.green()) < 12 && qAbs(a.blue() - b.blue()) < 12;
}

} // namespace

class TestBodyMap : public QObject {
    Q_OBJECT
private:
    std::unique_ptr<ProgrammaConFigure> programma_;
    std::unique_ptr<BodyMap> mappa_;

    /// Clicks a point in twips and gives what the map told.
    QString clic(int x, int y) const {
        QSignalSpy eventi(mappa_.get(), &BodyMap::Change);
        const QPoint punto(toolkit::toPixels(x), toolkit::toPixels(y));
        QWidget* sotto = mappa_->childAt(punto);
        if (sotto == nullptr) {
            sotto = mappa_.get();
        }
        QTest::mouseClick(sotto, Qt::LeftButton, {}, sotto->mapFrom(mappa_.get(), punto));
        QStringList codici;
        for (const auto& evento : eventi) {
            codici += evento.first().toString();
        }
        return codici.join(u',');
    }
    QColor colore() const { return mappa_->grab().toImage().pixelColor(60, 10); }

private Q_SLOTS:
    void initTestCase() { programma_ = std::make_unique<ProgrammaConFigure>(); }
    void init() {
        mappa_ = std::make_unique<BodyMap>(u"BodyMap1"_s, nullptr);
        mappa_->show();
    }
    void cleanup() {
        mappa_.reset();
        QVERIFY(programma_->boxes.satisfied());
    }
    void cleanupTestCase() { programma_.reset(); }

    void centri_data() {
        QTest::addColumn<int>("x");
        QTest::addColumn<int>("y");
        QTest::addColumn<QString>("codice");
        for (const AreaCorpo& area : areeCorpo()) {
            const int x = area.left + area.width / 2;
            const int y = area.top + area.height / 2;
            // The first area of the table that holds the point lies on top.
            for (const AreaCorpo& sopra : areeCorpo()) {
                if (x >= sopra.left && x < sopra.left + sopra.width && y >= sopra.top &&
                    y < sopra.top + sopra.height) {
                    QTest::addRow("%s %d", area.nome, area.indice)
                        << x << y << QString::fromLatin1(sopra.codice);
                    break;
                }
            }
        }
    }
    void centri() {
        QFETCH(const int, x);
        QFETCH(const int, y);
        QTEST(clic(x, y), "codice");
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
    void punti() { centri(); }

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

    void unTastoNonArriva() {
        QCOMPARE(mappa_->focusPolicy(), Qt::NoFocus);
        for (const QWidget* uno : mappa_->findChildren<QWidget*>()) {
            QCOMPARE(uno->focusPolicy(), Qt::NoFocus);
        }
    }

    void bordiSoloNelDisegno() {
        QCOMPARE(mappa_->findChild<QFrame*>(u"POL_1"_s)->frameShape(), QFrame::Box);
        mappa_->onLoad();
        for (const QFrame* uno : mappa_->findChildren<QFrame*>()) {
            QCOMPARE(uno->frameShape(), QFrame::NoFrame);
        }
    }

    void figureDellaMappa() {
        mappa_->onLoad();
        QVERIFY(simili(colore(), ProgrammaConFigure::coloreMappa({})));
        mappa_->changeMuscle(u"DAL"_s);
        QVERIFY(simili(colore(), ProgrammaConFigure::coloreMappa(u"DAL"_s)));
        mappa_->changeBackground({});
        QVERIFY(simili(colore(), ProgrammaConFigure::coloreMappa(u"DAL"_s)));
        try {
            mappa_->changeMuscle(u"DEL"_s);
            QFAIL("a code without a picture was marked");
        } catch (const runtime::Error& errore) {
            QCOMPARE(errore.number(), int(runtime::FileNotFound));
        }
        QVERIFY(simili(colore(), ProgrammaConFigure::coloreMappa(u"DAL"_s)));
        mappa_->onLoad();
        QVERIFY(simili(colore(), ProgrammaConFigure::coloreMappa({})));
    }

    void unaMappaPiuGrandeHaUnMargine() {
        const QRect prima = mappa_->findChild<QFrame*>(u"TRA_0"_s)->geometry();
        mappa_->resize(mappa_->size() * 2);
        QCOMPARE(mappa_->findChild<QFrame*>(u"TRA_0"_s)->geometry(), prima);
        QCOMPARE(mappa_->findChild<QFrame*>(u"Image1"_s)->size(), QSize(187, 199));
    }
};

QUIVERDECK_WINDOW_TEST_MAIN(TestBodyMap)
#include "test_bodymap.moc"
