#pragma once

#include "Guida.h"

/// Writes the manual as a PDF on A4: a title page, the contents with page numbers, the chapters. Throws
/// std::runtime_error if the file cannot be written.
void scriviManuale(const Guida& guida, const QString& screens, const QString& logo, const QString& versione,
                   const QString& file);
