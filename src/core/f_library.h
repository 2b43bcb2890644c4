#pragma once

#include "platform/host/Controls.h"

#include <QString>

// Small routines that no window owns alone.

/// Whether the list's text is none of its items; exact comparison.
bool nonInLista(const host::ItemList& combo);

/// Whether a choice may be left: its text is one of its items. Else a critical box says so.
bool valoreInLista(const host::ItemList& combo);

/// The smallest whole number not below `x`; error 6 outside 32 bits.
qint32 arrotondaSu(double x);

/// Selects the first line of which one of the columns 1 to `colonne` begins with `testo`, whatever the
/// case of letters. Without such a line the selection stays.
void cercaInLista(host::ReportLines& lista, const QString& testo, int colonne);
