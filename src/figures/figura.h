#pragma once

#include "core/db.h"

#include <QString>

namespace store {
class Recordset;
}

/// One figure of the catalogue.
class figura {
public:
    figura();

    qint32 id_fig = 0;
    float numero = 0; ///< sort and display number, not necessarily whole
    QString ID_MAC;   ///< machine: "QUIVR" or "GLIDR"
    QString id_muscolo;
    QString nomeMuscolo; ///< this and id_muscolo only from the view of figures and muscles

    /// Loads the figure; false behind a box, with every field as it was, if there is none.
    bool carica(qint32 chiave);
    /// Takes number, machine and picture from the present row, and the muscle unless `distinct`.
    void leggi(const store::Recordset& riga, bool distinct);

    /// The picture's path: the program's directory, a backslash and the stored relative path, always
    /// joined.
    QString figura_() const;
    /// Sets the stored relative path, unchanged.
    void figura_(const QString& percorso) { percorso_ = percorso; }

private:
    QString percorso_;
    db* archivio_;
};
