#pragma once

#include <QStringList>

/// The values that the fields of an exercise offer, stored as their texts, units included.
namespace valoriEsercizio {

QStringList durate();
QStringList frequenze();
QStringList ampiezze();
/// The last is "Combinata", a value like the others.
QStringList modalita();

} // namespace valoriEsercizio
