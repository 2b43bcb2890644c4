#pragma once
// Sheets made in memory for the tests.

#include "ProgrammaDiProva.h"

#include "printing/Page.h"

namespace fogli {

/// A line with every value filled.
inline std::shared_ptr<Esercizio> exercise(int number) {
    auto e = std::make_shared<Esercizio>();
    e->nprog = number;
    e->id_fig = ProgrammaDiProva::figura;
    e->durata = QStringLiteral("45s");
    e->frequenza = QStringLiteral("35Hz");
    e->ampiezza = QStringLiteral("H");
    e->serie = 3;
    e->recuperoMin = 1;
    e->recuperoSec = 90;
    e->modalita = QStringLiteral("Dinamico a carico aggiuntivo");
    e->peso = QStringLiteral("12 kg");
    e->note = QStringLiteral("Schiena dritta");
    return e;
}

inline std::shared_ptr<Esercizio> freeText(int number, const QString& note) {
    auto e = std::make_shared<Esercizio>();
    e->nprog = number;
    e->isLibero = true;
    e->note = note;
    return e;
}

/// A sheet with the exercises 1 to `exercises`.
inline Page page(int exercises, bool last = true, const QString& notes = {}) {
    Page result;
    result.scheda = std::make_shared<scheda>();
    result.scheda->cognomeUtente = QStringLiteral("D’Angelo");
    result.scheda->nomeUtente = QStringLiteral("Niccolò");
    result.scheda->Istruttore = QStringLiteral("Bianchi Zoë");
    result.scheda->PeriodoDal = QStringLiteral("01/03/2026");
    result.scheda->PeriodoAl = QStringLiteral("22/03/2026");
    result.scheda->FreqAllen = 3;
    result.scheda->GGAllen = QStringLiteral("001010100");
    result.scheda->note = notes;
    result.isLastPage = last;
    for (int i = 1; i <= exercises; ++i)
        result.esercizi.Add(exercise(i));
    return result;
}

} // namespace fogli
