#include "athletes/utente.h"

#include "core/ModuloBase.h"
#include "platform/host/Services.h"
#include "platform/runtime/Dates.h"
#include "platform/runtime/Error.h"

using namespace Qt::StringLiterals;

utente::utente() : archivio_(&db::comune()) {}

qint32 utente::save() {
    const auto manca = [](const runtime::Variant& valore) { return valore.isNull(); };
    if ((manca(nome) && manca(cognome)) || manca(dataNascita)) // never with these types
        runtime::raise(runtime::OwnErrors, u"Mancano dati fondamentali!"_s);
    raccoglitore.id_utente = id_utente;
    const QString nascita = db::dataPerSQL(runtime::dateText(dataNascita));
    if (id_utente == 0) {
        archivio_->Execute(u"INSERT INTO utenti (nome,cognome,dataNascita,sesso,[Note]) VALUES ('"_s +
                           db::correctApici(nome) + u"','"_s + db::correctApici(cognome) + u"',"_s + nascita +
                           u",'"_s + sesso + u"','"_s + db::correctApici(note) + u"')"_s);
        return archivio_->dMax(u"id_utente"_s, u"utenti"_s, {}).toInt32();
    }
    archivio_->Execute(u"UPDATE utenti SET nome= '"_s + db::correctApici(nome) + u"',cognome = '"_s +
                       db::correctApici(cognome) + u"',sesso= '"_s + sesso + u"',dataNascita = "_s + nascita +
                       u",[Note]='"_s + db::correctApici(note) + u"' WHERE id_utente="_s +
                       QString::number(id_utente));
    return 0;
}

bool utente::carica(qint32 chiave) {
    const store::Recordset riga =
        archivio_->getRs(u"SELECT * From UTENTI WHERE id_utente = "_s + QString::number(chiave));
    if (riga.EOF_()) {
        host::message(u"ERR:Problemi di connessione"_s, host::Icon::Critical);
        return false;
    }
    cognome = riga(u"cognome").toText();
    nome = riga(u"nome").toText();
    id_utente = chiave;
    dataNascita = ModuloBase::nullToData(riga(u"dataNascita")).date();
    sesso = ModuloBase::nullToStringa(riga(u"sesso"));
    note = ModuloBase::nullToStringa(riga(u"note"));
    raccoglitore.id_utente = chiave;
    return true;
}

bool utente::Elimina(qint32 chiave) {
    const bool eliminato =
        archivio_->Execute(u"DELETE * FROM utenti WHERE id_utente="_s + QString::number(chiave));
    raccoglitore.id_utente = chiave;
    raccoglitore.EliminaTutto();
    return eliminato;
}

bool utente::Add(const std::shared_ptr<scheda>& s) {
    s->id_utente = id_utente;
    raccoglitore.Add(s);
    s->save();
    return false;
}
