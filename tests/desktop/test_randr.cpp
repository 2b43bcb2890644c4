#include "desktop/RandR.h"

#include <QTest>

#include <cstdlib>

// Runs inside a server of its own at 800 x 600, see in_xephyr; the tests' own server may not change its mode.

class TestRandR : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void changesTheModeAndBack() {
        const RandR screen;
        host::DisplayMode before;
        QVERIFY(screen.read(before));
        QCOMPARE(before.width, 800);
        QCOMPARE(before.height, 600);
        host::DisplayMode wide = before;
        wide.width = 1024;
        wide.height = 768;
        QVERIFY(screen.set(wide));
        host::DisplayMode after;
        QVERIFY(RandR().read(after));
        QCOMPARE(after.width, 1024);
        QCOMPARE(after.height, 768);
        QCOMPARE(after.bits, before.bits);
        QVERIFY(screen.set(before));
        QVERIFY(RandR().read(after));
        QCOMPARE(after.width, 800);
    }

    void refusesWhatTheServerDoesNotOffer() {
        const RandR screen;
        host::DisplayMode mode;
        QVERIFY(screen.read(mode));
        const int depth = mode.bits;
        mode.width = 1234;
        QVERIFY(!screen.set(mode));
        mode.width = 1024;
        mode.height = 768;
        mode.bits = depth == 8 ? 16 : 8;
        QVERIFY(!screen.set(mode));
        QVERIFY(screen.read(mode));
        QCOMPARE(mode.width, 800);
    }

    void withoutAServer() {
        const QByteArray display = qgetenv("DISPLAY");
        qputenv("DISPLAY", ":9999");
        host::DisplayMode mode;
        const RandR nowhere;
        QVERIFY(!nowhere.read(mode));
        QVERIFY(!nowhere.set({1024, 768, 24, 0}));
        qputenv("DISPLAY", display);
    }
};

QTEST_GUILESS_MAIN(TestRandR)
#include "test_randr.moc"
