#pragma once

#include <QString>

#include <memory>

class SchedaApribile;

/// What a developer tries by hand, behind the main window's button `test`. It reads the store and writes
/// nothing to it.
namespace testClassi {

/// The rows of each table, a line each; a table that cannot be read tells why.
QString conteggi();

/// A card in memory, which nobody stores, with an exercise for each of the first two figures.
std::shared_ptr<SchedaApribile> schedaDiProva();

/// Shows the window of the try-outs, modal.
void esegui();

} // namespace testClassi
