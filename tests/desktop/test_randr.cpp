#include "desktop/RandR.h"

#include <QTest>

// Runs inside a server of its own at 800 x 600, see in_xephyr; the tests' own server may not change its mode.

class TestRandR : public QObject {
    Q_OBJECT

    static QSize present() {
        host::DisplayMode mode;
        return RandR().read(mode) ? QSize(mode.width, mode.height) : QSize();
    }

private Q_SLOTS:
    void changesTheModeAndBack() {
        const RandR screen;
        host::DisplayMode before;
        QVERIFY(screen.read(before));
        // What is not offered is refused.
        QVERIFY(!screen.set({1234, 600, before.bits, 0}) && !screen.set({1024, 768, before.bits + 8, 0}));
        QCOMPARE(present(), QSize(800, 600));
        QVERIFY(screen.set({1024, 768, before.bits, 0}));
        QCOMPARE(present(), QSize(1024, 768));
        QVERIFY(screen.set(before));
        QCOMPARE(present(), QSize(800, 600));
    }
};

QTEST_GUILESS_MAIN(TestRandR)
#include "test_randr.moc"
