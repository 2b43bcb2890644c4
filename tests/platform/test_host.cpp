#include "platform/host/InstalledCopy.h"
#include "platform/host/Process.h"
#include "platform/host/ProgramDirectory.h"
#include "platform/host/Services.h"
#include "platform/host/Settings.h"
#include "platform/host/SingleInstance.h"
#include "platform/host/Sound.h"
#include "support/Files.h"
#include "support/RecordsTest.h"

#include <QSettings>
#include <QSignalSpy>
#include <QThread>

using namespace Qt::StringLiterals;

namespace {

constexpr int patienceMs = 60000; // for another process or thread on a busy machine

} // namespace

class TestHost : public RecordsTest {
    Q_OBJECT
private Q_SLOTS:
    void resolve() {
        const QTemporaryDir elsewhere;
        for (const auto& name :
             {u"@/images/FolderXP.JPG"_s, u"@/images/BODYMAP/Corpo_QUA.jpg"_s, u"@/images/BODYMAP/uno.txt"_s,
              u"@/images/BODYMAP/UNO.txt"_s, u"#/Logo.PNG"_s})
            writeFile(path(name, elsewhere));
        for (const auto& [stored, file] :
             {std::pair(u"@\\IMAGES\\folderxp.jpg"_s, u"@/images/FolderXP.JPG"_s),
              {u"images\\bodymap\\CORPO_qua.JPG"_s, u"@/images/BODYMAP/Corpo_QUA.jpg"_s},
              {u"\\images\\FolderXP.jpg"_s, u"@/images/FolderXP.JPG"_s},
              {u"@/\\images\\\\FolderXP.JPG"_s, u"@/images/FolderXP.JPG"_s},
              {u"@\\images\\BodyMap\\UNO.txt"_s, u"@/images/BODYMAP/UNO.txt"_s}, // the exact one of two
              {u"@\\Images\\Niente.JPG"_s, u"@/images/Niente.JPG"_s},
              {u"@2\\x.JPG"_s, u"@2/x.JPG"_s},
              {u"#/logo.png"_s, u"#/Logo.PNG"_s},
              {QString(), QString()}})
            QCOMPARE(host::resolve(path(stored, elsewhere)), path(file, elsewhere));
    }

    void settings() {
        host::saveSetting(u"General"_s, u"Path"_s, u"/è qui\\con; strani = segni"_s);
        host::saveSetting(u"Altro"_s, u"Path"_s, u"2"_s);
        host::saveSetting(u"General"_s, u"Path"_s, u"/nuovo, \"qui\""_s);
        const QSettings written(host::settingsFile(), QSettings::IniFormat);
        QCOMPARE(written.value(u"Path"_s).toString(), u"/nuovo, \"qui\""_s); // "General" is the file's top
        QCOMPARE(written.value(u"Altro/Path"_s).toString(), u"2"_s);
        QVERIFY(QDir().mkpath(program().settingsFolder() + u"/x/Quiver-Deck.ini"_s)); // a folder in its place
        host::setSettingsFolder(program().settingsFolder() + u"/x"_s);
        QCOMPARE(errorOf([] { host::saveSetting(u"General"_s, u"Path"_s, u"x"_s); }), 75);
    }

    void silentWithoutAFile() {
        const QString file = program().folder() + u"/images/suono.wav"_s;
        QVERIFY(!host::playAndWait(file));
        for (const char* bytes : {"no sound", "RIFF\x04\1\1\1WAVEfmt \xff\xff\xff\xff is beyond the end"}) {
            writeFile(file, bytes);
            QVERIFY(!host::readWave(bytes) && !host::playAndWait(file));
        }
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
        bool answered = false;
        const std::unique_ptr<QThread> other(QThread::create([&] {
            const host::SingleInstance second(link + u"/"_s);
            answered = !second.isFirst() && second.askToRaise();
        }));
        other->start();
        QTRY_COMPARE_WITH_TIMEOUT(raised.count(), 1, patienceMs);
        other->wait();
        QVERIFY(answered);
        QVERIFY(host::SingleInstance(program().settingsFolder()).isFirst());
        first.reset(); // as when it ends
        QVERIFY(host::SingleInstance(program().folder()).isFirst());
    }

    void installedCopyThatFails() {
        using host::installed::Outcome;
        // what the user has, what was not installed or stands in the way, the file named, what comes of it
        for (const auto& [row, outcome] : {std::pair(u"|splash.ps|splash.ps"_s, Outcome::NotFilled),
                                           {u"mine|splash.ps|splash.ps"_s, Outcome::NotRenewed},
                                           {u"mine|renewer|splash.ps"_s, Outcome::NotRenewed},
                                           {u"|-|images"_s, Outcome::NotFilled}}) {
            cleanup();
            init();
            const QStringList cells = row.split(u'|');
            writeFile(program().folder() + u"/images/Q001.JPG"_s);
            if (cells[1] == u"splash.ps")
                QVERIFY(QFile::remove(program().store()));
            const QString data = program().settingsFolder() + u"/dati"_s;
            QVERIFY(host::installed::makeFolder(data));
            if (!cells[0].isEmpty())
                writeFile(data + u"/splash.ps"_s, "mine");
            if (cells[1] == u"-")
                writeFile(data + u"/images"_s, "a file in a folder's place");
            for (int start = 1; start <= 2; ++start) { // tried again at each start
                const auto result = host::installed::prepare(program().folder(), data);
                QCOMPARE(result.outcome, outcome);
                QVERIFY2(result.reason.contains(cells[2]), qPrintable(result.reason));
                QCOMPARE(QString::fromUtf8(readFile(data + u"/splash.ps"_s)), cells[0]);
            }
        }
    }

    void scriptedBoxesAreStrict() {
        int reports = 0;
        boxes().onUnexpected = [&](const QString&) { ++reports; };
        boxes().expect(Icon::Critical, u"Confermi?"_s, host::Answer::Yes);
        host::message(u"Confermi?"_s, Icon::Critical); // each differs in one thing from what is expected
        (void)host::ask(u"Confermi?"_s, Icon::Question, host::Buttons::YesNo);
        (void)host::ask(u"Confermi"_s, Icon::Critical, host::Buttons::YesNo);
        QCOMPARE(reports, 3);
        QTest::ignoreMessage(QtWarningMsg, "the box never came: \"Confermi?\"");
        QVERIFY(!boxes().satisfied());
    }

private:
    /// @ stands for the program's directory, # for another one.
    QString path(QString text, const QTemporaryDir& elsewhere) const {
        return text.replace(u'@', program().folder()).replace(u'#', elsewhere.path());
    }
};

QUIVERDECK_TEST(TestHost)
#include "test_host.moc"
