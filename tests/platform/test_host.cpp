#include "platform/host/InstalledCopy.h"
#include "platform/host/Process.h"
#include "platform/host/ProgramDirectory.h"
#include "platform/host/Services.h"
#include "platform/host/Settings.h"
#include "platform/host/SingleInstance.h"
#include "platform/host/Sound.h"
#include "support/RecordsTest.h"

#include <QDir>
#include <QFile>
#include <QSignalSpy>
#include <QThread>

using namespace Qt::StringLiterals;

namespace {

constexpr int patienceMs = 60000; // for another process or thread on a busy machine

/// A WAV file of `frames` 16-bit frames, with a block in front of the samples that has to be skipped.
QByteArray wave(quint16 encoding, quint16 bits, int frames) {
    const auto number = [](quint32 value, int bytes) {
        QByteArray result;
        for (int i = 0; i < bytes; ++i)
            result += static_cast<char>(value >> (8 * i));
        return result;
    };
    const QByteArray samples(qsizetype{frames} * 2 * (bits / 8), '\x80');
    const QByteArray body = QByteArray("WAVEfmt ") + number(16, 4) + number(encoding, 2) + number(2, 2) +
                            number(8000, 4) + number(8000U * 2 * (bits / 8), 4) + number(4, 2) +
                            number(bits, 2) + "LIST" + number(3, 4) + QByteArray("abc\0", 4) + "data" +
                            number(static_cast<quint32>(samples.size()), 4) + samples;
    return "RIFF" + number(static_cast<quint32>(body.size()), 4) + body;
}

} // namespace

class TestHost : public RecordsTest {
    Q_OBJECT
private Q_SLOTS:
    void init() {
        RecordsTest::init();
        touch(u"images/FolderXP.JPG"_s);
        touch(u"images/BODYMAP/Corpo_QUA.jpg"_s);
        touch(u"images/BODYMAP/uno.txt"_s);
        touch(u"images/BODYMAP/UNO.txt"_s);
    }

    void resolve_data() {
        QTest::addColumn<QString>("stored"); // @ stands for the program's directory
        QTest::addColumn<QString>("file");
        QTest::newRow("other case") << u"@\\IMAGES\\folderxp.jpg"_s << u"@/images/FolderXP.JPG"_s;
        QTest::newRow("relative") << u"images\\bodymap\\CORPO_qua.JPG"_s
                                  << u"@/images/BODYMAP/Corpo_QUA.jpg"_s;
        QTest::newRow("behind a backslash") << u"\\images\\FolderXP.jpg"_s << u"@/images/FolderXP.JPG"_s;
        QTest::newRow("doubled separators") << u"@/\\images\\\\FolderXP.JPG"_s << u"@/images/FolderXP.JPG"_s;
        QTest::newRow("the exact one of two")
            << u"@\\images\\BodyMap\\UNO.txt"_s << u"@/images/BODYMAP/UNO.txt"_s;
        QTest::newRow("missing file") << u"@\\Images\\Niente.JPG"_s << u"@/images/Niente.JPG"_s;
        QTest::newRow("missing folder") << u"@\\x\\Y.JPG"_s << u"@/x/Y.JPG"_s;
        QTest::newRow("a sibling") << u"@2\\x.JPG"_s << u"@2/x.JPG"_s;
        QTest::newRow("empty") << QString() << QString();
    }
    void resolve() {
        QFETCH(QString, stored);
        QFETCH(QString, file);
        QCOMPARE(host::resolve(stored.replace(u'@', program().folder())),
                 file.replace(u'@', program().folder()));
    }

    void absolutePathsElsewhere() {
        const QTemporaryDir elsewhere;
        QFile file(elsewhere.filePath(u"Logo.PNG"_s));
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(host::resolve(elsewhere.filePath(u"logo.png"_s)), file.fileName());
    }

    void settings() {
        host::saveSetting(u"General"_s, u"Path"_s, u"/è qui\\con; strani = segni"_s);
        host::saveSetting(u"Altro"_s, u"Path"_s, u"2"_s);
        host::saveSetting(u"General"_s, u"Path"_s, u"/nuovo, \"qui\""_s);
        QCOMPARE(host::readSetting(u"General"_s, u"Path"_s), u"/nuovo, \"qui\""_s);
        QCOMPARE(host::readSetting(u"Altro"_s, u"Path"_s), u"2"_s);
        QVERIFY(QDir().mkpath(program().settingsFolder() + u"/x/Quiver-Deck.ini"_s)); // a folder in its place
        host::setSettingsFolder(program().settingsFolder() + u"/x"_s);
        QCOMPARE(errorOf([] { host::saveSetting(u"General"_s, u"Path"_s, u"x"_s); }), 75);
    }

    void waves_data() {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<int>("sampleBytes"); // -1: refused
        const QByteArray good = wave(1, 16, 10);
        QTest::newRow("16 bits") << good << 40;
        QTest::newRow("8 bits") << wave(1, 8, 10) << 20;
        QTest::newRow("no samples") << wave(1, 16, 0) << 0;
        QTest::newRow("cut short") << good.chopped(5) << 32; // whole frames only
        QTest::newRow("cut in the header") << good.left(30) << -1;
        QTest::newRow("float") << wave(3, 32, 10) << -1;
        QTest::newRow("24 bits") << wave(1, 24, 10) << -1;
        QTest::newRow("no wave") << QByteArray(200, 'x') << -1;
        QByteArray endless = good;
        endless.replace(16, 4, "\xff\xff\xff\xff");
        QTest::newRow("a block beyond the end") << endless << -1;
    }
    void waves() {
        QFETCH(QByteArray, bytes);
        QFETCH(int, sampleBytes);
        const auto read = host::readWave(bytes);
        QCOMPARE(read ? static_cast<int>(read->samples.size()) : -1, sampleBytes);
        if (read) {
            QCOMPARE(read->channels, 2U);
            QCOMPARE(read->rate, 8000U);
        }
    }

