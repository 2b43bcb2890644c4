#pragma once

#include "cards/scheda.h"
#include "core/db.h"
#include "platform/runtime/Collection.h"

#include <memory>

/// The cards of one athlete.
class raccoglitore {
public:
    raccoglitore();

    qint32 id_utente = 0;
    std::shared_ptr<runtime::Collection<scheda>> schede; ///< never null

    /// Deletes every card of the athlete. An empty collection is filled first, with cards that carry their
    /// keys alone. The collection keeps its items.
    bool EliminaTutto();
    /// Adds the athlete's cards, without their lines; a second call doubles them.
    bool caricaSchede();
    bool Add(const std::shared_ptr<scheda>& s);
    /// Takes the card out of the collection and deletes it.
    bool remove(std::shared_ptr<scheda> s);

private:
    store::Recordset chiavi() const;

    db archivio_;
};
