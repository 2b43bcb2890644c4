#include "core/db.h"
#include "faults/AllRows.h"
#include "faults/RealProgram.h"
#include "platform/store/Backups.h"

#include <QDir>
#include <QRegularExpression>

#include <sqlite3.h>
#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <csignal>
#include <thread>

using namespace Qt::StringLiterals;
using store::Backups;

namespace {

constexpr uid_t nobody = 65534;
const QString storeName = u"splash.ps"_s;
const QString sideName = u"splash.ps.aperta"_s;
const QString notOpened = u"^(14-)?Impossibile aprire l’archivio"_s;
const QString notAStore = u"^(26-|11-)?Il file dell’archivio è danneggiato o non è un archivio"_s;
const QString offer = u"L’archivio «splash.ps» manca o è danneggiato."_s;
const QByteArray picture = "\xff\xd8\xff\xe0 JFIF" + QByteArray(9000, 'x');

QByteArray read(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void write(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        throw std::runtime_error("cannot write " + path.toStdString());
}

/// The rows that the program does not write by itself: it counts its starts.
QStringList rowsOf(const RealProgram& program) {
    QStringList rows = allRows(program.scratch());
    rows.removeIf([](const QString& row) { return row.contains(u"CAMBIO_RISOLUZIONE"_s); });
    return rows;
}

Backups backupsOf(const RealProgram& program) {
    return {program.file(storeName), program.file(u"backup"_s)};
}

void backUp(const RealProgram& program) {
    if (backupsOf(program).run() != Backups::Outcome::Copied)
        throw std::runtime_error("no copy");
}

/// Dismisses the boxes of a failing start, at least one and all of one kind, up to Main's own, behind which
/// the splash shows already. True if they were so.
bool dismiss(RealProgram& program, const QString& kind) {
    const QRegularExpression allowed(kind);
    for (int boxes = 0; boxes < 8; ++boxes) {
        program.waitFor(u"box"_s);
        if (!allowed.match(program.text(u"box"_s)).hasMatch())
            return false;
        const bool last = program.shows(u"frmSplash"_s);
        program.press(u"box:OK"_s);
        if (last)
            return true;
    }
    return false;
}

/// The splash of a failed start stays until it is dismissed, then the program ends.
void dismissSplash(RealProgram& program) {
    program.write(u"frmSplash"_s, u"x"_s);
    QCOMPARE(program.waitForEnd(), EXIT_FAILURE);
}

/// A program that may write to its own folder and settings alone, and is not the administrator.
void becomeNobody(RealProgram& program) {
    program.before = [] {
        if (::geteuid() == 0 && (::setgid(nobody) != 0 || ::setuid(nobody) != 0))
            ::_exit(3);
    };
    for (QDir up(program.folder); up.absolutePath() != QDir::tempPath(); up.cdUp())
        ::chmod(QFile::encodeName(up.absolutePath()).constData(), 0755);
    ::chmod(QFile::encodeName(program.home()).constData(), 0755);
    for (const QString& path : {program.folder, program.file(storeName), program.home() + u"/run"_s,
                                program.home() + u"/config"_s, program.home() + u"/data"_s})
        if (::geteuid() == 0 && ::chown(QFile::encodeName(path).constData(), nobody, nobody) != 0)
            throw std::runtime_error("no other owner");
}

/// No file of the program may grow beyond that many bytes.
void limitFiles(RealProgram& program, rlim_t bytes) {
    program.before = [bytes] {
        std::signal(SIGXFSZ, SIG_IGN);
        const rlimit limit{bytes, bytes};
        ::setrlimit(RLIMIT_FSIZE, &limit);
    };
}

/// Another program that holds the store.
class Holder {
public:
    explicit Holder(const ScratchProgram& program) {
        sqlite3_open(QFile::encodeName(program.store()).constData(), &store_);
        if (sqlite3_exec(store_, "BEGIN EXCLUSIVE", nullptr, nullptr, nullptr) != SQLITE_OK)
            throw std::runtime_error("the store is not held");
    }
    ~Holder() { sqlite3_close(store_); }
    Holder(const Holder&) = delete;
    Holder& operator=(const Holder&) = delete;

private:
    sqlite3* store_ = nullptr;
};

using Damage = std::function<void(const RealProgram&)>;

Damage contents(const QByteArray& bytes) {
    return [bytes](const RealProgram& program) { write(program.file(storeName), bytes); };
}

/// Overwrites the page where a table begins, and leaves the file's date as it was if asked.
Damage page(const QString& table, bool sameDate) {
    return [=](const RealProgram& program) {
        const QString path = program.file(storeName);
        const qint64 root = program.scratch()
                                .rows(u"SELECT rootpage FROM sqlite_master WHERE name = '%1'"_s.arg(table))
                                .first()
                                .toLongLong();
        const QDateTime date = QFileInfo(path).lastModified();
        QFile file(path);
        if (!file.open(QIODevice::ReadWrite) || !file.seek((root - 1) * 4096) ||
            file.write(QByteArray(4096, '\x5a')) != 4096)
            throw std::runtime_error("no damage");
        file.flush();
        file.setFileTime(sameDate ? date : date.addSecs(10), QFile::FileModificationTime);
    };
}

} // namespace

class TestStartFaults : public QObject {
    Q_OBJECT
private Q_SLOTS:
    /// The start fails, the newest good copy is offered, and put back by Yes the next start is well.
    void damagedStore_data() {
        QTest::addColumn<Damage>("damage");
        QTest::addColumn<QString>("boxes");
        QTest::newRow("missing") << Damage([](const RealProgram& p) { QFile::remove(p.file(storeName)); })
                                 << notOpened;
        QTest::newRow("truncated") << Damage([](const RealProgram& p) {
            QFile::resize(p.file(storeName), 9000);
        }) << notAStore;
        QTest::newRow("zeros") << contents(QByteArray(50000, '\0')) << notAStore;
        QTest::newRow("picture") << contents(picture) << notAStore;
        QTest::newRow("empty") << contents({}) << u"^(1-)?Istruzione non riconosciuta dall’archivio"_s;
    }
    void damagedStore() {
        QFETCH(const Damage, damage);
        QFETCH(const QString, boxes);
        play([&] {
            RealProgram program;
            backUp(program);
            const QStringList rows = rowsOf(program);
            damage(program);
            const bool missing = !QFile::exists(program.file(storeName));
            const QByteArray damaged = read(program.file(storeName));
            program.start();
            QVERIFY2(dismiss(program, boxes), qPrintable(program.text(u"box"_s)));
            program.answer(offer, u"Sì"_s);
            program.answer(u"L’archivio è di nuovo quello del "_s);
            dismissSplash(program);
            QCOMPARE(rowsOf(program), rows);
            const QStringList aside = QDir(program.folder).entryList({u"splash.ps.danneggiato-*"_s});
            QCOMPARE(aside.size(), missing ? 0 : 1);
            for (const QString& name : aside)
                QCOMPARE(read(program.file(name)), damaged);
            program.start();
            program.press(u"Principale/esci"_s);
            QCOMPARE(program.waitForEnd(), EXIT_SUCCESS);
        });
    }

