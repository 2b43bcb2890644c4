#include "Database.h"

#include "CsvFile.h"

#include <sqlite3.h>

using namespace Qt::StringLiterals;

namespace catalogue {

namespace {
constexpr int busyWaitMs = 2000;

[[noreturn]] void fail(const Database& database, const QString& what) {
    throw Error(
        u"%1: %2 (%3)"_s.arg(database.path(), QString::fromUtf8(sqlite3_errmsg(database.handle())), what));
}
} // namespace

void Statement::Finalize::operator()(sqlite3_stmt* statement) const {
    sqlite3_finalize(statement);
}

Statement::Statement(Database& database, const QString& sql) : database_(&database) {
    const QByteArray utf8 = sql.toUtf8();
    sqlite3_stmt* statement = nullptr;
    const int code = sqlite3_prepare_v2(database.handle(), utf8.constData(), -1, &statement, nullptr);
    statement_.reset(statement);
    if (code != SQLITE_OK)
        fail(database, sql);
}

Statement& Statement::bind(int value) {
    if (sqlite3_bind_int(statement_.get(), ++bound_, value) != SQLITE_OK)
        fail(*database_, u"bind"_s);
    return *this;
}

Statement& Statement::bind(double value) {
    if (sqlite3_bind_double(statement_.get(), ++bound_, value) != SQLITE_OK)
        fail(*database_, u"bind"_s);
    return *this;
}

Statement& Statement::bind(const QString& value) {
    const QByteArray utf8 = value.toUtf8();
    // SQLITE_TRANSIENT: SQLite copies the text, ours goes out of scope.
    if (sqlite3_bind_text(statement_.get(), ++bound_, utf8.constData(), static_cast<int>(utf8.size()),
                          SQLITE_TRANSIENT) != SQLITE_OK)
        fail(*database_, u"bind"_s);
    return *this;
}

bool Statement::next() {
    const int code = sqlite3_step(statement_.get());
    if (code != SQLITE_ROW && code != SQLITE_DONE)
        fail(*database_, QString::fromUtf8(sqlite3_sql(statement_.get())));
    return code == SQLITE_ROW;
}

void Statement::run() {
    next();
    sqlite3_reset(statement_.get());
    bound_ = 0;
}

int Statement::integer(int column) const {
    return sqlite3_column_int(statement_.get(), column);
}

QString Statement::text(int column) const {
    return QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(statement_.get(), column)));
}

void Database::Close::operator()(sqlite3* handle) const {
    sqlite3_close(handle);
}

Database::Database(const QString& path, Mode mode) : path_(path) {
    const int flags = mode == Mode::Create     ? SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE
                      : mode == Mode::Existing ? SQLITE_OPEN_READWRITE
                                               : SQLITE_OPEN_READONLY;
    sqlite3* handle = nullptr;
    const int code = sqlite3_open_v2(path.toUtf8().constData(), &handle, flags, nullptr);
    handle_.reset(handle);
    if (code != SQLITE_OK)
        fail(*this, u"open"_s);
    sqlite3_busy_timeout(handle, busyWaitMs);
}

void Database::execute(const QString& sql) {
    if (sqlite3_exec(handle(), sql.toUtf8().constData(), nullptr, nullptr, nullptr) != SQLITE_OK)
        fail(*this, sql.left(80));
}

int Database::scalar(const QString& sql) {
    Statement statement(*this, sql);
    return statement.next() ? statement.integer(0) : 0;
}

int Database::totalChanges() const {
    return sqlite3_total_changes(handle());
}

void Database::copyFrom(Database& source) {
    sqlite3_backup* backup = sqlite3_backup_init(handle(), "main", source.handle(), "main");
    if (backup == nullptr)
        fail(*this, u"copy"_s);
    sqlite3_backup_step(backup, -1);
    if (sqlite3_backup_finish(backup) != SQLITE_OK)
        fail(*this, u"copy from %1"_s.arg(source.path()));
}

} // namespace catalogue
