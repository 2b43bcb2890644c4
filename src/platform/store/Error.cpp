#include "platform/store/Error.h"

#include <sqlite3.h>

#include <utility>

using namespace Qt::StringLiterals;

namespace store {

namespace {

QString reason(int code) {
    switch (code & 0xff) {
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
        return u"L’archivio è occupato da un altro programma"_s;
    case SQLITE_CANTOPEN:
        return u"Impossibile aprire l’archivio"_s;
    case SQLITE_READONLY:
    case SQLITE_PERM:
        return u"L’archivio è di sola lettura"_s;
    case SQLITE_NOTADB:
    case SQLITE_CORRUPT:
        return u"Il file dell’archivio è danneggiato o non è un archivio"_s;
    case SQLITE_FULL:
        return u"Spazio su disco esaurito"_s;
    case SQLITE_IOERR:
        return u"Errore di lettura o scrittura dell’archivio"_s;
    case SQLITE_CONSTRAINT:
        return u"Il valore non è ammesso dall’archivio"_s;
    case SQLITE_ERROR:
        return u"Istruzione non riconosciuta dall’archivio"_s;
    default:
        return u"Errore dell’archivio"_s;
    }
}

} // namespace

Error::Error(int code, const QString& detail, QString sql)
    : runtime::Error(code, reason(code) + u" ("_s + detail + u')', u"splash.ps"_s), sql_(std::move(sql)) {}

} // namespace store
