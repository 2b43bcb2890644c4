#pragma once

#include <QDate>
#include <QDateTime>
#include <QString>

#include <functional>
#include <optional>

namespace runtime {

// Dates are shown and typed day first with four-digit years, whatever the system's language. A date that
// carries a time of day is a QDateTime in UTC, so that no clock change can move it.

enum class DateOrder { DayFirst, MonthFirst };

/// Reads a whole text as a date with an optional time ("31/12/2005", "31-12-2005 10:30[:15]"). Two-digit
/// years mean 1930 to 2029. Nothing if the text is no date.
std::optional<QDateTime> parseDate(const QString& text, DateOrder order);

/// dd/MM/yyyy; an invalid date gives the empty text.
QString dateText(QDate date);
/// The same, followed by a blank and HH:mm:ss if the time of day is not midnight.
QString dateText(const QDateTime& date);

/// The date of a day-first text; the empty text gives an invalid date, any other text error 13.
QDate textToDate(const QString& text);

/// `date` at midnight, in the form in which dates with a time are kept.
QDateTime atMidnight(QDate date);

/// Day numbers count from 30 December 1899, day 0; 29221 is 1 January 1980.
QDate dateFromSerial(qint64 serial);
qint64 serialFromDate(QDate date);

/// The local date and time of the program's clock.
QDateTime now();
QDate today();
/// Replaces the clock; an empty function brings the system's back.
void setClock(std::function<QDateTime()> clock);

} // namespace runtime
