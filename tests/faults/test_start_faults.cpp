#include "faults/Faults.h"
#include "faults/RealProgram.h"
#include "platform/store/Backups.h"

#include <linux/capability.h>
#include <sqlite3.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include <csignal>

using namespace Qt::StringLiterals;

namespace {

const QString storeName = u"splash.ps"_s;
const QString sideName = u"splash.ps.aperta"_s;
const QString notAStore = u"Il file dell’archivio è danneggiato o non è un archivio"_s;
const QString offer = u"L’archivio «splash.ps» manca o è danneggiato."_s;
const QString putBack = u"L’archivio è di nuovo quello del "_s;
const QString cannotWrite = u"Impossibile scrivere "_s;
const QString noSideFile = u"La copia di sicurezza della scheda che era aperta è danneggiata"_s;
const QByteArray picture = "\xff\xd8\xff\xe0 JFIF" + QByteArray(9000, 'x');

store::Backups backupsOf(const RealProgram& program) {
    return {program.store(), program.file(u"backup"_s)};
}

/// What happens before a start.
using Damage = std::function<void(RealProgram&)>;

Damage contents(const QString& name, const QByteArray& bytes) {
    return [=](const RealProgram& program) { writeFile(program.file(name), bytes); };
}

/// A program that may not write to that file, be it the administrator's.
Damage readOnly(const QString& name) {
    return [name](RealProgram& program) {
        program.before = [] { ::prctl(PR_CAPBSET_DROP, CAP_DAC_OVERRIDE, 0, 0, 0); };
        ::chmod(qPrintable(program.file(name)), 0555);
    };
}

/// No file of the program may grow beyond that many bytes.
void limitFiles(RealProgram& program, rlim_t bytes) {
    program.before = [bytes] {
        std::signal(SIGXFSZ, SIG_IGN);
        const rlimit limit{bytes, bytes};
        ::setrlimit(RLIMIT_FSIZE, &limit);
    };
}

std::shared_ptr<sqlite3> holder; ///< another program, which holds the store

void hold(const RealProgram& program) {
    sqlite3* other = nullptr;
    sqlite3_open(qPrintable(program.store()), &other);
    holder.reset(other, &sqlite3_close);
    sqlite3_exec(other, "BEGIN EXCLUSIVE", nullptr, nullptr, nullptr);
}

/// Two tables share a page, so that the start reads past it and a check finds it; so many seconds after the
/// last copy.
Damage tangled(int seconds) {
    return [seconds](const RealProgram& program) {
        const std::filesystem::path store = program.store().toStdString();
        const auto date = std::filesystem::last_write_time(store);
        program.sql(u"INSERT INTO Parametri VALUES ('CAMBIO_RISOLUZIONE', '8');" // counts no more
                    "PRAGMA writable_schema = ON; UPDATE sqlite_master SET rootpage = (SELECT rootpage"
                    " FROM sqlite_master WHERE name = 'Esercizi') WHERE name = 'EserciziModello'"_s);
        std::filesystem::last_write_time(store, date + std::chrono::seconds(seconds));
    };
}

/// A start is refused before a window shows, stays at the splash until that is dismissed, or works.
enum class End { Refused, Splash, Works };

struct Fault {
    QStringList told; ///< how the boxes begin; the first one of a start that fails may come several times
    End end = End::Works;
    Damage come;
    QString file; ///< whose contents must be kept, be it under another name
};

} // namespace

