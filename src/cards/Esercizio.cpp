#include "cards/Esercizio.h"

#include "core/ModuloBase.h"
#include "platform/host/Services.h"
#include "platform/runtime/Conversions.h"
#include "platform/runtime/Error.h"

using namespace Qt::StringLiterals;

Esercizio::Esercizio() : archivio_(ModuloBase::nomeArchivio()) {}

QString Esercizio::tabella() const {
    return isModello ? u"EserciziModello"_s : u"Esercizi"_s;
}

qint32 Esercizio::save() {
    if (runtime::Variant(nprog).isNull() || runtime::Variant(id_fig).isNull())
        runtime::raise(runtime::OwnErrors, u"Mancano dati fondamentali!"_s);
    const auto numero = [](qint32 valore) { return QString::number(valore); };
    if (ct == 0) {
        // `serie` stands between quotes here and bare below: the store absorbs it.
        archivio_.Execute(u"INSERT INTO "_s + tabella() +
                          u"  (NProg, ID_Scheda, ID_Fig, "
                          "Durata, Frequenza, Ampiezza, RecuperoMin,RecuperoSec,"
                          "Serie, Modalita, Peso, isLibero, [Note])  "
                          "VALUES ("_s +
                          numero(nprog) + u',' + numero(id_scheda) + u',' + numero(id_fig) + u",'"_s +
                          durata + u"','"_s + frequenza + u"','"_s + ampiezza + u"',"_s +
                          numero(recuperoMin) + u',' + numero(recuperoSec) + u",'"_s + numero(serie) +
                          u"','"_s + modalita + u"','"_s + peso + u"',"_s + db::convBooleanToDB(isLibero) +
                          u",'"_s + db::correctApici(note) + u"')"_s);
        ct = archivio_.dMax(u"ct"_s, tabella(), {}).toInt32();
        return ct;
    }
    archivio_.Execute(u"UPDATE "_s + tabella() + u" SET NProg = "_s + numero(nprog) + u",ID_Scheda = "_s +
                      numero(id_scheda) + u",ID_Fig = "_s + numero(id_fig) + u",Durata = '"_s + durata +
                      u"',Frequenza = '"_s + frequenza + u"',Ampiezza = '"_s + ampiezza +
                      u"',RecuperoMin = "_s + numero(recuperoMin) + u",RecuperoSec = "_s +
                      numero(recuperoSec) + u",Serie = "_s + numero(serie) + u",Modalita = '"_s + modalita +
                      u"',peso = '"_s + peso + u"',isLibero = "_s + db::convBooleanToDB(isLibero) +
                      u",[Note]='"_s + db::correctApici(note) + u"' WHERE ct="_s + numero(ct));
    return 0;
}

bool Esercizio::carica(qint32 chiave) {
    const store::Recordset riga =
        archivio_.getRs(u"SELECT * From "_s + tabella() + u" WHERE ct = "_s + QString::number(chiave));
    if (riga.EOF_()) {
        host::message(u"ERR:Problemi di connessione"_s, host::Icon::Critical);
        return false;
    }
    ct = riga(u"ct").toInt32();
    nprog = riga(u"nprog").toInt32();
    id_fig = riga(u"id_fig").toInt32();
    durata = riga(u"durata").toText();
    frequenza = riga(u"frequenza").toText();
    ampiezza = riga(u"ampiezza").toText();
    recuperoMin = ModuloBase::nullToByte(riga(u"recuperoMin"));
    recuperoSec = ModuloBase::nullToByte(riga(u"recuperoSec"));
    serie = ModuloBase::nullToByte(riga(u"serie"));
    modalita = ModuloBase::nullToStringa(riga(u"modalita"));
    peso = ModuloBase::nullToStringa(riga(u"peso"));
    note = ModuloBase::nullToStringa(riga(u"note"));
    isLibero = runtime::textToBoolean(riga(u"isLibero").toText());
    return true;
}

bool Esercizio::Elimina(qint32 chiave) {
    return archivio_.Execute(u"DELETE * FROM "_s + tabella() + u" WHERE ct="_s +
                             QString::number(chiave == 0 ? ct : chiave));
}

void Esercizio::nuovoDaEsercizio(const Esercizio& es) {
    ct = es.ct;
    nprog = es.nprog;
    id_fig = es.id_fig;
    durata = es.durata;
    frequenza = es.frequenza;
    ampiezza = es.ampiezza;
    recuperoMin = es.recuperoMin;
    recuperoSec = es.recuperoSec;
    serie = es.serie;
    modalita = es.modalita;
    peso = es.peso;
    note = es.note;
    isLibero = es.isLibero;
}

QString Esercizio::getFoto() const {
    return archivio_.Dlookup(u"figura"_s, u"figure"_s, u"id_fig="_s + QString::number(id_fig)).toText();
}

void Esercizio::svuotaDati() {
    ampiezza.clear();
    durata.clear();
    frequenza.clear();
    modalita.clear();
    note.clear();
    peso.clear();
    id_fig = 0;
    recuperoMin = recuperoSec = serie = 0;
}