    /// The start reads past the damage; the program that copies the store finds it.
    void damageFoundByTheCopy_data() {
        QTest::addColumn<Damage>("damage");
        QTest::newRow("the store changed") << page(u"Esercizi"_s, false);
        QTest::newRow("no change is known of") << page(u"EserciziModello"_s, true);
    }
    void damageFoundByTheCopy() {
        QFETCH(const Damage, damage);
        play([&] {
            RealProgram program;
            program.start(); // counts itself
            program.waitFor(u"Principale"_s);
            while (backupsOf(program).copies().isEmpty())
                QTest::qWait(5);
            program.press(u"Principale/esci"_s);
            QCOMPARE(program.waitForEnd(), EXIT_SUCCESS);
            program.scratch().sql(
                u"UPDATE Parametri SET valore = '8' WHERE parametro = 'CAMBIO_RISOLUZIONE'"_s);
            backUp(program);
            const QStringList rows = rowsOf(program);
            damage(program);
            program.start();
            program.answer(offer, u"Sì"_s);
            program.answer(u"L’archivio è di nuovo quello del "_s);
            program.press(u"Principale/esci"_s);
            QCOMPARE(program.waitForEnd(), EXIT_SUCCESS);
            QCOMPARE(rowsOf(program), rows);
        });
    }

