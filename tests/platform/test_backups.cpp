#include "platform/store/Backups.h"
#include "support/ScratchProgram.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTest>

#include <fcntl.h>
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

class TestBackups : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() {
        program_ = std::make_unique<ScratchProgram>();
        folder_ = program_->folder() + u"/backup"_s;
        now_ = QDateTime(QDate(2026, 11, 22), QTime(22, 30));
    }

    void copiesWhatChanged() {
        const Backups backups = make();
        QCOMPARE(backups.run(), Outcome::Copied);
        QCOMPARE(backups.run(), Outcome::Unchanged);
        program_->sql(u"INSERT INTO categorie VALUES (9,'Nuova')"_s);
        touch(program_->store(), 1);
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

    void removesOldFiles() {
        const Backups backups = make();
        for (int i = 0; i < 14; ++i, now_ = now_.addSecs(60)) {
            touch(program_->store(), i);
            QCOMPARE(backups.run(), Outcome::Copied);
        }
        write(folder_ + u"/splash-note.ps"_s, "the user's own");
        QCOMPARE(backups.copies().size(), 10);
        QVERIFY(QFile::exists(folder_ + u"/splash-note.ps"_s));
    }

    void damagedStoreIsNeverCopiedAndComesBack_data() {
        QTest::addColumn<int>("damage");
        QTest::newRow("missing") << 0;
        QTest::newRow("truncated") << 1;
        QTest::newRow("zeros") << 2;
        QTest::newRow("picture") << 3;
        QTest::newRow("empty") << 4;
        QTest::newRow("pages overwritten") << 5;
    }

    void damagedStoreIsNeverCopiedAndComesBack() {
        QFETCH(int, damage);
        const Backups backups = make();
        QCOMPARE(backups.run(), Outcome::Copied);
        const QString store = program_->store();
        const QStringList rows = program_->rows(u"SELECT * FROM categorie"_s);
        QByteArray bytes = read(store);
        const qsizetype page = 4096;
        switch (damage) {
        case 0:
            QFile::remove(store);
            break;
        case 1:
            write(store, bytes.left(bytes.size() / 2));
            break;
        case 2:
            write(store, QByteArray(bytes.size(), '\0'));
            break;
        case 3:
            write(store, QByteArray("\xff\xd8\xff\xe0 JFIF") + QByteArray(9000, 'x'));
            break;
        case 4:
            write(store, {});
            break;
        default:
            write(store, bytes.left(page) + QByteArray(bytes.size() - page, '\x5a'));
        }
        QVERIFY(!store::isGood(store));
        now_ = now_.addDays(1);
        const Outcome outcome = backups.run();
        QVERIFY(outcome == Outcome::Damaged || (damage == 0 && outcome == Outcome::Failed));
        QCOMPARE(backups.copies().size(), 1);
        write(store + u"-journal"_s, "left by a crash");

        const QByteArray damaged = read(store);
        const auto good = backups.newestGood();
        QVERIFY(good);
        const auto aside = backups.restore(*good);
        QVERIFY(aside);
        QVERIFY(store::isGood(store));
        QCOMPARE(program_->rows(u"SELECT * FROM categorie"_s), rows);
        QCOMPARE(aside->isEmpty(), damage == 0);
        if (damage != 0)
            QCOMPARE(read(*aside), damaged);
        QVERIFY(!QFile::exists(store + u"-journal"_s));
    }

    void newestGoodPassesOverDamagedCopies() {
        const Backups backups = make();
        QCOMPARE(backups.run(), Outcome::Copied);
        const QDateTime first = now_;
        now_ = now_.addDays(1);
        touch(program_->store(), 1);
        QCOMPARE(backups.run(), Outcome::Copied);
        write(backups.copies().first().path, "no store");
        QCOMPARE(backups.newestGood()->taken, first);
        QVERIFY(!backups.restore(backups.copies().first())); // and a bad one is never put back
        QVERIFY(store::isGood(program_->store()));
    }

    void folderThatCannotBeWritten() {
        write(folder_, "a file in its place");
        QCOMPARE(make().run(), Outcome::Failed);
        QCOMPARE(read(folder_), QByteArray("a file in its place"));
    }

    void schemaNumber() {
        QCOMPARE(*store::schemaOf(program_->store()), store::schemaVersion);
        program_->sql(u"PRAGMA user_version = 2"_s);
        QCOMPARE(*store::schemaOf(program_->store()), 2U);
        QVERIFY(!store::isGood(program_->store()));
        QVERIFY(!store::schemaOf(folder_));
    }

private:
    Backups make() {
        return Backups(program_->store(), folder_, [this] { return now_; });
    }

    std::unique_ptr<ScratchProgram> program_;
    QString folder_;
    QDateTime now_;
};

QTEST_GUILESS_MAIN(TestBackups)
#include "test_backups.moc"
