#pragma once

#include <QStringList>

namespace toolkit {
class Combo;
}

/// The values that the fields of an exercise offer, stored as their texts, units included.
namespace valoriEsercizio {

QStringList durate();
QStringList frequenze();
QStringList ampiezze();
/// The last is "Combinata", a value like the others.
QStringList modalita();

/// Whether a field may be left: its text is an item of its list. Else a critical box says so.
bool inElenco(const toolkit::Combo& elenco);

} // namespace valoriEsercizio