    void damageWithoutACopyIsToldOf() {
        play([] {
            RealProgram program;
            page(u"Esercizi"_s, false)(program);
            program.start();
            program.answer(u"L’archivio «splash.ps» è danneggiato e non ne esiste una copia"_s);
            program.press(u"Principale/esci"_s);
            QCOMPARE(program.waitForEnd(), EXIT_SUCCESS);
        });
    }

    void withoutAGoodCopyNothingIsOffered() {
        play([] {
            RealProgram program;
            backUp(program);
            for (const auto& copy : backupsOf(program).copies())
                write(copy.path, picture);
            write(program.file(storeName), picture);
            program.start();
            QVERIFY(dismiss(program, notAStore));
            dismissSplash(program);
            QCOMPARE(read(program.file(storeName)), picture);
        });
    }

    /// A store that is held is not damaged: nothing is put in its place.
    void heldStore() {
        play([] {
            RealProgram program;
            backUp(program);
            const QStringList rows = rowsOf(program);
            {
                const Holder holder(program.scratch());
                program.start();
                QVERIFY(dismiss(program, u"^(5-)?L’archivio è occupato da un altro programma"_s));
                dismissSplash(program);
            }
            QCOMPARE(rowsOf(program), rows);
            QVERIFY(QDir(program.folder).entryList({u"splash.ps.*"_s}).isEmpty());
        });
    }

    void storeLetGoInTime() {
        const ScratchProgram program;
        auto holder = std::make_unique<Holder>(program);
        std::thread other([&holder] {
            std::this_thread::sleep_for(
                std::chrono::milliseconds(100)); // of the two seconds that the program waits
            holder.reset();
        });
        const bool written = db::comune().Execute(u"DELETE * FROM muscoli"_s);
        other.join();
        QVERIFY(written);
        QCOMPARE(program.rows(u"SELECT * FROM muscoli"_s), QStringList());
    }

    /// What cannot be written is told, and nothing else is lost.
    void cannotWrite_data() {
        QTest::addColumn<QString>("fault");
        QTest::addColumn<QString>("box");
        QTest::addColumn<bool>("starts");
        QTest::newRow("folder") << u"folder"_s << u"Impossibile scrivere "_s << false;
        QTest::newRow("store") << u"store"_s << u"8-L’archivio è di sola lettura"_s << true;
        QTest::newRow("backup folder")
            << u"backup"_s << u"La copia di sicurezza dell’archivio non è riuscita."_s << true;
        QTest::newRow("no room") << u"room"_s << u"Impossibile scrivere "_s << false;
    }
    void cannotWrite() {
        QFETCH(const QString, fault);
        QFETCH(const QString, box);
        QFETCH(const bool, starts);
        play([&] {
            RealProgram program;
            const QStringList rows = allRows(program.scratch());
            if (fault == u"room"_s)
                limitFiles(program, 0);
            else if (fault == u"backup"_s)
                write(program.file(fault), "a file in its place");
            else
                becomeNobody(program);
            const QByteArray path =
                QFile::encodeName(fault == u"folder"_s ? program.folder : program.file(storeName));
            if (fault == u"folder"_s || fault == u"store"_s)
                QCOMPARE(::chmod(path.constData(), fault == u"folder"_s ? 0555 : 0444), 0);
            program.start();
            program.answer(box);
            if (starts) {
                program.waitFor(u"Principale"_s);
                while (program.shows(u"box"_s)) // no copy either
                    program.answer(u"La copia di sicurezza dell’archivio non è riuscita."_s);
                program.press(u"Principale/esci"_s);
            }
            QCOMPARE(program.waitForEnd(), starts ? EXIT_SUCCESS : EXIT_FAILURE);
            ::chmod(path.constData(), 0755);
            if (fault != u"backup"_s)
                QCOMPARE(allRows(program.scratch()), rows);
            QCOMPARE(store::conditionOf(program.file(storeName)), store::Condition::Good);
        });
    }

