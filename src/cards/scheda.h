#pragma once

#include "cards/SchedaApribile.h"

/// One athlete's training card.
class scheda : public SchedaApribile {
public:
    scheda() = default;

    qint32 id_utente = 0;
    QString Istruttore;
    QString PeriodoDal; ///< date text, dd/MM/yyyy; empty for none
    QString PeriodoAl;
    QString Obiettivo;
    quint8 FreqAllen = 0;
    QString GGAllen; ///< nine digits, see GGAllenHELPER
    QString nomeUtente;
    QString cognomeUtente;

    bool carica(qint32 chiave) override;
    /// Empties the collection first.
    void caricaEsercizi() override;
    /// `Obiettivo` is escaped in the UPDATE and not in the INSERT; `Istruttore` and `GGAllen` never.
    qint32 save() override;
    bool Elimina(qint32 chiave) override;
    /// Literal: `s` is made to share this card's collection, which ends with 2n lines: the card's own, now
    /// with `ct` 0 and the flag of `s`, and behind them n copies that still carry the keys.
    bool travasaTo(SchedaApribile& s, bool soloEsercizi) override;

    /// Whether the stored period is Null and the text is only its stand-in, 01/01/1980; for the lists,
    /// which show an empty cell.
    bool periodoDalNullo() const;
    bool periodoAlNullo() const;

private:
    QString inserimento() const;
    QString aggiornamento() const;

    bool dalNullo_ = false;
    bool alNullo_ = false;
};
