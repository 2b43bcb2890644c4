#include "platform/runtime/Conversions.h"

#include "platform/runtime/Error.h"

#include <QLocale>

#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;

namespace runtime {

namespace {

template <class T> T checked(double value) {
    // The default rounding mode of the floating-point unit is ties-to-even.
    const double whole = std::nearbyint(value);
    if (!(whole >= std::numeric_limits<T>::min() && whole <= std::numeric_limits<T>::max()))
        raise(Overflow);
    return static_cast<T>(whole);
}

qint16 narrow16(qint32 value) {
    if (value < std::numeric_limits<qint16>::min() || value > std::numeric_limits<qint16>::max())
        raise(Overflow);
    return static_cast<qint16>(value);
}

bool isDigit(QChar c) {
    return c >= u'0' && c <= u'9';
}

/// Parses a whole text as a plain decimal number; no "inf", "nan" or hexadecimal forms.
std::optional<double> parse(const QString& text) {
    QString plain = text.trimmed();
    plain.replace(u',', u'.');
    for (const QChar c : plain)
        if (!isDigit(c) && !QStringView(u"+-.eE").contains(c))
            return std::nullopt;
    bool ok = false;
    const double value = plain.toDouble(&ok);
    if (!ok)
        return std::nullopt;
    return value;
}

} // namespace

qint16 toInt16(double value) {
    return checked<qint16>(value);
}

qint32 toInt32(double value) {
    return checked<qint32>(value);
}

quint8 toByte(double value) {
    return checked<quint8>(value);
}

qint16 add16(qint16 a, qint16 b) {
    return narrow16(qint32{a} + qint32{b});
}

qint16 mul16(qint16 a, qint16 b) {
    return narrow16(qint32{a} * qint32{b});
}

double leadingNumber(const QString& text) {
    QString plain;
    for (const QChar c : text)
        if (!c.isSpace())
            plain += c;
    qsizetype end = 0;
    const auto digits = [&plain](qsizetype from) {
        while (from < plain.size() && isDigit(plain[from]))
            ++from;
        return from;
    };
    if (end < plain.size() && (plain[end] == u'-' || plain[end] == u'+'))
        ++end;
    end = digits(end);
    if (end < plain.size() && plain[end] == u'.')
        end = digits(end + 1);
    if (end < plain.size() && (plain[end] == u'e' || plain[end] == u'E')) {
        qsizetype exponent = end + 1;
        if (exponent < plain.size() && (plain[exponent] == u'-' || plain[exponent] == u'+'))
            ++exponent;
        if (digits(exponent) > exponent)
            end = digits(exponent);
    }
    bool ok = false;
    const double value = plain.left(end).toDouble(&ok);
    return ok ? value : 0.0;
}

bool isNumber(const QString& text) {
    return parse(text).has_value();
}

double strictNumber(const QString& text) {
    const auto value = parse(text);
    if (!value)
        raise(TypeMismatch);
    return *value;
}

qint32 textToInt32(const QString& text) {
    return toInt32(strictNumber(text));
}

std::optional<quint8> wholeByte(const QString& text) {
    const QString plain = text.trimmed();
    if (plain.isEmpty())
        return std::nullopt;
    int value = 0;
    for (const QChar c : plain) {
        if (!isDigit(c))
            return std::nullopt;
        value = value * 10 + (c.unicode() - u'0');
        if (value > std::numeric_limits<quint8>::max())
            return std::nullopt;
    }
    return static_cast<quint8>(value);
}

bool textToBoolean(const QString& text) {
    const QString word = text.trimmed();
    for (const auto yes : {u"True", u"Vero"})
        if (word.compare(QStringView(yes), Qt::CaseInsensitive) == 0)
            return true;
    for (const auto no : {u"False", u"Falso"})
        if (word.compare(QStringView(no), Qt::CaseInsensitive) == 0)
            return false;
    return strictNumber(text) != 0.0;
}

QString booleanText(bool value) {
    return value ? u"True"_s : u"False"_s;
}

QString numberText(double value) {
    if (value == 0.0)
        return u"0"_s; // also for the negative zero
    return QString::number(value, 'f', QLocale::FloatingPointShortest);
}

} // namespace runtime
