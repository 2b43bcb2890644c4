#pragma once

#include "cards/Esercizio.h"
#include "core/db.h"
#include "platform/runtime/Collection.h"

#include <QString>

#include <memory>

/// What the card editor can have open: a card (scheda) or a template (SchedaModello), through the members
/// both have.
class SchedaApribile {
public:
    using Esercizi = runtime::Collection<Esercizio>;

    SchedaApribile(const SchedaApribile&) = delete;
    SchedaApribile& operator=(const SchedaApribile&) = delete;
    virtual ~SchedaApribile();

    qint32 id_scheda = 0; ///< key; 0 while not stored
    qint32 id_cat = 0;
    QString categoria;
    QString note;
    bool isModello = false;
    bool preimpostata = false; ///< a template that came with the program
    bool isSaved = false;      ///< agrees with the store
    /// The lines in order; never null. Two records share one collection after scheda::travasaTo.
    std::shared_ptr<Esercizi> esercizi = std::make_shared<Esercizi>();

    /// Loads the lines of the present key.
    virtual void caricaEsercizi() = 0;
    /// Loads the header only; false behind a box if there is no row. `isSaved` is true either way.
    virtual bool carica(qint32 chiave) = 0;
    /// Stores header and lines: the new key after an INSERT, 0 after an UPDATE. Error 513 for an unknown
    /// category name, before any statement.
    virtual qint32 save() = 0;
    /// Deletes the row with that key; 0 means this record's own.
    virtual bool Elimina(qint32 chiave) = 0;
    /// Pours this record into `s`; `soloEsercizi` leaves the category out.
    virtual bool travasaTo(SchedaApribile& s, bool soloEsercizi) = 0;

    /// Removes the line at a position from 1, at once from the store too.
    void EliminaEsercizio(qint16 indice);
    /// Numbers the lines from 1, in memory.
    void rinumeraEsercizi();
    /// Sets `id_cat` from a category's name, an empty one meaning `categoria`; error 513 if unknown.
    void setCategoriaPerNome(const QString& nome);

    /// A line that has a figure or is free text; the others are not stored.
    static bool daSalvare(const Esercizio& riga) { return riga.id_fig != 0 || riga.isLibero; }

protected:
    SchedaApribile();

    /// Stores the lines under the present key, numbered by position. A line that is not stored keeps its
    /// place, so the stored numbers may have a gap.
    void salvaEsercizi();
    /// The first half of `travasaTo`: notes and, unless `soloEsercizi`, the category.
    void travasaTestata(SchedaApribile& s, bool soloEsercizi) const;
    /// The other half: adds a copy of each line to `s`, and readies the line at the same position of `s` for
    /// its table. That line is the copy only while `s` started empty.
    void travasaRighe(SchedaApribile& s) const;
    db& archivio() const { return *archivio_; }

private:
    /// The count of the lines, in the 16 bits of the loop counters.
    qint16 numeroEsercizi() const;

    db* archivio_;
};
