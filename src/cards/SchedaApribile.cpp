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

void SchedaApribile::travasaRiga(SchedaApribile& s, const Esercizio& riga, int posizione) {
    auto copia = std::make_shared<Esercizio>();
    copia->nuovoDaEsercizio(riga);
    s.esercizi->Add(copia);
    // The line at the position, which is the copy only while `s` started empty.
    Esercizio& pronta = *s.esercizi->Item(posizione);
    pronta.ct = 0;
    pronta.isModello = s.isModello;
}
