#include "Bare.h"

#include <QFile>

#include <benchmark/benchmark.h>
#include <sqlite3.h>

#include <stdexcept>

namespace bench {

namespace {

struct Finalize {
    void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
};
using Statement = std::unique_ptr<sqlite3_stmt, Finalize>;

Statement prepare(sqlite3* database, const std::string& sql) {
    sqlite3_stmt* handle = nullptr;
    if (sqlite3_prepare_v2(database, sql.c_str(), static_cast<int>(sql.size()), &handle, nullptr) !=
        SQLITE_OK)
        throw std::runtime_error(sqlite3_errmsg(database) + (": " + sql));
    return Statement(handle);
}

void readColumn(sqlite3_stmt* statement, int column) {
    switch (sqlite3_column_type(statement, column)) {
    case SQLITE_INTEGER:
        benchmark::DoNotOptimize(sqlite3_column_int64(statement, column));
        break;
    case SQLITE_FLOAT:
        benchmark::DoNotOptimize(sqlite3_column_double(statement, column));
        break;
    default:
        benchmark::DoNotOptimize(sqlite3_column_text(statement, column));
    }
}

} // namespace

void Bare::Close::operator()(sqlite3* database) const {
    sqlite3_close(database);
}

Bare::Bare(const QString& store) {
    sqlite3* handle = nullptr;
    const int code =
        sqlite3_open_v2(QFile::encodeName(store).constData(), &handle, SQLITE_OPEN_READWRITE, nullptr);
    database_.reset(handle);
    if (code != SQLITE_OK)
        throw std::runtime_error(sqlite3_errstr(code));
    read("PRAGMA journal_mode=DELETE");
    run("PRAGMA synchronous=FULL");
}

void Bare::run(const std::string& sql) const {
    const Statement statement = prepare(database_.get(), sql);
    if (sqlite3_step(statement.get()) != SQLITE_DONE)
        throw std::runtime_error(sqlite3_errmsg(database_.get()) + (": " + sql));
}

int Bare::read(const std::string& sql) const {
    const Statement statement = prepare(database_.get(), sql);
    const int columns = sqlite3_column_count(statement.get());
    int rows = 0;
    for (; sqlite3_step(statement.get()) == SQLITE_ROW; ++rows)
        for (int i = 0; i < columns; ++i)
            readColumn(statement.get(), i);
    return rows;
}

std::vector<int> Bare::keys(const std::string& sql) const {
    const Statement statement = prepare(database_.get(), sql);
    std::vector<int> keys;
    while (sqlite3_step(statement.get()) == SQLITE_ROW)
        keys.push_back(sqlite3_column_int(statement.get(), 0));
    return keys;
}

QString Bare::text(const std::string& sql) const {
    const Statement statement = prepare(database_.get(), sql);
    if (sqlite3_step(statement.get()) != SQLITE_ROW)
        return {};
    return QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(statement.get(), 0)));
}

} // namespace bench
