#include "faults/StoreContents.h"

#include <QFile>

#include <sqlite3.h>

#include <memory>
#include <stdexcept>

using namespace Qt::StringLiterals;

namespace storeContents {

namespace {

using Store = std::unique_ptr<sqlite3, decltype(&sqlite3_close)>;

Store open(const QString& path) {
    sqlite3* handle = nullptr;
    const int code =
        sqlite3_open_v2(QFile::encodeName(path).constData(), &handle, SQLITE_OPEN_READWRITE, nullptr);
    Store store(handle, &sqlite3_close);
    if (code != SQLITE_OK)
        throw std::runtime_error(sqlite3_errstr(code));
    return store;
}

void run(const Store& store, const QString& sql, QStringList* rows = nullptr, const QString& before = {}) {
    struct Target {
        QStringList* rows;
        QString before;
    } target{rows, before};
    const auto keep = [](void* to, int count, char** values, char** /*names*/) {
        auto* kept = static_cast<Target*>(to);
        QStringList cells;
        for (int i = 0; i < count; ++i)
            cells += values[i] ? QString::fromUtf8(values[i]) : u"NULL"_s;
        kept->rows->append(kept->before + cells.join(u'|'));
        return 0;
    };
    char* text = nullptr;
    if (sqlite3_exec(store.get(), sql.toUtf8().constData(), rows ? +keep : nullptr, &target, &text) !=
        SQLITE_OK) {
        const std::string reason = text ? text : "no reason";
        sqlite3_free(text);
        throw std::runtime_error(reason + ": " + sql.toStdString());
    }
}

} // namespace

QStringList of(const QString& path) {
    const Store store = open(path);
    QStringList tables;
    run(store, u"SELECT name FROM sqlite_master WHERE type = 'table' ORDER BY name"_s, &tables);
    QStringList rows;
    for (const QString& table : tables)
        run(store, u"SELECT * FROM \"%1\" ORDER BY 1, 2"_s.arg(table), &rows, table + u": "_s);
    return rows;
}

void apply(const QString& path, const QString& sql) {
    run(open(path), sql);
}

} // namespace storeContents
