#pragma once

#include "core/db.h"

#include <QString>

/// The gym's profile, the one row of its table.
class palestra {
public:
    palestra();

    QString nome;
    QString responsabile;
    QString logo; ///< full path of the logo file, empty if none

    /// Inserts into an empty table (unlogged, failures rise), else rewrites whatever rows are there.
    /// Always true.
    bool save();
    /// A box and unchanged fields if the table is empty.
    void carica();

private:
    db* archivio_;
};
