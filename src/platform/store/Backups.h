#pragma once

#include <QDateTime>
#include <QList>
#include <QString>

#include <functional>
#include <optional>

namespace store {

/// The number of the schema (user_version) that this program knows.
inline constexpr quint32 schemaVersion = 1;

/// The schema's number as the file's header tells it; nothing if the file is no store.
std::optional<quint32> schemaOf(const QString& path);

enum class Condition {
    Good,      ///< a store of this program, with its tables, that passes SQLite's quick check
    Damaged,   ///< or missing
    OutOfReach ///< another program holds it, or its rights forbid to read it: nothing is known of it
};

/// Reads the whole file, if another program does not hold it for longer than some seconds.
Condition conditionOf(const QString& path);
bool isGood(const QString& path);

/// Dated copies of the store in a folder of their own, all of them readable by their owner alone. The last
/// ten are kept, and the last one of each month for a year.
class Backups {
public:
    using Clock = std::function<QDateTime()>;
    struct Copy {
        QString path;
        QDateTime taken;
    };
    enum class Outcome {
        Copied,
        Unchanged, ///< the newest copy is of the store as it is
        Damaged,   ///< the store is no good: no copy was made, and none removed
        Failed     ///< no room, no rights, or the store is held by another program
    };

    Backups(QString store, QString folder, Clock clock = &QDateTime::currentDateTime);

    /// Makes a consistent copy if the store changed since the last one, checks it, and removes what need not
    /// be kept. Other programs may write meanwhile.
    Outcome run() const;

    /// Newest first, by the dates in their names.
    QList<Copy> copies() const;
    std::optional<Copy> newestGood() const;
    /// What need not be kept at the time `now`, out of copies that stand newest first.
    static QList<Copy> surplus(const QList<Copy>& copies, const QDateTime& now);

    /// Puts a copy in the place of the store, which stays beside it under the name that comes back (empty if
    /// there was none). Nothing, and the store as it was, if a file cannot be written.
    std::optional<QString> restore(const Copy& copy) const;

private:
    bool upToDate() const;

    QString store_;
    QString folder_;
    Clock clock_;
};

} // namespace store
