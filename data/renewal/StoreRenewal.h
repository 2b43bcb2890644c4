#pragma once

#include <QString>

namespace catalogue {

/// Brings the catalogue of the store `inUse` up to that of `fresh`, a store as it ships.
///
/// Figures, their muscle groups, muscle groups and machines are renewed; categories and supplied templates
/// that `inUse` lacks are added. No other row changes, and nothing is removed: a card may hold a figure that
/// no longer ships. Figures and categories are known by their keys, supplied templates by their names; none
/// of these ever changes once shipped.
///
/// The work is done on a copy, in one transaction; the copy takes the store's name only when it is whole.
/// Meanwhile nobody else may write to the store: one that is open in a running program has to be closed
/// before. Returns whether anything had to change; if not, the file is left as it is. Throws Error, with the
/// store untouched, if either file is no store or their schemas differ.
bool renewStore(const QString& fresh, const QString& inUse);

} // namespace catalogue
