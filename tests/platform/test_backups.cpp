#include "platform/store/Backups.h"
#include "support/Files.h"
#include "support/RecordsTest.h"

using namespace Qt::StringLiterals;
using store::Backups;
using Outcome = store::Backups::Outcome;

constexpr auto ownerOnly = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadUser | QFile::WriteUser;

class TestBackups : public RecordsTest {
    Q_OBJECT
private Q_SLOTS:
    void init() {
        RecordsTest::init();
        store_ = program().store();
        folder_ = program().folder() + u"/backup"_s;
        now_ = QDateTime(QDate(2026, 11, 22), QTime(22, 30));
        backups_ = Backups(store_, folder_, [this] { return now_; });
    }

    void copiesWhatChanged() {
        QCOMPARE(backups_.run(), Outcome::Copied);
        QCOMPARE(backups_.run(), Outcome::Unchanged);
        sql(u"INSERT INTO categorie VALUES (9,'Nuova')");
        copyNextDay(1);
        const auto copies = backups_.copies();
        const QString newest = copies.first().path;
        QCOMPARE(newest, folder_ + u"/splash-2026-11-23_22-30-00.ps"_s);
        QCOMPARE(copies.first().taken, now_);
        QVERIFY(store::isGood(newest) && readFile(newest).contains("Nuova"));
        QVERIFY(!readFile(copies.last().path).contains("Nuova"));
        QCOMPARE(QFile::permissions(folder_), ownerOnly | QFile::ExeOwner | QFile::ExeUser);
        QCOMPARE(QFile::permissions(newest), ownerOnly);
        QCOMPARE(QDir(folder_).entryList(QDir::Files | QDir::Hidden).size(), 2); // nothing else stays
        writeFile(newest, "no store"); // passed over, and never put back
        QCOMPARE(backups_.newestGood()->path, copies.last().path);
        QVERIFY(!backups_.restore(copies.first()) && store::isGood(store_));
    }

    void keepsTenAndOneAMonth() {
        // A copy at noon of each day for 500 days, each start removing what need not stay.
        QList<Backups::Copy> kept;
        QDateTime day(QDate(2025, 7, 10), QTime(12, 0));
        for (int i = 0; i < 500; ++i, day = day.addDays(1)) {
            kept.prepend({QString::number(i), day});
            for (const auto& old : Backups::surplus(kept, day))
                kept.removeIf([&old](const auto& copy) { return copy.path == old.path; });
        }
        QStringList dates;
        for (const auto& copy : kept)
            dates += copy.taken.toString(u"yyMMdd"_s);
        QCOMPARE(dates.join(u' '),
                 u"261121 261120 261119 261118 261117 261116 261115 261114 261113 261112 "
                 "261031 260930 260831 260731 260630 260531 260430 260331 260228 260131 251231 251130"_s);
        // And it removes its own files alone, never what the user put there.
        const QString own = folder_ + u"/splash-2024-05-01_10-00-00 prima di Natale.ps"_s;
        writeFile(own);
        now_ = QDateTime(QDate(2026, 11, 1), QTime());
        for (int i = 0; i < 12; ++i)
            copyNextDay(i);
        QVERIFY(QFile::exists(own));
        QCOMPARE(backups_.copies().size(), 10);
    }

    void damagedStoreIsNeverCopiedAndComesBack() {
        QCOMPARE(backups_.run(), Outcome::Copied);
        const QString before = rows(u"SELECT * FROM categorie");
        const QByteArray bytes = readFile(store_);
        for (const QByteArray& damaged :
             {QByteArray(), QByteArray(""), bytes.left(bytes.size() / 2), QByteArray(bytes.size(), '\0'),
              bytes.left(4096) + QByteArray(bytes.size() - 4096, '\x5a')}) { // all pages but the first
            const bool missing = damaged.isNull();
            writeFile(store_, damaged);
            if (missing)
                QFile::remove(store_);
            now_ = now_.addDays(1);
            QCOMPARE(backups_.run(), missing ? Outcome::Failed : Outcome::Damaged);
            QCOMPARE(backups_.copies().size(), 1);
            writeFile(store_ + u"-journal"_s, "left by a crash");
            const auto aside = backups_.restore(backups_.newestGood().value());
            QVERIFY(!QFile::exists(store_ + u"-journal"_s)); // never to be played into the copy
            QVERIFY(store::isGood(store_));
            QCOMPARE(rows(u"SELECT * FROM categorie"), before);
            QCOMPARE(aside.value().isEmpty(), missing);
            QCOMPARE(missing ? QByteArray() : readFile(*aside), damaged);
        }
    }

private:
    /// As if the store had last changed at that second.
    void copyNextDay(int second) {
        now_ = now_.addDays(1);
        QFile file(store_);
        QVERIFY(file.open(QIODevice::ReadWrite));
        QVERIFY(
            file.setFileTime(QDateTime(QDate(2026, 1, 1), QTime(0, 0, second)), QFile::FileModificationTime));
        QCOMPARE(backups_.run(), Outcome::Copied);
    }

    QString store_;
    QString folder_;
    QDateTime now_;
    Backups backups_{{}, {}};
};

QUIVERDECK_TEST(TestBackups)
#include "test_backups.moc"
