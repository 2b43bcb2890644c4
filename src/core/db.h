#pragma once

#include "platform/runtime/Variant.h"
#include "platform/store/Connection.h"

#include <QString>

/// The only road to the data store. It takes SQL joined from text and gives its failures back in three
/// ways: it raises; or it shows a box and returns false or 0; or it shows a box and returns a text that
/// begins with "ERR:". An empty `sWhere` means no WHERE clause.
class db {
public:
    /// The shared instance.
    static db& comune();

    db() = default;
    explicit db(QString nome) : dbName(std::move(nome)) {}

    /// File name of the store, relative to the program's directory.
    QString dbName;

    /// An open connection; raises if the file is missing or no store.
    store::Connection getConn() const;
    /// The rows of a query; raises.
    store::Recordset getRs(const QString& sSQL) const;

    /// Always fails, with a box and false: its connection is never assigned. Nothing calls it.
    bool DSave(const QString& field, runtime::Variant& value, const QString& table,
               const QString& where) const;

    /// The first column of the first row, logged; "ERR:Dati non trovati" without a row,
    /// "ERR:Problemi nella connessione" behind a box after a failure.
    runtime::Variant Dlookup(const QString& sField, const QString& sTable, const QString& sWhere) const;
    /// The number of rows, in 16 bits; a box and 0 after a failure.
    qint16 DCount(const QString& sField, const QString& sTable, const QString& sWhere) const;
    /// As Dlookup, without the log.
    runtime::Variant DFirst(const QString& sField, const QString& sTable, const QString& sWhere) const;
    /// The maximum of a column, Null on an empty table; failures as Dlookup, without the log.
    runtime::Variant dMax(const QString& sField, const QString& sTable, const QString& sWhere) const;

    /// Runs a statement, logged; a box with number and description and false after a failure.
    bool Execute(const QString& sSQL) const;

    /// A setting's value, empty for Null; "ERR:Dati non trovati" if it has no row.
    QString Load_Param(const QString& Nome_Param) const;
    /// Stores a setting. `Valore` gets single quotes around it, unless it is NULL in any case of letters.
    runtime::Variant Save_Param(const QString& Param, QString& Valore) const;

    /// A dd/mm/yyyy text as a month-first literal between # signs; "null" for the empty text.
    static QString dataPerSQL(const QString& data);
    /// Apostrophes become backquotes. Error 6 for more than 32767 characters.
    static QString correctApici(const QString& str);
    /// "TRUE" or "FALSE".
    static QString convBooleanToDB(bool val);

private:
    static QString invertiGiornoMese(const QString& data);
};
