#pragma once

/// The windows that the main window opens, in one place.
namespace finestre {

/// The card editor: loaded hidden at start, shown on what the globals say, unloaded at the program's end.
void caricaScheda();
void mostraScheda();
void scaricaScheda();

// Modal, from the main window.
void mostraModelli();
void mostraPalestra();
void mostraAvvertenze();
void mostraInformazioni();

/// Closes the guide, if it is open.
void chiudiGuida();

} // namespace finestre
