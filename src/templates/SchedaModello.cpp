#include "templates/SchedaModello.h"

#include "core/ModuloBase.h"
#include "platform/host/Services.h"
#include "platform/runtime/Conversions.h"
#include "platform/runtime/Error.h"

using namespace Qt::StringLiterals;

bool SchedaModello::carica(qint32 chiave) {
    const store::Recordset riga = archivio().getRs(
        u"SELECT * From vw_schedaModellocompleta WHERE id_Scheda = "_s + QString::number(chiave));
    const bool trovata = !riga.EOF_();
    if (trovata) {
        id_scheda = chiave;
        id_cat = riga(u"id_cat").toInt32();
        categoria = riga(u"nome").toText();
        descrizione = ModuloBase::nullToStringa(riga(u"descrizione"));
        note = ModuloBase::nullToStringa(riga(u"note"));
        preimpostata = runtime::textToBoolean(ModuloBase::nullToStringa(riga(u"preimpostata")));
    } else {
        host::message(u"Archivio Vuoto o Problemi di connessione!"_s, host::Icon::Critical);
    }
    isSaved = true; // after a failed load too
    return trovata;
}

void SchedaModello::caricaEsercizi() {
    store::Recordset righe = archivio().getRs(u"SELECT ct FROM EserciziModello WHERE id_scheda = "_s +
                                              QString::number(id_scheda) + u" ORDER BY Nprog ASC"_s);
    for (; !righe.EOF_(); righe.MoveNext()) {
        auto riga = std::make_shared<Esercizio>();
        riga->isModello = true;
        riga->carica(righe(u"ct").toInt32());
        esercizi->Add(riga);
    }
}

qint32 SchedaModello::save() {
    if (runtime::Variant(id_cat).isNull())
        runtime::raise(0, u"Mancano dati fondamentali!"_s);
    if (!categoria.isEmpty())
        setCategoriaPerNome({});
    qint32 nuova = 0;
    if (id_scheda == 0) {
        archivio().Execute(u"INSERT INTO schedeModello (id_cat,descrizione,preimpostata,[note]) VALUES ("_s +
                           QString::number(id_cat) + u",'"_s + db::correctApici(descrizione) + u"',"_s +
                           db::convBooleanToDB(preimpostata) + u",'"_s + db::correctApici(note) + u"')"_s);
        nuova = archivio().dMax(u"id_Scheda"_s, u"schedemodello"_s, {}).toInt32();
        id_scheda = nuova;
    } else {
        archivio().Execute(u"UPDATE schedemodello SET descrizione= '"_s + db::correctApici(descrizione) +
                           u"',id_cat="_s + QString::number(id_cat) + u",preimpostata="_s +
                           db::convBooleanToDB(preimpostata) + u",[note]='"_s + db::correctApici(note) +
                           u"' WHERE id_Scheda="_s + QString::number(id_scheda));
    }
    salvaEsercizi();
    isSaved = true;
    return nuova;
}

bool SchedaModello::Elimina(qint32 chiave) {
    return archivio().Execute(u"DELETE * FROM schedemodello WHERE id_Scheda="_s +
                              QString::number(chiave == 0 ? id_scheda : chiave));
}

bool SchedaModello::travasaTo(SchedaApribile& s, bool soloEsercizi) {
    travasaTestata(s, soloEsercizi);
    travasaRighe(s);
    return true;
}
