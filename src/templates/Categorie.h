#pragma once

#include "core/db.h"
#include "platform/host/Controls.h"
#include "platform/runtime/Collection.h"
#include "templates/categoria.h"

#include <memory>

/// The list of categories; the program only reads it.
class Categorie {
public:
    /// The entry, from 0, that a list of the categories shows at first: the second, not the first.
    static constexpr int iniziale = 1;

    Categorie();

    /// All categories by name; an empty collection for an empty table.
    std::shared_ptr<runtime::Collection<categoria>> getCategorie() const;
    /// Adds the names behind the items that the list has.
    void fillcategorie(host::ItemList& comboBox) const;

private:
    db archivio_;
};
