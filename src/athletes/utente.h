#pragma once

#include "cards/raccoglitore.h"
#include "core/db.h"

#include <QDate>
#include <QString>

#include <memory>

/// One athlete: personal data, and the athlete's cards.
class utente {
public:
    utente();

    qint32 id_utente = 0; ///< 0 for an athlete not yet stored
    QString nome;
    QString cognome;
    QDate dataNascita; ///< invalid while never set
    QString sesso;     ///< "M" or "F"; any text is stored
    QString note;
    ::raccoglitore raccoglitore;

    /// Deletes the athlete with that key, then all its cards; the result is that of the first DELETE.
    bool Elimina(qint32 chiave);
    /// Stores the athlete: the new key after an INSERT, 0 after an UPDATE. `id_utente` itself stays 0, so
    /// a second save() of a new athlete inserts a second row. `sesso` goes unescaped.
    qint32 save();
    /// Loads the athlete; false behind a box, with every field as it was, if there is none. The cards are
    /// not loaded. Raises 94 for a Null in the names.
    bool carica(qint32 chiave);
    /// Binds the card to the athlete, adds it to the collection and stores it. The result is false.
    bool Add(const std::shared_ptr<scheda>& s);

private:
    db* archivio_;
};
