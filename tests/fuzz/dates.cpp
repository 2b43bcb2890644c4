#include "platform/runtime/Dates.h"
#include "fuzz/Fuzz.h"
#include "platform/runtime/Error.h"
#include "support/Errors.h"

#include <QRegularExpression>

#include <cstring>

using namespace Qt::StringLiterals;
using runtime::DateOrder;

namespace {

void thereAndBack(const QDateTime& date) {
    const QString text = runtime::dateText(date);
    fuzz::require(runtime::parseDate(text, DateOrder::DayFirst) == date,
                  "a date's text reads back as the date");
    const QString day = runtime::dateText(date.date());
    fuzz::require(day.size() == 10 && text.startsWith(day), "a day is written dd/MM/yyyy");
    fuzz::require(runtime::textToDate(day) == date.date(), "a day's text reads back as the day");
    const qint64 serial = runtime::serialFromDate(date.date());
    fuzz::require(runtime::dateFromSerial(serial) == date.date(), "a serial reads back as the day");
}

} // namespace

void fuzz::dates(const QByteArray& input) {
    const QString text = QString::fromUtf8(input);
    const auto dayFirst = runtime::parseDate(text, DateOrder::DayFirst);
    QDate date;
    const int error = errorOf([&] { return date = runtime::textToDate(text); });
    require(error == (dayFirst || text.isEmpty() ? 0 : runtime::TypeMismatch), "a date or a mismatch");
    require(date == (dayFirst ? dayFirst->date() : QDate()), "text to date drops the time alone");
    if (dayFirst)
        thereAndBack(*dayFirst);

    static const QRegularExpression firstTwo(u"(\\d+)([/.-])(\\d+)"_s);
    const auto match = firstTwo.match(text);
    if (match.hasMatch()) {
        QString swapped = text;
        swapped.replace(match.capturedStart(), match.capturedLength(),
                        match.captured(3) + match.captured(2) + match.captured(1));
        require(runtime::parseDate(swapped, DateOrder::MonthFirst) == dayFirst,
                "the two orders differ in the order alone");
    }

    quint64 any = 0; // the bytes themselves as a second of the years 1 to 9999
    std::memcpy(&any, input.constData(), std::min(sizeof any, static_cast<std::size_t>(input.size())));
    const QDate first(1, 1, 1);
    constexpr quint64 seconds = 86'400;
    const auto days = static_cast<quint64>(first.daysTo(QDate(9999, 12, 31))) + 1;
    thereAndBack(QDateTime(first.addDays(static_cast<qint64>(any / seconds % days)),
                           QTime::fromMSecsSinceStartOfDay(static_cast<int>(any % seconds) * 1000), Qt::UTC));
}
