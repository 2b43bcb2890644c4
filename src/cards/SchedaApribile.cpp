#include "cards/SchedaApribile.h"

#include "platform/runtime/Conversions.h"
#include "platform/runtime/Error.h"

using namespace Qt::StringLiterals;

SchedaApribile::SchedaApribile() : archivio_(&db::comune()) {}

SchedaApribile::~SchedaApribile() = default;

qint16 SchedaApribile::numeroEsercizi() const {
    return runtime::toInt16(esercizi->Count());
}

void SchedaApribile::EliminaEsercizio(qint16 indice) {
    const auto riga = esercizi->Item(indice);
    if (riga->ct != 0)
        riga->Elimina();
    esercizi->Remove(indice);
    rinumeraEsercizi();
}

void SchedaApribile::rinumeraEsercizi() {
    const qint16 ultimo = numeroEsercizi();
    for (int i = 1; i <= ultimo; ++i)
        esercizi->Item(i)->nprog = i;
}

void SchedaApribile::setCategoriaPerNome(const QString& nome) {
    const runtime::Variant chiave = archivio().Dlookup(
        u"id_cat"_s, u"categorie"_s, u"nome = '"_s + (nome.isEmpty() ? categoria : nome) + u'\'');
    if (!chiave.isNumeric()) // Null and the "ERR:" texts too
        runtime::raise(runtime::OwnErrors, u"Categoria non esistente!"_s);
    id_cat = chiave.toInt32();
}

void SchedaApribile::salvaEsercizi() {
    const qint16 ultimo = numeroEsercizi();
    for (int i = 1; i <= ultimo; ++i) {
        Esercizio& riga = *esercizi->Item(i);
        if (!daSalvare(riga))
            continue;
        riga.nprog = i;
        if (isModello) // a card leaves the flag of its lines alone
            riga.isModello = true;
        riga.id_scheda = id_scheda;
        riga.save();
    }
}

void SchedaApribile::travasaTestata(SchedaApribile& s, bool soloEsercizi) const {
    if (!soloEsercizi) {
        s.id_cat = id_cat;
        s.categoria = categoria;
    }
    s.note = note;
}

void SchedaApribile::travasaRighe(SchedaApribile& s) const {
    const qint16 n = numeroEsercizi(); // before the copies come in, if the two share one collection
    for (int i = 1; i <= n; ++i) {
        auto copia = std::make_shared<Esercizio>();
        copia->nuovoDaEsercizio(*esercizi->Item(i));
        s.esercizi->Add(copia);
        Esercizio& pronta = *s.esercizi->Item(i);
        pronta.ct = 0;
        pronta.isModello = s.isModello;
    }
}