    /// A side file that cannot be read stops no start and is kept.
    void damagedSideFile_data() {
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("zeros") << QByteArray(5000, '\0');
        QTest::newRow("empty") << QByteArray("");
        QTest::newRow("picture") << picture;
        QTest::newRow("half of one") << QByteArray("{\"versione\":1,\"nome\":\"Rossi Anna\",\"scheda\":{");
        QTest::newRow("a folder in its place") << QByteArray();
    }
    void damagedSideFile() {
        QFETCH(const QByteArray, bytes);
        play([&] {
            RealProgram program;
            if (bytes.isNull())
                QVERIFY(QDir().mkpath(program.file(sideName)));
            else
                write(program.file(sideName), bytes);
            program.start();
            const QString told =
                program.answer(u"La copia di sicurezza della scheda che era aperta è danneggiata"_s);
            const QStringList kept = QDir(program.folder).entryList({sideName + u".danneggiata-*"_s});
            QCOMPARE(kept.size(), 1);
            QVERIFY(told.contains(kept.first()));
            program.press(u"Principale/esci"_s);
            QCOMPARE(program.waitForEnd(), EXIT_SUCCESS);
            QCOMPARE(read(program.file(kept.first())), bytes.isNull() ? QByteArray() : bytes);
        });
    }

    /// The side file cannot be written: told once, and the card can be stored all the same.
    void sideFileThatCannotBeWritten() {
        play([] {
            RealProgram program;
            QVERIFY(QDir().mkpath(program.file(sideName + u".nuova/x"_s)));
            program.start();
            program.openNewCard();
            program.answer(u"Impossibile scrivere «splash.ps.aperta»"_s);
            program.write(u"SchedaIntestazione/Obiettivo"_s, u"Tono"_s);
            program.press(u"mdiScheda/salva"_s);
            program.answer(u"Salvataggio effettuato"_s);
            QCOMPARE(program.scratch().rows(u"SELECT Obiettivo FROM schede"_s), QStringList(u"Tono"_s));
        });
    }

