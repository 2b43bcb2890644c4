#pragma once

#include "Guida.h"

/// Writes the help file: one HTML file, its pages parted by comment lines that the help window reads:
/// `<!--capitolo title-->` and `<!--pagina id|title-->`. Pictures are inside. Throws std::runtime_error.
void scriviFileGuida(const Guida& guida, const QString& screens, const QString& file);
