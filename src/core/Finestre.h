#pragma once

#include <QString>

/// The windows that the main window opens, in one place. A command whose window the program does not
/// have yet is disabled; whoever adds the window makes the call here and takes the command off the list.
namespace finestre {

/// Whether the command of that name has its window.
bool pronto(const QString& comando);

/// The card editor: loaded hidden at start, shown on what the globals say, unloaded at the program's end.
void caricaScheda();
void mostraScheda();
void scaricaScheda();

// Modal, from the main window.
void mostraModelli();
void mostraPalestra();
void mostraAvvertenze();
void mostraInformazioni();

} // namespace finestre
