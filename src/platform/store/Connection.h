#pragma once

#include "platform/store/Recordset.h"

#include <QString>

#include <memory>

namespace store {

class File;

/// A road to one data file, opened for reading and writing and never created: rollback journal, full
/// synchronisation, two seconds of patience with other programs. Connections to the same file share the
/// open file behind them, which is opened anew when the file was removed, replaced or rewritten, so that
/// each behaves as if it had its own. Every failure is a store::Error.
class Connection {
public:
    /// Names the file; opens nothing.
    explicit Connection(QString path);

    void Open();
    void Close() { file_.reset(); }
    /// 0 closed, 1 open.
    int State() const { return file_ ? 1 : 0; }

    /// Runs one statement of the program's SQL and commits it. Text behind its end is refused.
    void Execute(const QString& sql);
    /// Runs one query and reads all its rows.
    Recordset Query(const QString& sql);

private:
    File& file() const;

    QString path_;
    std::shared_ptr<File> file_;
};

} // namespace store
