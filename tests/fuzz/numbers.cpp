#include "fuzz/Fuzz.h"
#include "platform/runtime/Conversions.h"
#include "platform/runtime/Error.h"
#include "support/Errors.h"

#include <charconv>
#include <cmath>
#include <cstring>
#include <limits>

namespace {

/// The longest numeric prefix, read by the standard library.
double prefix(const QString& text) {
    std::string plain;
    for (const QChar c : text)
        if (!c.isSpace())
            plain += c.unicode() < 0x80 ? static_cast<char>(c.unicode()) : '?';
    const bool plus = plain.starts_with('+');
    const std::string number = plain.substr(plus ? 1 : 0);
    const std::size_t first = !plus && number.starts_with('-') ? 1 : 0;
    if (number.size() <= first || !QByteArrayView("0123456789.").contains(number[first]))
        return 0;
    double value = 0;
    std::from_chars(number.data(), number.data() + number.size(), value);
    return value;
}

template <class T> void narrowing(double value, T (*narrow)(double)) {
    T whole = 0;
    const int error = errorOf([&] { return whole = narrow(value); });
    const bool fits =
        value >= std::numeric_limits<T>::min() - 0.5 && value < std::numeric_limits<T>::max() + 0.5;
    fuzz::require(error == (fits ? 0 : runtime::Overflow), "a number fits or is an overflow");
    if (fits) {
        const double off = std::abs(whole - value);
        fuzz::require(off < 0.5 || (off == 0.5 && whole % 2 == 0),
                      "rounding goes to the nearest, ties to even");
    }
}

} // namespace

void fuzz::numbers(const QByteArray& input) {
    const QString text = QString::fromUtf8(input);
    const double leading = runtime::leadingNumber(text);
    require(leading == prefix(text), "the leading number is that of the longest numeric prefix");

    double strict = 0;
    const int error = errorOf([&] { return strict = runtime::strictNumber(text); });
    require(error == (runtime::isNumber(text) ? 0 : runtime::TypeMismatch), "a number or a mismatch");
    if (error == 0 && !text.contains(u','))
        require(strict == leading, "a whole number text is its own prefix");
    const int boolean = errorOf([&] { return runtime::textToBoolean(text); });
    require(boolean == 0 || boolean == runtime::TypeMismatch, "a Boolean or a mismatch");
    if (const auto byte = runtime::wholeByte(text))
        require(error == 0 && strict == *byte, "a whole byte is a number");

    double any = 0; // the bytes themselves as a number
    std::memcpy(&any, input.constData(), std::min(sizeof any, static_cast<std::size_t>(input.size())));
    for (const double value : {leading, any, any / 2, std::trunc(leading) + 0.5}) {
        narrowing<quint8>(value, runtime::toByte);
        narrowing<qint16>(value, runtime::toInt16);
        narrowing<qint32>(value, runtime::toInt32);
        if (!std::isfinite(value))
            continue;
        const QString plain = runtime::numberText(value);
        require(runtime::strictNumber(plain) == value && runtime::leadingNumber(plain) == value,
                "a number's text reads back as the number");
        require(!plain.contains(u'e', Qt::CaseInsensitive), "a number's text has no exponent");
    }
}