    void silentWithoutAFile() {
        QVERIFY(!host::playAndWait(program().folder() + u"/niente.wav"_s));
        QVERIFY(!host::playAndWait(program().folder() + u"/images/FolderXP.JPG"_s));
    }

    void processes() {
        const QString mark = program().folder() + u"/segno"_s;
        host::startProcess(u"touch"_s, {mark});
        QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(mark), patienceMs);
        QCOMPARE(errorOf([] { host::startProcess(u"/nessun/programma"_s); }), 53);
        QCOMPARE(errorOf([] { host::startProcess({}); }), 53);
    }

    void oneProgramPerFolder() {
        auto first = std::make_unique<host::SingleInstance>(program().folder());
        QVERIFY(first->isFirst());
        QSignalSpy raised(first.get(), &host::SingleInstance::raiseRequested);
        // The same folder by another road.
        const QString link = program().settingsFolder() + u"/link"_s;
        QVERIFY(QFile::link(program().folder(), link));
        bool secondIsFirst = true;
        bool answered = false;
        const std::unique_ptr<QThread> other(QThread::create([&] {
            const host::SingleInstance second(link + u"/"_s);
            secondIsFirst = second.isFirst();
            answered = second.askToRaise();
        }));
        other->start();
        QTRY_COMPARE_WITH_TIMEOUT(raised.count(), 1, patienceMs);
        other->wait();
        QVERIFY(!secondIsFirst);
        QVERIFY(answered);
        QVERIFY(host::SingleInstance(program().settingsFolder()).isFirst());
        first.reset(); // as when it ends
        QVERIFY(host::SingleInstance(program().folder()).isFirst());
    }

    void installedCopyThatFails_data() {
        using host::installed::Outcome;
        QTest::addColumn<bool>("filled");    // the user has a store
        QTest::addColumn<QString>("absent"); // from what was installed
        QTest::addColumn<Outcome>("outcome");
        QTest::addColumn<QString>("named"); // in the reason
        QTest::newRow("nothing to fill from")
            << false << u"splash.ps"_s << Outcome::NotFilled << u"splash.ps"_s;
        QTest::newRow("no store to renew from")
            << true << u"splash.ps"_s << Outcome::NotRenewed << u"splash.ps"_s;
        QTest::newRow("a catalogue that cannot be renewed")
            << true << u"quiverdeck-renew-store"_s << Outcome::NotRenewed << u"splash.ps"_s;
        QTest::newRow("a file in the place of a folder")
            << false << u"-"_s << Outcome::NotFilled << u"images"_s;
    }
    void installedCopyThatFails() {
        QFETCH(bool, filled);
        QFETCH(QString, absent);
        QFETCH(host::installed::Outcome, outcome);
        QFETCH(QString, named);
        touch(u"images/Q001.JPG"_s);
        if (absent == u"splash.ps")
            QVERIFY(QFile::remove(program().store()));
        const QString data = program().settingsFolder() + u"/dati"_s;
        QVERIFY(host::installed::makeFolder(data));
        const auto write = [&](const QString& name, const QByteArray& text) {
            QFile file(data + name);
            return file.open(QIODevice::WriteOnly) && file.write(text) == text.size();
        };
        if (filled)
            QVERIFY(write(u"/splash.ps"_s, "mine"));
        if (absent == u"-")
            QVERIFY(write(u"/images"_s, "a file"));
        for (int start = 1; start <= 2; ++start) { // tried again at each start
            const auto result = host::installed::prepare(program().folder(), data);
            QCOMPARE(result.outcome, outcome);
            QVERIFY2(result.reason.contains(named), qPrintable(result.reason));
            QFile store(data + u"/splash.ps"_s);
            QCOMPARE(store.open(QIODevice::ReadOnly), filled);
            QVERIFY(!filled || store.readAll() == "mine");
        }
    }

    void scriptedBoxesAreStrict() {
        QStringList reports;
        boxes().onUnexpected = [&](const QString& report) { reports += report; };
        boxes().expect(Icon::Critical, u"Confermi?"_s, host::Answer::Yes);
        // Each of these differs in one thing from what is expected.
        host::message(u"Confermi?"_s, Icon::Critical);
        (void)host::ask(u"Confermi?"_s, Icon::Question, host::Buttons::YesNo);
        (void)host::ask(u"Confermi"_s, Icon::Critical, host::Buttons::YesNo);
        QCOMPARE(reports.size(), 3);
        QCOMPARE(host::ask(u"Confermi?"_s, Icon::Critical, host::Buttons::YesNo), host::Answer::Yes);
        QVERIFY(!boxes().satisfied()); // for the three
        boxes().expect(Icon::None, u"mai"_s);
        QTest::ignoreMessage(QtWarningMsg, "the box never came: \"mai\"");
        QVERIFY(!boxes().satisfied());
        QVERIFY(boxes().satisfied());
    }

private:
    void touch(const QString& name) {
        const QString path = program().folder() + u'/' + name;
        QDir().mkpath(path.left(path.lastIndexOf(u'/')));
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
    }
};

QUIVERDECK_TEST(TestHost)
#include "test_host.moc"
