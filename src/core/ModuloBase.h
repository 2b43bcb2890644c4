#pragma once

#include "platform/runtime/Variant.h"

#include <QDateTime>
#include <QString>

/// The helpers that every record and the start-up use.
namespace ModuloBase {

/// The empty text for Null, else the value as text.
QString nullToStringa(const runtime::Variant& valore);
/// 1 January 1980 for Null, else the value as a date (with its time of day, if it has one).
QDateTime nullToData(const runtime::Variant& valore);
/// 0 for Null, else the value in 8 bits; error 6 outside of 0 to 255.
quint8 nullToByte(const runtime::Variant& valore);

/// Writes the program's directory into the user's settings, General/Path. Nothing reads it back.
void salvaPercorso();
/// The log line of a start: title and version.
QString rigaDiAvvio();
/// The data store's file name.
QString nomeArchivio();
/// The help file: the program's directory followed by "\HELP\HELP.hlp".
QString fileGuida();

} // namespace ModuloBase
