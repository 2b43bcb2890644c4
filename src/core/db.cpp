#include "core/db.h"

#include "core/Logger.h"
#include "core/ModuloBase.h"
#include "platform/host/ProgramDirectory.h"
#include "platform/host/Services.h"
#include "platform/runtime/Conversions.h"
#include "platform/runtime/Error.h"

using namespace Qt::StringLiterals;

namespace {

const QString datiNonTrovati = u"ERR:Dati non trovati"_s;
const QString problemiConnessione = u"ERR:Problemi nella connessione"_s;

/// "SELECT campo FROM tabella [WHERE criterio]"; without a criterion the text keeps its trailing blank.
QString selezione(const QString& campo, const QString& tabella, const QString& criterio) {
    const QString sql = u"SELECT "_s + campo + u" FROM "_s + tabella + u' ';
    return criterio.isEmpty() ? sql : sql + u"WHERE "_s + criterio;
}

void mostraNumero(const runtime::Error& errore) {
    host::message(QString::number(errore.number()) + u'-' + errore.description());
}

} // namespace

db& db::comune() {
    static db shared;
    return shared;
}

store::Connection db::getConn() const {
    store::Connection connessione(host::programDirectory() + u'/' + dbName);
    connessione.Open();
    return connessione;
}

store::Recordset db::getRs(const QString& sSQL) const {
    return getConn().Query(sSQL);
}

bool db::DSave(const QString& field, runtime::Variant& value, const QString& table,
               const QString& where) const {
    try {
        if (!value.isNull() && !value.isNumeric()) {
            const QString maiuscolo = value.toText().toUpper();
            if (maiuscolo == u"VERO"_s)
                value = u"TRUE"_s;
            else if (maiuscolo == u"FALSO"_s)
                value = u"FALSE"_s;
        } else if (!value.isNull()) {
            const double numero = value.toDouble();
            value = (numero < 0 ? QString() : u" "_s) + runtime::numberText(numero);
        }
        store::Connection* connessione = nullptr; // never assigned, by design
        if (!connessione)
            runtime::raise(runtime::ObjectNotSet);
        connessione->Execute(u"UPDATE "_s + table + u" SET "_s + field + u'=' + value.toText() +
                             u" WHERE "_s + where);
        return true;
    } catch (const runtime::Error& errore) {
        mostraNumero(errore);
        return false;
    }
}

runtime::Variant db::Dlookup(const QString& sField, const QString& sTable, const QString& sWhere) const {
    try {
        const QString sql = selezione(sField, sTable, sWhere);
        const store::Recordset righe = getRs(sql);
        Logger::comune().log(u"DLOOKUP - "_s + sql);
        if (righe.RecordCount() < 1) {
            Logger::comune().log(u"DLOOKUP - Errore dati non trovati"_s);
            return datiNonTrovati;
        }
        return righe.Fields(0).Value();
    } catch (const runtime::Error& errore) {
        host::message(errore.description());
        Logger::comune().log(u"DLOOKUP - "_s + problemiConnessione);
        return problemiConnessione;
    }
}

runtime::Variant db::DFirst(const QString& sField, const QString& sTable, const QString& sWhere) const {
    try {
        const store::Recordset righe = getRs(selezione(sField, sTable, sWhere));
        return righe.RecordCount() < 1 ? runtime::Variant(datiNonTrovati) : righe(sField);
    } catch (const runtime::Error& errore) {
        host::message(errore.description());
        return problemiConnessione;
    }
}

runtime::Variant db::dMax(const QString& sField, const QString& sTable, const QString& sWhere) const {
    try {
        const store::Recordset righe = getRs(selezione(u"MAX("_s + sField + u") as dMax"_s, sTable, sWhere));
        return righe.RecordCount() < 1 ? runtime::Variant(datiNonTrovati) : righe(u"dMax");
    } catch (const runtime::Error& errore) {
        host::message(errore.description());
        return problemiConnessione;
    }
}

qint16 db::DCount(const QString& sField, const QString& sTable, const QString& sWhere) const {
    try {
        const store::Recordset righe =
            getRs(selezione(u"COUNT("_s + sField + u") AS Conteggio"_s, sTable, sWhere));
        return righe(u"Conteggio").toInt16();
    } catch (const runtime::Error& errore) {
        host::message(errore.description());
        return 0;
    }
}

bool db::Execute(const QString& sSQL) const {
    try {
        store::Connection connessione = getConn();
        Logger::comune().log(u"Execute - "_s + sSQL);
        connessione.Execute(sSQL);
        return true;
    } catch (const runtime::Error& errore) {
        mostraNumero(errore);
        return false;
    }
}

QString db::Load_Param(const QString& Nome_Param) const {
    return ModuloBase::nullToStringa(
        Dlookup(u"VALORE"_s, u"Parametri"_s, u"PARAMETRO = '"_s + Nome_Param + u'\''));
}

runtime::Variant db::Save_Param(const QString& Param, QString& Valore) const {
    if (Valore.toUpper() != u"NULL"_s)
        Valore = u'\'' + Valore + u'\'';
    const QString tabella = u"Parametri"_s;
    const qint16 righe = DCount(u"parametro"_s, tabella, u"parametro ='"_s + Param + u'\'');
    if (righe >= 1)
        Execute(u"UPDATE "_s + tabella + u" SET VALORE = "_s + Valore + u" WHERE Parametro = '"_s + Param +
                u'\'');
    else
        Execute(u"INSERT INTO "_s + tabella + u" (parametro, valore) VALUES ('"_s + Param + u"', "_s +
                Valore + u") "_s);
    return {};
}

QString db::dataPerSQL(const QString& data) {
    return data.isEmpty() ? u"null"_s : u'#' + invertiGiornoMese(data) + u'#';
}

QString db::invertiGiornoMese(const QString& data) {
    // By position, dd?mm?yyyy: no separator is looked at, and what follows the year goes along.
    if (data.size() < 8)
        return {};
    return data.mid(3, 2) + u'/' + data.left(2) + u'/' + data.mid(6);
}

QString db::correctApici(const QString& str) {
    runtime::toInt16(static_cast<double>(str.size())); // the length is held in 16 bits
    QString corretto = str;
    return corretto.replace(u'\'', u'`');
}

QString db::convBooleanToDB(bool val) {
    return val ? u"TRUE"_s : u"FALSE"_s;
}