    /// Salva meets a store that is held, one that may not grow, or a full disk: told, and the card is there
    /// at the next start.
    void cardThatCannotBeStored_data() {
        QTest::addColumn<QString>("fault");
        QTest::newRow("held") << u"held"_s;
        QTest::newRow("may not grow") << u"limit"_s;
        QTest::newRow("full disk") << u"disk"_s;
    }
    void cardThatCannotBeStored() {
        QFETCH(const QString, fault);
        std::unique_ptr<Volume> volume;
        if (fault == u"disk"_s) {
            volume = std::make_unique<Volume>();
            if (!volume->isMounted())
                QSKIP("this user may mount no file system of a small size");
        }
        play([&] {
            RealProgram program;
            if (fault == u"limit"_s) {
                program.scratch().sql(u"PRAGMA page_size = 512; VACUUM"_s); // a card does not fit into a page
                limitFiles(program, static_cast<rlim_t>(QFileInfo(program.file(storeName)).size()));
            }
            const QString aim = u"Tono muscolare "_s.repeated(40);
            const QStringList rows = rowsOf(program);
            program.start();
            program.openNewCard();
            program.write(u"SchedaIntestazione/Obiettivo"_s, aim);
            QCOMPARE(program.text(u"SchedaIntestazione/Obiettivo"_s), aim);
            {
                std::unique_ptr<Holder> holder;
                if (fault == u"held"_s)
                    holder = std::make_unique<Holder>(program.scratch());
                else if (volume)
                    volume->fill();
                program.press(u"mdiScheda/salva"_s);
                QString report;
                while (!report.startsWith(u"Errore "_s))
                    report = program.answer({});
                QCOMPARE(program.waitForEnd(), EXIT_FAILURE);
            }
            if (volume)
                volume->empty();
            QCOMPARE(rowsOf(program), rows);
            program.before = {};
            program.start();
            program.answer(u"Ripristinare la scheda che era aperta per Rossi Anna"_s, u"Sì"_s);
            program.press(u"mdiScheda/salva"_s);
            program.answer(u"Salvataggio effettuato"_s);
            QCOMPARE(program.scratch().rows(u"SELECT Obiettivo FROM schede"_s), QStringList(aim));
        });
    }

    /// A newer store is refused before an installed copy renews anything.
    void newerStoreInAnInstalledCopy() {
        play([] {
            RealProgram program;
            program.installCopy();
            program.start();
            program.press(u"Principale/esci"_s);
            QCOMPARE(program.waitForEnd(), EXIT_SUCCESS);
            const QString data = program.home() + u"/data/quiverdeck/"_s;
            QFile newer(data + storeName);
            QVERIFY(newer.open(QIODevice::ReadWrite) && newer.seek(63) &&
                    newer.putChar('\x02')); // the schema's number
            newer.close();
            write(program.file(u"images/Q/001.JPG"_s), picture); // a later installation
            const auto all = [&] {
                QList<QByteArray> bytes;
                for (const QString& name : {storeName, u"images/Q/001.JPG"_s, u".installed"_s, u"log.txt"_s})
                    bytes += read(data + name);
                return bytes;
            };
            const auto before = all();
            program.start();
            program.answer(
                u"L’archivio «splash.ps» è stato creato da una versione più recente del programma"_s);
            QCOMPARE(program.waitForEnd(), EXIT_FAILURE);
            QCOMPARE(all(), before);
        });
    }

private:
    /// A small file system where new scratch folders go; it is this process's own and goes with it.
    class Volume {
    public:
        Volume() : former_(qgetenv("TMPDIR")) {
            ::chmod(QFile::encodeName(folder_.path()).constData(), 0755);
            mounted_ = ::mount("volume", QFile::encodeName(folder_.path()).constData(), "tmpfs", 0,
                               "size=300m") == 0;
            if (mounted_)
                qputenv("TMPDIR", QFile::encodeName(folder_.path()));
        }
        ~Volume() {
            if (former_.isEmpty())
                qunsetenv("TMPDIR");
            else
                qputenv("TMPDIR", former_);
            if (mounted_)
                ::umount2(QFile::encodeName(folder_.path()).constData(), MNT_DETACH);
        }
        Volume(const Volume&) = delete;
        Volume& operator=(const Volume&) = delete;
        bool isMounted() const { return mounted_; }
        void fill() const {
            QFile filler(folder_.filePath(u"filler"_s));
            if (!filler.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
                throw std::runtime_error("no filler");
            for (qint64 piece = 1 << 20; piece > 0;)
                if (filler.write(QByteArray(piece, 'x')) < piece)
                    piece /= 2;
        }
        void empty() const { QFile::remove(folder_.filePath(u"filler"_s)); }

    private:
        QByteArray former_;
        QTemporaryDir folder_;
        bool mounted_ = false;
    };
};

QTEST_GUILESS_MAIN(TestStartFaults)
#include "test_start_faults.moc"
