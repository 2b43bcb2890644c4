#pragma once

#include "core/db.h"

#include <QString>

/// One exercise line of a card or of a template, as it is edited and stored.
class Esercizio {
public:
    Esercizio();

    qint32 ct = 0;    ///< key in its table; 0 while not stored
    qint32 nprog = 0; ///< place in the card, from 1
    qint32 id_scheda = 0;
    qint32 id_fig = 0; ///< 0 for none
    QString durata;
    QString frequenza;
    QString ampiezza;
    quint8 recuperoMin = 0;
    quint8 recuperoSec = 0;
    quint8 serie = 0;
    QString modalita;
    QString peso;
    QString note;
    bool isModello = false; ///< belongs to a template; chooses the table
    bool isLibero = false;  ///< free-form, without a figure

    /// Stores the line: the new key after an INSERT, 0 after an UPDATE. Only `note` is escaped. After a
    /// failed INSERT (a box has been shown) the key is the table's highest.
    qint32 save();
    /// Loads a row of the table that `isModello` names; false behind a box if there is none. Raises 94
    /// for a Null in `durata`, `frequenza`, `ampiezza` or `isLibero`, 6 for more than 8 bits.
    bool carica(qint32 chiave);
    /// Deletes the row with that key; 0 means this line's own.
    bool Elimina(qint32 chiave = 0);
    /// Copies all fields but `id_scheda` and `isModello`; `ct` too, so the copy points at the origin's row.
    void nuovoDaEsercizio(const Esercizio& es);
    /// The picture file of the figure, as stored.
    QString getFoto() const;
    /// Empties the data; key, place, owner and flags stay.
    void svuotaDati();

private:
    QString tabella() const;

    db archivio_;
};
