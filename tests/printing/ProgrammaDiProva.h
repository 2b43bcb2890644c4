#pragma once

#include "disegni.h"
#include "support/ScratchProgram.h"

#include "cards/Esercizio.h"
#include "cards/scheda.h"
#include "desktop/palestra.h"

/// A scratch program in which the first figure has its picture, the second has none, and one athlete trains.
class ProgrammaDiProva : public ScratchProgram {
public:
    static constexpr int figura = 1;
    static constexpr int figuraSenzaFile = 2;

    ProgrammaDiProva() {
        sql(QStringLiteral("INSERT INTO utenti (id_utente, nome, cognome) VALUES (1, 'Anna', 'Rossi')"));
        disegni::writeFigure(folder() + QStringLiteral("/images/q/001.jpg"), {760, 665});
    }

    void setLogo(const QString& stored) const {
        palestra gym;
        gym.carica();
        gym.logo = stored;
        gym.save();
    }

    /// Stores a card with `exercises` lines, every fifth of them free text. Gives its key.
    qint32 storedCard(int exercises) const {
        scheda card;
        card.id_utente = 1;
        card.categoria = QStringLiteral("Generale");
        card.PeriodoDal = QStringLiteral("01/03/2026");
        card.PeriodoAl = QStringLiteral("22/03/2026");
        for (int i = 1; i <= exercises; ++i) {
            auto line = std::make_shared<Esercizio>();
            line->isLibero = i % 5 == 0;
            line->id_fig = line->isLibero ? 0 : figura;
            line->note = QStringLiteral("riga %1").arg(i);
            card.esercizi->Add(line);
        }
        return card.save();
    }
};
