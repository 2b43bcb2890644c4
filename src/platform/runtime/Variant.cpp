#include "platform/runtime/Variant.h"

#include "platform/runtime/Conversions.h"
#include "platform/runtime/Dates.h"
#include "platform/runtime/Error.h"

#include <cmath>

namespace runtime {

namespace {

template <class... Lambdas> struct Overloaded : Lambdas... { using Lambdas::operator()...; };
template <class... Lambdas> Overloaded(Lambdas...) -> Overloaded<Lambdas...>;

} // namespace

Variant::Variant(QDate value) : value_(atMidnight(value)) {}

bool Variant::isNumeric() const {
    return std::visit(Overloaded{[](std::monostate) { return false; }, [](const QDateTime&) { return false; },
                                 [](const QString& text) { return isNumber(text); },
                                 [](auto) { return true; }},
                      value_);
}

QString Variant::toText() const {
    return std::visit(Overloaded{[](std::monostate) -> QString { raise(InvalidUseOfNull); },
                                 [](bool value) { return booleanText(value); },
                                 [](qint64 value) { return QString::number(value); },
                                 [](double value) { return numberText(value); },
                                 [](const QString& value) { return value; },
                                 [](const QDateTime& value) { return dateText(value); }},
                      value_);
}

double Variant::toDouble() const {
    return std::visit(Overloaded{[](std::monostate) -> double { raise(InvalidUseOfNull); },
                                 [](bool value) { return value ? -1.0 : 0.0; },
                                 [](qint64 value) { return static_cast<double>(value); },
                                 [](double value) { return value; },
                                 [](const QString& value) { return strictNumber(value); },
                                 [](const QDateTime& value) {
                                     return static_cast<double>(serialFromDate(value.date())) +
                                            value.time().msecsSinceStartOfDay() / 86400000.0;
                                 }},
                      value_);
}

qint32 Variant::toInt32() const {
    return runtime::toInt32(toDouble());
}

qint16 Variant::toInt16() const {
    return runtime::toInt16(toDouble());
}

quint8 Variant::toByte() const {
    return runtime::toByte(toDouble());
}

bool Variant::toBoolean() const {
    if (const auto* text = std::get_if<QString>(&value_))
        return textToBoolean(*text);
    return toDouble() != 0.0;
}

QDateTime Variant::toDateTime() const {
    if (const auto* date = std::get_if<QDateTime>(&value_))
        return *date;
    if (const auto* text = std::get_if<QString>(&value_)) {
        const auto date = parseDate(*text, DateOrder::DayFirst);
        if (!date)
            raise(TypeMismatch);
        return *date;
    }
    const double serial = toDouble();
    const double days = std::floor(serial);
    return atMidnight(dateFromSerial(runtime::toInt32(days)))
        .addMSecs(static_cast<qint64>(std::llround((serial - days) * 86400000.0)));
}

} // namespace runtime
