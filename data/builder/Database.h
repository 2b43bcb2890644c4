#pragma once

#include <QString>

#include <memory>

struct sqlite3;
struct sqlite3_stmt;

namespace catalogue {

class Database;

/// A prepared statement; parameters are bound in the order of their marks.
class Statement {
public:
    Statement(Database& database, const QString& sql);

    Statement& bind(int value);
    Statement& bind(double value);
    Statement& bind(const QString& value);

    /// Runs to the next row: true while there is one. Throws Error on failure.
    bool next();
    /// Runs a statement that gives no rows and makes it ready for new values. Throws Error on failure.
    void run();

    /// Columns of the current row, counted from 0.
    int integer(int column) const;
    QString text(int column) const;

private:
    struct Finalize {
        void operator()(sqlite3_stmt* statement) const;
    };
    Database* database_;
    std::unique_ptr<sqlite3_stmt, Finalize> statement_;
    int bound_ = 0;
};

/// An open SQLite file. Every failure is an Error with SQLite's own message.
class Database {
public:
    enum class Mode {
        Create,   ///< a new file; one that is there already is an Error of the caller
        Existing, ///< read and write, never created
        ReadOnly
    };
    Database(const QString& path, Mode mode);

    /// Runs any number of statements.
    void execute(const QString& sql);
    /// The first column of the first row of `sql`, 0 if there is no row.
    int scalar(const QString& sql);
    /// Rows changed since the file was opened.
    int totalChanges() const;
    /// Copies the whole of `source` into this database, undoing what a crash had left half written there.
    void copyFrom(Database& source);

    sqlite3* handle() const { return handle_.get(); }
    const QString& path() const { return path_; }

private:
    struct Close {
        void operator()(sqlite3* handle) const;
    };
    QString path_;
    std::unique_ptr<sqlite3, Close> handle_;
};

} // namespace catalogue
