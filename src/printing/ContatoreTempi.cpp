#include "printing/ContatoreTempi.h"

#include "cards/SchedaApribile.h"
#include "platform/host/Controls.h"
#include "platform/runtime/Conversions.h"
#include "platform/runtime/Error.h"
#include "printing/cTime.h"

using namespace Qt::StringLiterals;

void ContatoreTempi::contaEstampa() const {
    if (!schedaCorrente || !barraStato)
        runtime::raise(runtime::ObjectNotSet);
    cTime tempoEffettivo;
    cTime tempoRecupero;
    cTime tempoTotale;
    const qint16 ultimo = runtime::toInt16(schedaCorrente->esercizi->Count());
    for (int i = 1; i <= ultimo; ++i) {
        const Esercizio& riga = *schedaCorrente->esercizi->Item(i);
        if (riga.id_fig == 0 || riga.isLibero)
            continue;
        const qint16 serie = riga.serie;
        tempoEffettivo.Add(0, 0, runtime::toInt16(serie * runtime::leadingNumber(riga.durata)));
        // Recovery counts once a series, behind the last one too.
        tempoRecupero.Add(0, runtime::mul16(serie, riga.recuperoMin),
                          runtime::mul16(serie, riga.recuperoSec));
    }
    tempoTotale.addTime(tempoEffettivo);
    tempoTotale.addTime(tempoRecupero);
    barraStato->setPanel(u"status"_s, u"Tempi Quiver-Deck: Tempo effettivo: "_s + tempoEffettivo.getTime() +
                                          u" - Tempo recupero: "_s + tempoRecupero.getTime() +
                                          u" - Tempo totale: "_s + tempoTotale.getTime() +
                                          u"              [NOTA: Nel caso di allenamento a circuito il "
                                          u"conteggio dei tempi riguarda solo uno di "
                                          u"essi]"_s);
}
