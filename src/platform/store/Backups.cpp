#include "platform/store/Backups.h"

#include "platform/store/Handles.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSet>
#include <QtEndian>

#include <fcntl.h>
#include <unistd.h>

#include <cstdio>
#include <utility>

using namespace Qt::StringLiterals;

namespace store {

namespace {

constexpr int keptLast = 10;
constexpr int pagesAtOnce = 512; // between two steps other programs may write
constexpr int pauseMs = 5;
constexpr int patienceMs = 20000; // for a store that another program holds
const QString stampFormat = u"yyyy-MM-dd_HH-mm-ss"_s;

/// Reading and writing: a journal left by a crash can be played back then. Null on a failure.
Database open(const QString& path) {
    sqlite3* handle = nullptr;
    const int code =
        sqlite3_open_v2(QFile::encodeName(path).constData(), &handle, SQLITE_OPEN_READWRITE, nullptr);
    Database database(handle);
    if (code != SQLITE_OK)
        return {};
    sqlite3_busy_timeout(handle, patienceMs / 4);
    return database;
}

/// The text of the first column of the first row; nothing after a failure.
std::optional<QByteArray> first(sqlite3* database, const char* sql) {
    sqlite3_stmt* handle = nullptr;
    if (sqlite3_prepare_v2(database, sql, -1, &handle, nullptr) != SQLITE_OK)
        return {};
    const Statement statement(handle);
    if (sqlite3_step(handle) != SQLITE_ROW)
        return {};
    return QByteArray(reinterpret_cast<const char*>(sqlite3_column_text(handle, 0)));
}

bool isCorruption(int code) {
    return (code & 0xff) == SQLITE_CORRUPT || (code & 0xff) == SQLITE_NOTADB;
}

bool isHeld(int code) {
    return (code & 0xff) == SQLITE_BUSY || (code & 0xff) == SQLITE_LOCKED;
}

/// All pages of one store into another; the result code of the library.
int copyPages(sqlite3* from, sqlite3* to) {
    sqlite3_backup* backup = sqlite3_backup_init(to, "main", from, "main");
    if (backup == nullptr)
        return sqlite3_errcode(to);
    int code = SQLITE_OK;
    for (int waited = 0; code == SQLITE_OK || (isHeld(code) && waited < patienceMs);) {
        code = sqlite3_backup_step(backup, pagesAtOnce);
        if (code != SQLITE_DONE) {
            sqlite3_sleep(pauseMs);
            waited += code == SQLITE_OK ? 0 : pauseMs;
        }
    }
    const int finished = sqlite3_backup_finish(backup);
    return code == SQLITE_DONE ? finished : code;
}

/// Makes an empty file for the owner alone, in the place of any other.
bool makePrivate(const QString& path) {
    const QByteArray name = QFile::encodeName(path);
    ::unlink(name.constData());
    const int file = ::open(name.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, S_IRUSR | S_IWUSR);
    return file >= 0 && ::close(file) == 0;
}

bool moveOver(const QString& from, const QString& to) {
    return std::rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) == 0;
}

} // namespace

std::optional<quint32> schemaOf(const QString& path) {
    constexpr qsizetype at = 60; // in the header of 100 bytes
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    const QByteArray header = file.read(100);
    if (header.size() < 100 || !header.startsWith(QByteArray("SQLite format 3\0", 16)))
        return {};
    return qFromBigEndian<quint32>(header.constData() + at);
}

Condition conditionOf(const QString& path) {
    const QFileInfo info(path);
    if (info.exists() && !info.isReadable())
        return Condition::OutOfReach;
    if (schemaOf(path) != schemaVersion)
        return Condition::Damaged;
    const Database database = open(path);
    if (!database)
        return Condition::Damaged;
    for (const auto& [question, answer] :
         {std::pair("SELECT count(*) FROM sqlite_master WHERE type='table' AND lower(name) IN "
                    "('utenti','schede','esercizi','schedemodello','esercizimodello','figure',"
                    "'categorie','parametri')",
                    "8"),
          std::pair("PRAGMA quick_check(1)", "ok")}) {
        const auto found = first(database.get(), question);
        if (!found && isHeld(sqlite3_errcode(database.get())))
            return Condition::OutOfReach;
        if (found != answer)
            return Condition::Damaged;
    }
    return Condition::Good;
}

bool isGood(const QString& path) {
    return conditionOf(path) == Condition::Good;
}

Backups::Backups(QString store, QString folder, Clock clock)
    : store_(std::move(store)), folder_(std::move(folder)), clock_(std::move(clock)) {}

bool Backups::upToDate() const {
    const QList<Copy> all = copies();
    return !all.isEmpty() && QFileInfo(all.first().path).lastModified() == QFileInfo(store_).lastModified();
}

