#pragma once

#include <QPointF>
#include <QtGlobal>

#include <functional>

namespace toolkit {
class Form;
}

/// What windows open of other rooms, in one place: a window knows its own room and these calls.
namespace finestre {

// --- the main window ---
void mostraPrincipale();
void nascondiPrincipale();
/// Closes the guide, if it is open.
void chiudiGuida();

// --- modal, from the main window ---
void mostraModelli();
void mostraPalestra();
void mostraAvvertenze();
void mostraInformazioni();

// --- the card editor: loaded hidden at start, shown on what the globals say, unloaded at the end ---
void caricaScheda();
void mostraScheda();
void scaricaScheda();

// --- from the card editor ---
/// The splash window's progress while the thumbnails load.
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

} // namespace finestre
