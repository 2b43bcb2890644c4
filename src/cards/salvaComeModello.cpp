#include "cards/salvaComeModello.h"

#include "cards/SchedaApribile.h"
#include "templates/SchedaModello.h"

#include <memory>
#include <vector>

namespace {

/// What pouring and storing change in the lines of the open record; given back at the end, errors included.
class RigheProprie {
public:
    explicit RigheProprie(SchedaApribile& aperta) : esercizi_(aperta.esercizi) {
        for (const auto& riga : *esercizi_)
            righe_.push_back({riga, riga->ct, riga->nprog, riga->id_scheda, riga->isModello});
    }

    RigheProprie(const RigheProprie&) = delete;
    RigheProprie& operator=(const RigheProprie&) = delete;

    ~RigheProprie() {
        togliCopie(*esercizi_);
        for (const Stato& stato : righe_) {
            stato.riga->ct = stato.ct;
            stato.riga->nprog = stato.nprog;
            stato.riga->id_scheda = stato.id_scheda;
            stato.riga->isModello = stato.isModello;
        }
    }

    /// A card pours by sharing its collection: the copies behind its own lines still carry keys of the cards'
    /// table, and stored as a template's they would rewrite rows of other templates.
    void togliCopie(SchedaApribile::Esercizi& esercizi) const {
        while (esercizi.Count() > static_cast<int>(righe_.size()))
            esercizi.Remove(esercizi.Count());
    }

private:
    struct Stato {
        std::shared_ptr<Esercizio> riga;
        qint32 ct;
        qint32 nprog;
        qint32 id_scheda;
        bool isModello;
    };

    std::shared_ptr<SchedaApribile::Esercizi> esercizi_;
    std::vector<Stato> righe_;
};

} // namespace

void salvaComeModello(SchedaApribile& aperta, SchedaModello& modello) {
    const RigheProprie proprie(aperta);
    aperta.travasaTo(modello, true);
    proprie.togliCopie(*modello.esercizi);
    modello.save();
}