Backups::Outcome Backups::run() const {
    if (upToDate()) {
        const Condition condition = conditionOf(store_);
        if (condition == Condition::OutOfReach)
            return Outcome::Failed;
        return condition == Condition::Good ? Outcome::Unchanged : Outcome::Damaged;
    }
    const QFileInfo store(store_);
    const QDateTime state = store.lastModified(); // a later change makes another copy next time
    const Database from = open(store_);
    if (!from)
        return Outcome::Failed;
    if (!QDir().mkpath(folder_) ||
        !QFile::setPermissions(folder_, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner))
        return Outcome::Failed;
    const QString unfinished = folder_ + u"/incompleta.nuova"_s;
    if (!makePrivate(unfinished))
        return Outcome::Failed;
    int code = SQLITE_CANTOPEN;
    if (const Database to = open(unfinished)) {
        first(to.get(), "PRAGMA journal_mode=OFF"); // a copy that does not end is thrown away
        code = copyPages(from.get(), to.get());
    }
    Outcome outcome = Outcome::Copied;
    if (code != SQLITE_OK)
        outcome = isCorruption(code) ? Outcome::Damaged : Outcome::Failed;
    else if (!isGood(unfinished))
        outcome = Outcome::Damaged;
    if (outcome != Outcome::Copied) {
        QFile::remove(unfinished);
        return outcome;
    }
    QFile copy(unfinished);
    if (!copy.open(QIODevice::ReadWrite) || !copy.setFileTime(state, QFileDevice::FileModificationTime))
        return Outcome::Failed;
    copy.close();
    const QDateTime now = clock_();
    const QString name =
        folder_ + u'/' + store.completeBaseName() + u'-' + now.toString(stampFormat) + u'.' + store.suffix();
    if (!moveOver(unfinished, name))
        return Outcome::Failed;
    for (const Copy& old : surplus(copies(), now))
        QFile::remove(old.path);
    return outcome;
}

QList<Backups::Copy> Backups::copies() const {
    const QFileInfo store(store_);
    const QString before = store.completeBaseName() + u'-';
    const QString behind = u'.' + store.suffix();
    QList<Copy> found;
    // The names sort as their dates do.
    for (const QString& name :
         QDir(folder_).entryList({before + u'*' + behind}, QDir::Files, QDir::Name | QDir::Reversed)) {
        const QString stamp = name.mid(before.size(), name.size() - before.size() - behind.size());
        const QDateTime taken = QDateTime::fromString(stamp, stampFormat);
        if (taken.isValid())
            found.append({folder_ + u'/' + name, taken});
    }
    return found;
}

std::optional<Backups::Copy> Backups::newestGood() const {
    for (const Copy& copy : copies())
        if (isGood(copy.path))
            return copy;
    return {};
}

QList<Backups::Copy> Backups::surplus(const QList<Copy>& copies, const QDateTime& now) {
    const QDateTime yearAgo = now.addYears(-1);
    QSet<int> months;
    QList<Copy> result;
    for (qsizetype i = 0; i < copies.size(); ++i) {
        const QDate day = copies[i].taken.date();
        const int month = day.year() * 12 + day.month();
        const bool lastOfMonth = !months.contains(month);
        months.insert(month);
        if (i >= keptLast && !(lastOfMonth && copies[i].taken >= yearAgo))
            result.append(copies[i]);
    }
    return result;
}

std::optional<QString> Backups::restore(const Copy& copy) const {
    const QString fresh = store_ + u".nuova"_s;
    QFile::remove(fresh);
    if (!QFile::copy(copy.path, fresh) || !isGood(fresh)) {
        QFile::remove(fresh);
        return {};
    }
    QString aside;
    if (QFileInfo::exists(store_)) {
        QFile::setPermissions(fresh, QFile::permissions(store_));
        aside = store_ + u".danneggiato-"_s + clock_().toString(stampFormat);
        for (int n = 2; QFileInfo::exists(aside); ++n)
            aside = store_ + u".danneggiato-"_s + clock_().toString(stampFormat) + u'-' + QString::number(n);
        if (!moveOver(store_, aside)) {
            QFile::remove(fresh);
            return {};
        }
    }
    // A journal of the damaged file must never be played into the copy.
    const QString journal = u"-journal"_s;
    const bool journalGone =
        !QFileInfo::exists(store_ + journal) ||
        moveOver(store_ + journal, (aside.isEmpty() ? store_ + u".danneggiato"_s : aside) + journal);
    if (journalGone && moveOver(fresh, store_))
        return aside;
    if (!aside.isEmpty())
        moveOver(aside, store_);
    QFile::remove(fresh);
    return {};
}

} // namespace store
