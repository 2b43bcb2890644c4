#pragma once

#include "platform/toolkit/Form.h"

#include <QPointF>
#include <functional>

/// The windows of other rooms that the card editor opens, in one place.
namespace finestre {

/// The splash window's progress while the thumbnails load; nothing without the window.
void avanzamentoMassimo(qint16 massimo);
void avanzamentoPasso();

/// Loads, places and shows the figure selection at the right of a shell of that width (twips); its left top
/// corner comes back.
QPointF disponiFigure(double larghezza);
/// Loads the figure preview, places it by the selection's corner (twips) and hides it.
void disponiAnteprimaFigura(QPointF figure);

/// Loads the templates' header page and hands it over to be placed and shown.
void disponiIntestazioneModello(const std::function<void(toolkit::Form&)>& disponi);
void scaricaIntestazioneModello();

/// Shows the print preview of the selected card and waits for its end.
void mostraAnteprima();

/// Asks for category and description of a new template and waits for the answer, idModelloSelezionato.
void chiediNuovoModello();

void mostraPrincipale();
void nascondiPrincipale();

} // namespace finestre
