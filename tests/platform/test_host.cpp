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

using namespace Qt::StringLiterals;

class TestHost : public RecordsTest {
    Q_OBJECT
private Q_SLOTS:
    void resolve() {
        for (const auto& name : {u"@/images/FolderXP.JPG"_s, u"@/images/BODYMAP/uno.txt"_s,
                                 u"@/images/BODYMAP/UNO.txt"_s, u"#/Logo.PNG"_s})
            writeFile(placed(name));
        for (const auto& [stored, file] :
             {std::pair(u"@\\IMAGES\\folderxp.jpg"_s, u"@/images/FolderXP.JPG"_s),
              {u"images\\FolderXP.jpg"_s, u"@/images/FolderXP.JPG"_s},
              {u"@/\\images\\\\FolderXP.JPG"_s, u"@/images/FolderXP.JPG"_s},
              {u"@\\images\\BodyMap\\UNO.txt"_s, u"@/images/BODYMAP/UNO.txt"_s}, // the exact one of two
              {u"@\\Images\\Niente.JPG"_s, u"@/images/Niente.JPG"_s},
              {u"@2\\x.JPG"_s, u"@2/x.JPG"_s},
              {u"#/logo.png"_s, u"#/Logo.PNG"_s},
              {QString(), QString()}})
            QCOMPARE(host::resolve(placed(stored)), placed(file));
    }

    void settings() {
        const QString path = u"/è nuovo, \"qui\"\\con; strani = segni"_s;
        host::saveSetting(u"General"_s, u"Path"_s, path);
        const QSettings written(host::settingsFile(), QSettings::IniFormat);
        QCOMPARE(written.value(u"Path"_s).toString(), path); // "General" is the file's top
        QVERIFY(QDir().mkpath(program().settingsFolder() + u"/x/Quiver-Deck.ini"_s)); // a folder in its place
        host::setSettingsFolder(program().settingsFolder() + u"/x"_s);
        QCOMPARE(errorOf([] { host::saveSetting(u"General"_s, u"Path"_s, u"x"_s); }), 75);
    }

    void badSoundIsSilent() {
        const QString file = program().folder() + u"/suono.wav"_s;
        for (const char* bytes : {"no sound", "RIFF\x04\1\1\1WAVEfmt \xff\xff\xff\xff is beyond the end"}) {
            writeFile(file, bytes);
            QVERIFY(!host::readWave(bytes) && !host::playAndWait(file));
        }
    }

    void processes() {
        const QString mark = program().folder() + u"/segno"_s;
        host::startProcess(u"touch"_s, {mark});
        QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(mark), 60000); // on a busy machine
        QCOMPARE(errorOf([] { host::startProcess(u"/nessun/programma"_s); }), 53);
    }

    void oneProgramPerFolder() {
        auto first = std::make_unique<host::SingleInstance>(program().folder());
        const QString link = program().settingsFolder() + u"/link"_s; // the same folder by another road
        QVERIFY(QFile::link(program().folder(), link));
        QVERIFY(first->isFirst() && !host::SingleInstance(link + u"/"_s).isFirst());
        QVERIFY(host::SingleInstance(program().settingsFolder()).isFirst());
        first.reset(); // as when it ends
        QVERIFY(host::SingleInstance(program().folder()).isFirst());
    }

    void installedCopyThatFails() {
        using host::installed::Outcome;
        // What the user has, what was not installed or stands in the way, the file named, what comes of it.
        for (const auto& [mine, wrong, named, outcome] :
             {std::tuple("", u"/splash.ps"_s, u"splash.ps"_s, Outcome::NotFilled),
              {"mine", u"/splash.ps"_s, u"splash.ps"_s, Outcome::NotRenewed},
              {"mine", u"renewer"_s, u"splash.ps"_s, Outcome::NotRenewed},
              {"", u"images"_s, u"images"_s, Outcome::NotFilled}}) {
            cleanup();
            init();
            writeFile(program().folder() + u"/images/Q001.JPG"_s);
            QFile::remove(program().folder() + wrong);
            const QString data = program().settingsFolder() + u"/dati"_s;
            QVERIFY(host::installed::makeFolder(data));
            if (*mine != 0)
                writeFile(data + u"/splash.ps"_s, mine);
            if (wrong == u"images")
                writeFile(data + u"/images"_s, "a file in a folder's place");
            for (int start = 1; start <= 2; ++start) { // tried again at each start
                const auto result = host::installed::prepare(program().folder(), data);
                QCOMPARE(result.outcome, outcome);
                QVERIFY2(result.reason.contains(named), qPrintable(result.reason));
                QCOMPARE(readFile(data + u"/splash.ps"_s), QByteArray(mine));
            }
        }
    }

private:
    /// @ stands for the program's directory, # for another one.
    QString placed(QString text) const {
        return text.replace(u'@', program().folder()).replace(u'#', program().settingsFolder());
    }
};

QUIVERDECK_TEST(TestHost)
#include "test_host.moc"
