#include "platform/store/Backups.h"
#include "support/RecordsTest.h"

#include <QDir>
#include <QFile>

#include <sys/stat.h>

using namespace Qt::StringLiterals;
using store::Backups;
using Outcome = store::Backups::Outcome;

namespace {

QByteArray read(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void write(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("cannot write");
}

/// The last change of a file, moved to a second of its own.
void touch(const QString& path, int seconds) {
    QFile file(path);
    if (!file.open(QIODevice::ReadWrite) ||
        !file.setFileTime(QDateTime(QDate(2026, 1, 1), QTime()).addSecs(seconds),
                          QFile::FileModificationTime))
        qFatal("cannot touch");
}

int mode(const QString& path) {
    struct stat status {};
    return ::stat(QFile::encodeName(path).constData(), &status) == 0 ? int(status.st_mode & 0777) : -1;
}

} // namespace

class TestBackups : public RecordsTest {
    Q_OBJECT
private Q_SLOTS:
    void init() {
        RecordsTest::init();
        store_ = program().store();
        folder_ = program().folder() + u"/backup"_s;
        now_ = QDateTime(QDate(2026, 11, 22), QTime(22, 30));
    }

    void copiesWhatChanged() {
        const Backups backups = make();
        QCOMPARE(backups.run(), Outcome::Copied);
        QCOMPARE(backups.run(), Outcome::Unchanged);
        sql(u"INSERT INTO categorie VALUES (9,'Nuova')");
        touch(store_, 1);
        now_ = now_.addDays(1);
        QCOMPARE(backups.run(), Outcome::Copied);
        const auto copies = backups.copies();
        QCOMPARE(copies.size(), 2);
        QCOMPARE(copies.first().taken, now_);
        QCOMPARE(copies.first().path, folder_ + u"/splash-2026-11-23_22-30-00.ps"_s);
        QVERIFY(store::isGood(copies.first().path));
        QVERIFY(read(copies.first().path).contains("Nuova"));
        QVERIFY(!read(copies.last().path).contains("Nuova"));
        QCOMPARE(mode(folder_), 0700);
        QCOMPARE(mode(copies.first().path), 0600);
        QCOMPARE(QDir(folder_).entryList(QDir::Files | QDir::Hidden).size(), 2); // nothing else stays
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
    }

    void removesOldFilesOfItsOwn() {
        const Backups backups = make();
        for (int i = 0; i < 12; ++i, now_ = now_.addSecs(60)) {
            touch(store_, i);
            QCOMPARE(backups.run(), Outcome::Copied);
            write(folder_ + u"/splash-note.ps"_s, "the user's own");
        }
        QCOMPARE(backups.copies().size(), 10);
        QVERIFY(QFile::exists(folder_ + u"/splash-note.ps"_s));
    }

    void damagedStoreIsNeverCopiedAndComesBack_data() {
        QTest::addColumn<QString>("damage");
        for (const char* damage : {"missing", "empty", "truncated", "zeros", "picture", "pages overwritten"})
            QTest::newRow(damage) << QString::fromLatin1(damage);
    }

    void damagedStoreIsNeverCopiedAndComesBack() {
        QFETCH(QString, damage);
        const Backups backups = make();
        QCOMPARE(backups.run(), Outcome::Copied);
        const QString before = rows(u"SELECT * FROM categorie");
        const QByteArray bytes = read(store_);
        const qsizetype page = 4096;
        if (damage == u"missing")
            QFile::remove(store_);
        else if (damage == u"empty")
            write(store_, {});
        else if (damage == u"truncated")
            write(store_, bytes.left(bytes.size() / 2));
        else if (damage == u"zeros")
            write(store_, QByteArray(bytes.size(), '\0'));
        else if (damage == u"picture")
            write(store_, QByteArray("\xff\xd8\xff\xe0 JFIF") + QByteArray(9000, 'x'));
        else
            write(store_, bytes.left(page) + QByteArray(bytes.size() - page, '\x5a'));
        QVERIFY(!store::isGood(store_));
        now_ = now_.addDays(1);
        QCOMPARE(backups.run(), damage == u"missing" ? Outcome::Failed : Outcome::Damaged);
        QCOMPARE(backups.copies().size(), 1);
        write(store_ + u"-journal"_s, "left by a crash");

        const QByteArray damaged = read(store_);
        const auto good = backups.newestGood();
        QVERIFY(good);
        const auto aside = backups.restore(*good);
        QVERIFY(aside);
        QVERIFY(!QFile::exists(store_ + u"-journal"_s)); // never to be played into the copy
        QVERIFY(store::isGood(store_));
        QCOMPARE(rows(u"SELECT * FROM categorie"), before);
        QCOMPARE(aside->isEmpty(), damage == u"missing");
        QCOMPARE(read(*aside), damaged);
    }

    void newestGoodPassesOverDamagedCopies() {
        const Backups backups = make();
        QCOMPARE(backups.run(), Outcome::Copied);
        const QDateTime first = now_;
        now_ = now_.addDays(1);
        touch(store_, 1);
        QCOMPARE(backups.run(), Outcome::Copied);
        write(backups.copies().first().path, "no store");
        QCOMPARE(backups.newestGood()->taken, first);
        QVERIFY(!backups.restore(backups.copies().first())); // and a bad one is never put back
        QVERIFY(store::isGood(store_));
    }

    void folderThatCannotBeWritten() {
        write(folder_, "a file in its place");
        QCOMPARE(make().run(), Outcome::Failed);
        QCOMPARE(read(folder_), QByteArray("a file in its place"));
    }

    void schemaNumber() {
        QCOMPARE(*store::schemaOf(store_), store::schemaVersion);
        sql(u"PRAGMA user_version = 2");
        QCOMPARE(*store::schemaOf(store_), 2U);
        QVERIFY(!store::isGood(store_));
        QVERIFY(!store::schemaOf(folder_));
    }

private:
    Backups make() {
        return Backups(store_, folder_, [this] { return now_; });
    }

    QString store_;
    QString folder_;
    QDateTime now_;
};

QUIVERDECK_TEST(TestBackups)
#include "test_backups.moc"
