#include "cards/scheda.h"

#include "core/ModuloBase.h"
#include "platform/host/Services.h"
#include "platform/runtime/Dates.h"
#include "platform/runtime/Error.h"

using namespace Qt::StringLiterals;

namespace {

/// The text that stands for a period that the store has as Null.
QString testoDelNullo() {
    return runtime::dateText(ModuloBase::nullToData({}));
}

} // namespace

bool scheda::periodoDalNullo() const {
    return dalNullo_ && PeriodoDal == testoDelNullo();
}

bool scheda::periodoAlNullo() const {
    return alNullo_ && PeriodoAl == testoDelNullo();
}

bool scheda::carica(qint32 chiave) {
    const store::Recordset riga =
        archivio().getRs(u"SELECT * From vw_schedacompleta WHERE id_scheda = "_s + QString::number(chiave));
    const bool trovata = !riga.EOF_();
    if (trovata) {
        Istruttore = riga(u"Istruttore").toText();
        id_utente = riga(u"id_utente").toInt32();
        id_scheda = chiave;
        dalNullo_ = riga(u"PeriodoDal").isNull();
        PeriodoDal = runtime::dateText(ModuloBase::nullToData(riga(u"PeriodoDal")));
        alNullo_ = riga(u"PeriodoAl").isNull();
        PeriodoAl = runtime::dateText(ModuloBase::nullToData(riga(u"PeriodoAl")));
        id_cat = riga(u"id_cat").toInt32();
        categoria = riga(u"categorie.nome").toText();
        Obiettivo = ModuloBase::nullToStringa(riga(u"Obiettivo"));
        FreqAllen = riga(u"FreqAllen").toByte();
        GGAllen = ModuloBase::nullToStringa(riga(u"GGAllen"));
        note = ModuloBase::nullToStringa(riga(u"schede.note"));
        nomeUtente = riga(u"utenti.nome").toText();
        cognomeUtente = riga(u"cognome").toText();
    } else {
        host::message(u"Archivio Vuoto o Problemi di connessione!"_s, host::Icon::Critical);
    }
    isSaved = true; // after a failed load too
    return trovata;
}

void scheda::caricaEsercizi() {
    store::Recordset righe = archivio().getRs(u"SELECT ct FROM Esercizi WHERE id_scheda = "_s +
                                              QString::number(id_scheda) + u" ORDER BY Nprog ASC"_s);
    for (int daTogliere = esercizi->Count(); daTogliere > 0; --daTogliere)
        esercizi->Remove(1);
    for (; !righe.EOF_(); righe.MoveNext()) {
        auto riga = std::make_shared<Esercizio>();
        riga->carica(righe(u"ct").toInt32());
        esercizi->Add(riga);
    }
}

QString scheda::inserimento() const {
    return u"INSERT INTO schede (id_utente,istruttore,periododal,periodoal, "
           "id_cat,freqAllen,GGAllen,obiettivo,[note]) "
           "VALUES ('"_s +
           QString::number(id_utente) + u"','"_s + Istruttore + u"',"_s + db::dataPerSQL(PeriodoDal) + u',' +
           db::dataPerSQL(PeriodoAl) + u',' + QString::number(id_cat) + u',' + QString::number(FreqAllen) +
           u",'"_s + GGAllen + u"','"_s + Obiettivo + u"','"_s + db::correctApici(note) + u"')"_s;
}

QString scheda::aggiornamento() const {
    return u"UPDATE schede SET id_utente= '"_s + QString::number(id_utente) + u"',istruttore = '"_s +
           Istruttore + u"',periododal = "_s + db::dataPerSQL(PeriodoDal) + u",periodoal = "_s +
           db::dataPerSQL(PeriodoAl) + u",id_cat="_s + QString::number(id_cat) + u" ,obiettivo='"_s +
           db::correctApici(Obiettivo) + u"',freqAllen="_s + QString::number(FreqAllen) + u",GGAllen='"_s +
           GGAllen + u"',[note]='"_s + db::correctApici(note) + u"' WHERE id_scheda="_s +
           QString::number(id_scheda);
}

qint32 scheda::save() {
    if (runtime::Variant(id_utente).isNull() || runtime::Variant(id_cat).isNull())
        runtime::raise(0, u"Mancano dati fondamentali!"_s);
    if (!categoria.isEmpty())
        setCategoriaPerNome({});
    qint32 nuova = 0;
    if (id_scheda == 0) {
        archivio().Execute(inserimento());
        nuova = archivio().dMax(u"id_scheda"_s, u"schede"_s, {}).toInt32();
        id_scheda = nuova;
    } else {
        archivio().Execute(aggiornamento());
    }
    salvaEsercizi();
    isSaved = true;
    return nuova;
}

bool scheda::Elimina(qint32 chiave) {
    return archivio().Execute(u"DELETE * FROM schede WHERE id_scheda="_s +
                              QString::number(chiave == 0 ? id_scheda : chiave));
}

bool scheda::travasaTo(SchedaApribile& s, bool soloEsercizi) {
    travasaTestata(s, soloEsercizi);
    s.esercizi = esercizi; // from here on the two share one collection
    travasaRighe(s);
    return true;
}
