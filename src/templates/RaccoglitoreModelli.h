#pragma once

#include "core/db.h"
#include "platform/runtime/Collection.h"
#include "templates/SchedaModello.h"

#include <memory>

/// All templates.
class RaccoglitoreModelli {
public:
    RaccoglitoreModelli();

    std::shared_ptr<runtime::Collection<SchedaModello>> schede; ///< never null

    /// Deletes every template, supplied ones too; an empty collection is loaded first.
    bool EliminaTutto();
    /// Adds all templates in the store's order, without their lines; a second call doubles them.
    bool caricaSchede();
    bool Add(const std::shared_ptr<SchedaModello>& s);
    /// Takes the template out of the collection and deletes it.
    bool remove(std::shared_ptr<SchedaModello> s);

private:
    store::Recordset chiavi() const;

    db archivio_;
};
