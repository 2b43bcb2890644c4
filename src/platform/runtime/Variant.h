#pragma once

#include <QDateTime>
#include <QString>

#include <concepts>
#include <variant>

namespace runtime {

/// A value as the store gives it: Null, Boolean, whole number, number, text or date. A conversion of Null
/// raises error 94; a text that does not fit the wanted type raises error 13, a number out of range error 6.
class Variant {
public:
    Variant() = default; ///< Null
    template <std::same_as<bool> Bool> Variant(Bool value) : value_(value) {}
    Variant(int value) : value_(qint64{value}) {}
    Variant(qint64 value) : value_(value) {}
    Variant(double value) : value_(value) {}
    Variant(QString value) : value_(std::move(value)) {}
    Variant(const QDateTime& value) : value_(value) {}
    Variant(QDate value);

    bool isNull() const { return std::holds_alternative<std::monostate>(value_); }
    /// A number, a Boolean, or a text that is a number as a whole.
    bool isNumeric() const;

    /// Booleans as "True"/"False", numbers with a decimal point, dates as dd/MM/yyyy.
    QString toText() const;
    double toDouble() const;
    qint32 toInt32() const;
    qint16 toInt16() const;
    quint8 toByte() const;
    bool toBoolean() const;
    /// A date in UTC; texts are read day first, numbers as day numbers.
    QDateTime toDateTime() const;

    bool operator==(const Variant& other) const = default;

private:
    std::variant<std::monostate, bool, qint64, double, QString, QDateTime> value_;
};

} // namespace runtime
