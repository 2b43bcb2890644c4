#pragma once

#include "cards/SchedaApribile.h"

/// A template: a card without an athlete, from which cards start.
class SchedaModello : public SchedaApribile {
public:
    SchedaModello() { isModello = true; }

    QString descrizione; ///< the name that the lists show

    bool carica(qint32 chiave) override;
    /// Does not empty the collection: a second call doubles the lines.
    void caricaEsercizi() override;
    qint32 save() override;
    /// Deletes supplied templates too; the windows protect them.
    bool Elimina(qint32 chiave) override;
    /// Adds n copies to the collection of `s` and readies its first n lines: with an empty `s` these are
    /// the copies. This template stays as it was.
    bool travasaTo(SchedaApribile& s, bool soloEsercizi) override;
};
