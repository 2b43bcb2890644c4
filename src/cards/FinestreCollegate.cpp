#include "cards/FinestreCollegate.h"

namespace finestre {

void avanzamentoMassimo(qint16 /*massimo*/) {}

void avanzamentoPasso() {}

QPointF disponiFigure(double larghezza) {
    return {larghezza, 0};
}

void disponiAnteprimaFigura(QPointF /*figure*/) {}

void disponiIntestazioneModello(const std::function<void(toolkit::Form&)>& /*disponi*/) {}

void scaricaIntestazioneModello() {}

bool haAnteprima() {
    return false;
}

void mostraAnteprima() {}

bool haNuovoModello() {
    return false;
}

void chiediNuovoModello() {}

void mostraPrincipale() {}

} // namespace finestre
