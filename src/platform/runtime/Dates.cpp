#include "platform/runtime/Dates.h"

#include "platform/runtime/Error.h"

#include <QRegularExpression>

#include <utility>

namespace runtime {

namespace {

std::function<QDateTime()>& clock() {
    static std::function<QDateTime()> installed;
    return installed;
}

int fullYear(QStringView digits) {
    const int year = digits.toInt();
    if (digits.size() > 2)
        return year;
    return year < 30 ? 2000 + year : 1900 + year;
}

} // namespace

std::optional<QDateTime> parseDate(const QString& text, DateOrder order) {
    static const QRegularExpression form(
        QStringLiteral(R"(^\s*([0-9]{1,2})([/.-])([0-9]{1,2})\2([0-9]{4}|[0-9]{2}))"
                       R"((?:\s+([0-9]{1,2}):([0-9]{2})(?::([0-9]{2}))?)?\s*$)"));
    const auto match = form.match(text);
    if (!match.hasMatch())
        return std::nullopt;
    const int first = match.capturedView(1).toInt();
    const int second = match.capturedView(3).toInt();
    const int year = fullYear(match.capturedView(4));
    const QDate date = order == DateOrder::DayFirst ? QDate(year, second, first) : QDate(year, first, second);
    const QTime time(match.capturedView(5).toInt(), match.capturedView(6).toInt(),
                     match.capturedView(7).toInt());
    if (!date.isValid() || !time.isValid())
        return std::nullopt;
    return QDateTime(date, time, Qt::UTC);
}

QString dateText(QDate date) {
    return date.toString(u"dd/MM/yyyy");
}

QString dateText(const QDateTime& date) {
    if (!date.isValid())
        return {};
    const QTime time = date.time();
    const QString day = dateText(date.date());
    return time == QTime(0, 0) ? day : day + u' ' + time.toString(u"HH:mm:ss");
}

QDate textToDate(const QString& text) {
    if (text.isEmpty())
        return {};
    const auto date = parseDate(text, DateOrder::DayFirst);
    if (!date)
        raise(TypeMismatch);
    return date->date();
}

QDateTime atMidnight(QDate date) {
    return {date, QTime(0, 0), Qt::UTC};
}

QDate dateFromSerial(qint64 serial) {
    return QDate(1899, 12, 30).addDays(serial);
}

qint64 serialFromDate(QDate date) {
    return QDate(1899, 12, 30).daysTo(date);
}

QDateTime now() {
    return clock() ? clock()() : QDateTime::currentDateTime();
}

QDate today() {
    return now().date();
}

void setClock(std::function<QDateTime()> replacement) {
    clock() = std::move(replacement);
}

} // namespace runtime
