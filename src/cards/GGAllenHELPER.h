#pragma once

#include "platform/host/Controls.h"

#include <QString>

#include <array>

/// The string of training days: nine characters "1" or "0", for daily, none, Monday to Sunday.
namespace GGAllenHELPER {

/// Ticks the list's items whose character is "1"; unticks none. Error 9 for a "1" behind the last item.
void scriviGGAllen(const QString& giorni, host::CheckList& lista);
QString leggiGGAllen(const host::CheckList& lista);
/// The text of the printed card: "GIORNALIERO", "NESSUNO" or "LUN - MER - VEN".
QString descrizioneGGAllen(const QString& giorni);
/// The short names at 0 to 6; 7 stays empty.
void nomiGiorni(std::array<QString, 8>& giorni);

} // namespace GGAllenHELPER
