#include "cards/GGAllenHELPER.h"
#include "fuzz/Fuzz.h"
#include "platform/runtime/Conversions.h"
#include "platform/runtime/Dates.h"
#include "platform/store/Dialect.h"
#include "support/Errors.h"
#include "support/FakeControls.h"

#include <QRegularExpression>

#include <charconv>
#include <cmath>
#include <cstring>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

/// The longest numeric prefix, read by the standard library. Blanks do not count, and one sign may stand
/// first.
double prefix(QString text) {
    static const QRegularExpression number(u"^(?:\\+(?!-))?(-?[0-9.].*)"_s);
    text.removeIf([](QChar c) { return c.isSpace(); });
    const QByteArray plain = number.match(text).captured(1).toLatin1();
    double value = 0;
    std::from_chars(plain.begin(), plain.end(), value);
    return value;
}

template <class T> void narrowing(double value, T (*narrow)(double)) {
    T whole = 0;
    const int error = errorOf([&] { return whole = narrow(value); });
    const bool fits =
        value >= std::numeric_limits<T>::min() - 0.5 && value < std::numeric_limits<T>::max() + 0.5;
    fuzz::require(error == (fits ? 0 : runtime::Overflow), "a number fits or is an overflow");
    const double off = fits ? std::abs(whole - value) : 0;
    fuzz::require(off < 0.5 || (off == 0.5 && whole % 2 == 0), "rounding goes to the nearest, ties to even");
}

void thereAndBack(const QDateTime& date) {
    const QString text = runtime::dateText(date);
    fuzz::require(runtime::parseDate(text, runtime::DateOrder::DayFirst) == date,
                  "a date's text reads back as the date");
    const QString day = runtime::dateText(date.date());
    fuzz::require(day.size() == 10 && text.startsWith(day) && runtime::textToDate(day) == date.date(),
                  "a day is written dd/MM/yyyy and reads back as the day");
    fuzz::require(runtime::dateFromSerial(runtime::serialFromDate(date.date())) == date.date(),
                  "a serial reads back as the day");
}

/// The quoted texts and bracketed names from left to right; an unclosed one reaches to the end.
QStringList quoted(const QString& sql) {
    static const QRegularExpression form(
        uR"('[^']*(?:'|\z)|"[^"]*(?:"|\z)|`[^`]*(?:`|\z)|\[[^\]]*(?:\]|\z))"_s);
    QStringList texts;
    for (auto all = form.globalMatch(sql); all.hasNext();)
        texts += all.next().captured();
    return texts;
}

} // namespace

void fuzz::numbers(const QByteArray& input) {
    const QString text = QString::fromUtf8(input);
    const double leading = runtime::leadingNumber(text);
    require(leading == prefix(text), "the leading number is that of the longest numeric prefix");
    double strict = 0;
    const int error = errorOf([&] { return strict = runtime::strictNumber(text); });
    require(error == (runtime::isNumber(text) ? 0 : runtime::TypeMismatch), "a number or a mismatch");
    require(error != 0 || text.contains(u',') || strict == leading, "a whole number text is its own prefix");
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

void fuzz::dialect(const QByteArray& input) {
    const QString sql = QString::fromUtf8(input);
    const QString result = store::translate(sql);
    require(store::translate(result) == result, "a translated statement stays as it is");
    static const QRegularExpression literal(u"^'\\d{4}-\\d\\d-\\d\\d( \\d\\d:\\d\\d:\\d\\d)?'$"_s);
    QStringList before = quoted(sql);
    for (const QString& text : quoted(result)) {
        if (!before.isEmpty() && text == before.first())
            before.removeFirst();
        else
            require(literal.match(text).hasMatch(), "only date literals become quoted texts");
    }
    require(before.isEmpty(), "quoted texts are all still there");
    require(result == sql || sql.contains(u'#') || sql.contains(u"delete"_s, Qt::CaseInsensitive),
            "a statement without the dialect's forms is not touched");
    for (const QChar mark : {u'\'', u'"', u'`'}) { // whatever stands between quotes is the user's
        const QString text = mark + QString(sql).replace(mark, QString(2, mark)) + mark;
        require(store::translate(u"DELETE * FROM t WHERE a="_s + text + u" AND d=#12/31/2005#"_s) ==
                    u"DELETE FROM t WHERE a="_s + text + u" AND d='2005-12-31'"_s,
                "a planted text is kept, and what surrounds it translated");
    }
}

void fuzz::dates(const QByteArray& input) {
    const QString text = QString::fromUtf8(input);
    const auto dayFirst = runtime::parseDate(text, runtime::DateOrder::DayFirst);
    QDate date;
    const int error = errorOf([&] { return date = runtime::textToDate(text); });
    require(error == (dayFirst || text.isEmpty() ? 0 : runtime::TypeMismatch), "a date or a mismatch");
    require(date == (dayFirst ? dayFirst->date() : QDate()), "text to date drops the time alone");
    if (dayFirst)
        thereAndBack(*dayFirst);

    static const QRegularExpression firstTwo(u"(\\d+)([/.-])(\\d+)"_s);
    QString swapped = text;
    if (const auto match = firstTwo.match(text); match.hasMatch())
        swapped.replace(match.capturedStart(), match.capturedLength(),
                        match.captured(3) + match.captured(2) + match.captured(1));
    require(swapped == text || runtime::parseDate(swapped, runtime::DateOrder::MonthFirst) == dayFirst,
            "the two orders differ in the order alone");

    quint64 any = 0; // the bytes themselves as a second of the years 1 to 9999
    std::memcpy(&any, input.constData(), std::min(sizeof any, static_cast<std::size_t>(input.size())));
    const QDate first(1, 1, 1);
    constexpr quint64 seconds = 86'400;
    const auto days = static_cast<quint64>(first.daysTo(QDate(9999, 12, 31))) + 1;
    thereAndBack(QDateTime(first.addDays(static_cast<qint64>(any / seconds % days)),
                           QTime::fromMSecsSinceStartOfDay(static_cast<int>(any % seconds) * 1000), Qt::UTC));
}

/// The first byte is the length of the list, usually nine.
void fuzz::days(const QByteArray& input) {
    constexpr int usual = 9;
    const int length = input.isEmpty() || input[0] >= '0' ? usual : input[0] & 15;
    const QString text = QString::fromUtf8(input);
    FakeCheckList list(length);
    const int error = errorOf([&] { GGAllenHELPER::scriviGGAllen(text, list); });
    require(error == (text.mid(length).contains(u'1') ? runtime::SubscriptOutOfRange : 0),
            "a tick behind the list is an error, and nothing else is");
    QString wanted = text.left(length).leftJustified(length);
    for (QChar& day : wanted)
        day = day == u'1' ? day : QChar(u'0');
    require(GGAllenHELPER::leggiGGAllen(list) == wanted, "the ticks are the string's, and read back as it");

    QString printed;
    const int printing = errorOf([&] { return printed = GGAllenHELPER::descrizioneGGAllen(text); });
    require(printing == 0 || (printing == runtime::SubscriptOutOfRange && text.mid(usual).contains(u'1')),
            "nine characters can always be printed");
    if (printing == 0 && text.size() <= usual && !text.left(2).contains(u'1'))
        require(printed.split(u" - "_s, Qt::SkipEmptyParts).size() == text.mid(2).count(u'1'),
                "each day is named once");
}
