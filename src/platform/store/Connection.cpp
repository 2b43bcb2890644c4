#include "platform/store/Connection.h"

#include "platform/store/Dialect.h"
#include "platform/store/Error.h"
#include "platform/store/Handles.h"

#include <QFile>

#include <sys/stat.h>

#include <utility>

using namespace Qt::StringLiterals;

namespace store {

namespace {

constexpr int busyTimeoutMs = 2000;

/// What tells one state of a file from another; a missing file has no stamp.
struct Stamp {
    dev_t device = 0;
    ino_t node = 0;
    off_t size = 0;
    timespec changed{};

    bool operator==(const Stamp& other) const {
        return device == other.device && node == other.node && size == other.size &&
               changed.tv_sec == other.changed.tv_sec && changed.tv_nsec == other.changed.tv_nsec;
    }
};

bool readStamp(const QByteArray& path, Stamp& stamp) {
    struct stat status {};
    if (stat(path.constData(), &status) != 0)
        return false;
    stamp = {status.st_dev, status.st_ino, status.st_size, status.st_mtim};
    return true;
}

ColumnType declaredType(const char* declared) {
    if (!declared)
        return ColumnType::Plain;
    if (qstricmp(declared, "TEXT") == 0)
        return ColumnType::Text;
    if (qstricmp(declared, "DATE") == 0)
        return ColumnType::Date;
    if (qstricmp(declared, "BOOLEAN") == 0)
        return ColumnType::Boolean;
    if (qstricmp(declared, "BYTE") == 0)
        return ColumnType::Byte;
    return ColumnType::Plain;
}

Cell readCell(sqlite3_stmt* statement, int column) {
    switch (sqlite3_column_type(statement, column)) {
    case SQLITE_INTEGER:
        return qint64{sqlite3_column_int64(statement, column)};
    case SQLITE_FLOAT:
        return sqlite3_column_double(statement, column);
    case SQLITE_NULL:
        return {};
    default: // a blob is read as text
        const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement, column));
        return QString::fromUtf8(text, sqlite3_column_bytes(statement, column));
    }
}

} // namespace

/// One open data file. Every call into the store's library goes through here and is checked.
class File {
public:
    explicit File(QByteArray path) : path_(std::move(path)) {
        if (!readStamp(path_, stamp_))
            throw Error(SQLITE_CANTOPEN, u"file non trovato: "_s + QFile::decodeName(path_));
        sqlite3* handle = nullptr;
        const int code = sqlite3_open_v2(path_.constData(), &handle, SQLITE_OPEN_READWRITE, nullptr);
        database_.reset(handle);
        if (code != SQLITE_OK)
            fail(code, {});
        sqlite3_extended_result_codes(handle, 1);
        sqlite3_busy_timeout(handle, busyTimeoutMs);
        // A misspelt name is an error, never a text.
        sqlite3_db_config(handle, SQLITE_DBCONFIG_DQS_DML, 0, nullptr);
        run(u"PRAGMA journal_mode=DELETE"_s);
        run(u"PRAGMA synchronous=FULL"_s);
        renewStamp();
    }

    /// The open file of `path`: the one that is kept, or a new one when there is none or the file is not
    /// what it was.
    static std::shared_ptr<File> of(const QByteArray& path) {
        static std::shared_ptr<File> kept;
        if (kept && !kept->isCurrent(path))
            kept.reset();
        if (!kept)
            kept = std::make_shared<File>(path);
        return kept;
    }

    void run(const QString& sql) {
        const Statement statement = prepare(sql);
        int code = SQLITE_ROW;
        while (code == SQLITE_ROW)
            code = sqlite3_step(statement.get());
        if (code != SQLITE_DONE)
            fail(code, sql);
    }

    Recordset query(const QString& sql) {
        const Statement statement = prepare(sql);
        const int count = sqlite3_column_count(statement.get());
        std::vector<Column> columns;
        columns.reserve(static_cast<std::size_t>(count));
        for (int i = 0; i < count; ++i)
            columns.push_back({QString::fromUtf8(sqlite3_column_name(statement.get(), i)),
                               declaredType(sqlite3_column_decltype(statement.get(), i))});
        std::vector<Cell> cells;
        int code = SQLITE_ROW;
        while ((code = sqlite3_step(statement.get())) == SQLITE_ROW)
            for (int i = 0; i < count; ++i)
                cells.push_back(readCell(statement.get(), i));
        if (code != SQLITE_DONE)
            fail(code, sql);
        return {std::move(columns), std::move(cells)};
    }

    /// Takes the file's state after a write of our own, which is no reason to open it anew.
    void renewStamp() { readStamp(path_, stamp_); }

private:
    bool isCurrent(const QByteArray& path) const {
        Stamp now;
        return path == path_ && readStamp(path_, now) && now == stamp_;
    }

    Statement prepare(const QString& sql) {
        const QByteArray text = sql.toUtf8();
        sqlite3_stmt* handle = nullptr;
        const char* tail = nullptr;
        const int code = sqlite3_prepare_v2(database_.get(), text.constData(), static_cast<int>(text.size()),
                                            &handle, &tail);
        Statement statement(handle);
        if (code != SQLITE_OK)
            fail(code, sql);
        if (!statement)
            throw Error(SQLITE_ERROR, u"istruzione vuota"_s, sql);
        const auto rest = QByteArrayView(tail, text.constData() + text.size()).trimmed();
        if (!rest.isEmpty())
            throw Error(SQLITE_ERROR, u"testo dopo la fine dell’istruzione"_s, sql);
        return statement;
    }

    [[noreturn]] void fail(int code, const QString& sql) const {
        const int extended = database_ ? sqlite3_extended_errcode(database_.get()) : code;
        throw Error(extended == SQLITE_OK ? code : extended,
                    database_ ? QString::fromUtf8(sqlite3_errmsg(database_.get()))
                              : QString::fromUtf8(sqlite3_errstr(code)),
                    sql);
    }

    QByteArray path_;
    Stamp stamp_;
    Database database_;
};

Connection::Connection(QString path) : path_(std::move(path)) {}

void Connection::Open() {
    file_ = File::of(QFile::encodeName(path_));
}

File& Connection::file() const {
    if (!file_)
        runtime::raise(runtime::ObjectNotSet);
    return *file_;
}

void Connection::Execute(const QString& sql) {
    file().run(translate(sql));
    file().renewStamp();
}

Recordset Connection::Query(const QString& sql) {
    return file().query(translate(sql));
}

} // namespace store