class TestStartFaults : public QObject {
    Q_OBJECT
private Q_SLOTS:
    /// Each fault is told, what is damaged is kept, a good copy comes back where there is one, and no other
    /// row changes.
    void startMeets_data() {
        QTest::addColumn<Fault>("fault");
        const auto row = [](const char* name, const QStringList& told, End end, const Damage& come,
                            const QString& file = storeName) {
            QTest::newRow(name) << Fault{told, end, come, file};
        };
        const QStringList lost = {notAStore, offer, putBack};
        row("store missing", {u"Impossibile aprire l’archivio"_s, offer, putBack}, End::Splash,
            [](const RealProgram& p) { QFile::remove(p.store()); });
        row("store truncated", lost, End::Splash,
            [](const RealProgram& p) { QFile::resize(p.store(), 9000); });
        row("store of zeros", lost, End::Splash, contents(storeName, QByteArray(50000, '\0')));
        row("store a picture", lost, End::Splash, contents(storeName, picture));
        row("store empty", {u"Istruzione non riconosciuta dall’archivio"_s, offer, putBack}, End::Splash,
            contents(storeName, {}));
        row("copy damaged too", {notAStore}, End::Splash, [](const RealProgram& p) {
            for (const QString& path : {p.store(), backupsOf(p).copies().first().path})
                writeFile(path, picture);
        });
        row("damage that the copy meets", {offer, putBack}, End::Works, tangled(10));
        row("damage without a change", {offer, putBack}, End::Works, tangled(0));
        row("damage without a copy", {u"L’archivio «splash.ps» è danneggiato e non ne esiste una copia"_s},
            End::Works, [](RealProgram& p) {
                QDir(p.file(u"backup"_s)).removeRecursively();
                tangled(0)(p);
            });
        // Not to be read here: to close the file would let it go.
        row("store held", {u"L’archivio è occupato da un altro programma"_s}, End::Splash, hold, {});
        const QString data = u"../../impostazioni/data/quiverdeck/splash.ps"_s; // the user's
        row(
            "newer store, installed",
            {u"L’archivio «splash.ps» è stato creato da una versione più recente"_s}, End::Refused,
            [data](const RealProgram& p) {
                writeFile(p.file(u"quiverdeck.installed"_s));
                p.sql(u"PRAGMA user_version = 2"_s);
                writeFile(p.file(data), readFile(p.store()));
            },
            data);
        row("folder read-only", {cannotWrite}, End::Refused, readOnly({}));
        row("store read-only", {u"L’archivio è di sola lettura"_s}, End::Works, readOnly(storeName));
        row("backups unwritable", {u"La copia di sicurezza dell’archivio non è riuscita."_s}, End::Works,
            [](const RealProgram& p) {
                QDir(p.file(u"backup"_s)).removeRecursively();
                writeFile(p.file(u"backup"_s)); // even its owner cannot put that right
            });
        row("no room", {cannotWrite}, End::Refused, [](RealProgram& p) { limitFiles(p, 0); });
        row("side file of zeros", {noSideFile}, End::Works, contents(sideName, QByteArray(5000, '\0')),
            sideName);
        row("half a side file", {noSideFile}, End::Works,
            contents(sideName, R"({"versione":1,"nome":"Rossi Anna","scheda":{)"), sideName);
        row(
            "side file a folder", {noSideFile}, End::Works,
            [](const RealProgram& p) { QDir().mkpath(p.file(sideName)); }, sideName);
    }
    void startMeets() {
        QFETCH(const Fault, fault);
        play([&] {
            RealProgram program;
            const QStringList rows = faults::allRows(program);
            QCOMPARE(backupsOf(program).run(), store::Backups::Outcome::Copied);
            fault.come(program);
            const bool existed = QFileInfo::exists(program.file(fault.file));
            const QByteArray bytes = readFile(program.file(fault.file));

            program.start();
            if (fault.end == End::Splash) // tried several times: behind the last one's box the splash shows
                for (program.waitFor(u"messageBox"_s); !program.shows(u"frmSplash"_s);
                     program.waitFor(u"messageBox"_s))
                    program.answer(fault.told.first());
            QString told;
            for (const QString& box : fault.told)
                told = program.answer(box, box == offer ? u"Sì"_s : u"OK"_s);
            const auto anotherBox = [&program] { return program.shows(u"messageBox"_s); };
            // Looked for twice: the first look may still find the last box as it closes.
            QVERIFY(fault.end == End::Refused || !anotherBox() || !anotherBox());
            if (fault.end == End::Splash)
                program.write(u"frmSplash"_s, u"x"_s);
            if (fault.end == End::Works)
                program.leave();
            else
                QCOMPARE(program.waitForEnd(), EXIT_FAILURE);
            holder.reset();
            ::chmod(qPrintable(program.folder()), 0755);

            const bool replaced = fault.file == sideName || fault.told.contains(putBack);
            const QStringList aside = QDir(program.folder()).entryList({u"splash.ps*.danneggiat*"_s});
            QCOMPARE(aside.size(), replaced && existed ? 1 : 0);
            const bool good = store::isGood(program.store());
            if (existed && (replaced || !good || fault.end != End::Works)) // one that works writes its count
                QCOMPARE(readFile(program.file(replaced ? aside.first() : fault.file)), bytes);
            QVERIFY(told.contains(aside.value(0)));
            QVERIFY(good || !fault.told.contains(putBack));
            if (good)
                QCOMPARE(faults::allRows(program), rows);
            program.before = {};
            if (fault.end == End::Splash && good) {
                program.start();
                program.leave();
            }
        });
    }

    /// Salva meets a store that is held, or one that may not grow: told, and the card is there at the next
    /// start. A side file that cannot be written is told once, and the card can be stored all the same.
    void editorMeets_data() {
        QTest::addColumn<QString>("fault");
        for (const char* fault : {"store held", "no room", "side file unwritable"})
            QTest::newRow(fault) << QString::fromLatin1(fault);
    }
    void editorMeets() {
        QFETCH(const QString, fault);
        play([&] {
            RealProgram program;
            const QString aim = u"Tono muscolare "_s.repeated(40);
            const bool unwritable = fault == u"side file unwritable"_s;
            if (unwritable)
                writeFile(program.file(sideName + u".nuova/x"_s));
            if (fault == u"no room"_s) {
                program.sql(u"PRAGMA page_size = 512; VACUUM"_s); // a card does not fit into a page
                limitFiles(program, static_cast<rlim_t>(QFileInfo(program.store()).size()));
            }
            program.start();
            program.openNewCard();
            if (unwritable)
                program.answer(u"Impossibile scrivere «splash.ps.aperta»"_s);
            program.write(u"SchedaIntestazione/Obiettivo"_s, aim);
            const QStringList rows = faults::allRows(program);
            if (fault == u"store held"_s)
                hold(program);
            program.press(u"mdiScheda/salva"_s);
            if (!unwritable) {
                while (!program.answer({}).startsWith(u"Errore "_s)) {
                }
                QCOMPARE(program.waitForEnd(), EXIT_FAILURE);
                holder.reset();
                QCOMPARE(faults::allRows(program), rows);
                program.before = {};
                program.start();
                program.answer(u"Ripristinare la scheda che era aperta per Rossi Anna"_s, u"Sì"_s);
                program.press(u"mdiScheda/salva"_s);
            }
            program.answer(u"Salvataggio effettuato"_s);
            QCOMPARE(program.rows(u"SELECT Obiettivo FROM schede"_s), QStringList(aim));
        });
    }
};

QTEST_GUILESS_MAIN(TestStartFaults)
#include "test_start_faults.moc"
