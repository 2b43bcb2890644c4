#pragma once

#include "platform/store/Backups.h"

/// The backup copies of the program's store, in the folder `backup` beside it.
class CopieArchivio {
public:
    CopieArchivio();

    /// True, behind a message, if the store comes from a newer version of the program, which alone can read
    /// it.
    static bool troppoRecente();

    /// Has the store copied and checked by quiverdeck-backup, which stands beside the executable, while this
    /// one goes on. A damaged store is told of, as by `proponi` or, without a good copy, as it is. A copy
    /// under way goes on when this program ends.
    void copia();

    /// With a store that is missing or damaged, and a good copy of it: tells the copy's date and offers to
    /// put it in the store's place.
    void proponi() const;

private:
    void finita(int esito) const;

    store::Backups copie_;
};
