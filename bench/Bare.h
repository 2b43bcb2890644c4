#pragma once

#include <QString>

#include <memory>
#include <string>
#include <vector>

struct sqlite3;

namespace bench {

/// The store through its C library alone, with the program's journal and synchronisation: the peer of the
/// records. Each statement is prepared from its text, as the program's are. A failure throws
/// std::runtime_error.
class Bare {
public:
    explicit Bare(const QString& store);

    /// Runs a statement that gives no rows.
    void run(const std::string& sql) const;
    /// Reads every column of every row, each in its stored type; gives the number of rows.
    int read(const std::string& sql) const;
    /// The first column of each row.
    std::vector<int> keys(const std::string& sql) const;
    /// The first column of the first row.
    QString text(const std::string& sql) const;

private:
    struct Close {
        void operator()(sqlite3* database) const;
    };
    std::unique_ptr<sqlite3, Close> database_;
};

} // namespace bench
