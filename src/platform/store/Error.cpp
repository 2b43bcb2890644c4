#include "platform/store/Error.h"

#include <sqlite3.h>

#include <utility>

namespace store {

namespace {

QString reason(int code) {
    switch (code & 0xff) {
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
        return QStringLiteral("L’archivio è occupato da un altro programma");
    case SQLITE_CANTOPEN:
        return QStringLiteral("Impossibile aprire l’archivio");
    case SQLITE_READONLY:
    case SQLITE_PERM:
        return QStringLiteral("L’archivio è di sola lettura");
    case SQLITE_NOTADB:
    case SQLITE_CORRUPT:
        return QStringLiteral("Il file dell’archivio è danneggiato o non è un archivio");
    case SQLITE_FULL:
        return QStringLiteral("Spazio su disco esaurito");
    case SQLITE_IOERR:
        return QStringLiteral("Errore di lettura o scrittura dell’archivio");
    case SQLITE_CONSTRAINT:
        return QStringLiteral("Il valore non è ammesso dall’archivio");
    case SQLITE_ERROR:
        return QStringLiteral("Istruzione non riconosciuta dall’archivio");
    default:
        return QStringLiteral("Errore dell’archivio");
    }
}

} // namespace

Error::Error(int code, const QString& detail, QString sql)
    : runtime::Error(code, reason(code) + QStringLiteral(" (") + detail + u')', QStringLiteral("splash.ps")),
      sql_(std::move(sql)) {}

} // namespace store
