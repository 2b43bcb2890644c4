#include "platform/runtime/Conversions.h"
#include "platform/runtime/Dates.h"
#include "platform/runtime/Variant.h"
#include "support/Errors.h"
#include "support/Suite.h"

#include <cmath>

using namespace Qt::StringLiterals;
using namespace runtime;

namespace {

/// What a call gives, or the error it raises: "|2.5", "|E6".
template <class Call> QString told(const Call& call) {
    try {
        return u"|%1"_s.arg(call());
    } catch (const Error& error) {
        return u"|E%1"_s.arg(error.number());
    }
}

} // namespace

/// Rows are texts "input|result|result…".
class TestRuntime : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void narrowing() { // to a byte, to 16 bits
        for (const auto& row :
             {u"2.5|2|2"_s, u"3.5|4|4"_s, u"-0.5|0|0"_s, u"255.4|255|255"_s, u"255.5|E6|256"_s, u"-1|E6|-1"_s,
              u"32767.4|E6|32767"_s, u"32767.5|E6|E6"_s, u"-32768.5|E6|-32768"_s, u"nan|E6|E6"_s}) {
            const QString text = row.section(u'|', 0, 0);
            const double value = text == u"nan" ? std::nan("") : text.toDouble();
            QCOMPARE(text + told([&] { return toByte(value); }) + told([&] { return toInt16(value); }), row);
        }
        QCOMPARE(told([] { return toInt32(2147483647.4); }) + told([] { return toInt32(2147483647.5); }),
                 u"|2147483647|E6"_s);
        QCOMPARE(told([] { return add16(32767, 1); }) + told([] { return add16(-32768, -1); }), u"|E6|E6"_s);
        QCOMPARE(told([] { return mul16(255, 128); }) + told([] { return mul16(255, 129); }), u"|32640|E6"_s);
    }

    void numbersInText() { // the number it begins with, the number it is, a byte, a Boolean
        for (const auto& row :
             {u"30 sec|30|E13|-1|E13"_s, u" 1 2x|12|E13|-1|E13"_s, u"2.50|2.5|2.5|-1|1"_s,
              u"2,5|2|2.5|-1|1"_s, u"1e2|100|100|-1|1"_s, u"|0|E13|-1|E13"_s, u"inf|0|E13|-1|E13"_s,
              u"-7|-7|-7|-1|1"_s, u"1e|1|E13|-1|E13"_s, u" 255 |255|255|255|1"_s, u"256|256|256|-1|1"_s,
              u"99999999999|99999999999|99999999999|-1|1"_s, u"٣|0|E13|-1|E13"_s, u"VERO|0|E13|-1|1"_s,
              u"Falso|0|E13|-1|0"_s, u"0|0|0|0|0"_s, u"sì|0|E13|-1|E13"_s}) {
            const QString text = row.section(u'|', 0, 0);
            const auto byte = wholeByte(text);
            QCOMPARE(text + told([&] { return numberText(leadingNumber(text)); }) + told([&] {
                         return numberText(strictNumber(text));
                     }) + u"|%1"_s.arg(byte ? int{*byte} : -1) +
                         told([&] { return int{textToBoolean(text)}; }),
                     row);
        }
    }

    void dates() { // with the day first, with the month first
        for (const auto& row : {u"01/02/2005|01/02/2005|02/01/2005"_s, u"12/31/2005||31/12/2005"_s,
                                u"1-2-05|01/02/2005|02/01/2005"_s, u"1/1/30|01/01/1930|01/01/1930"_s,
                                u"29/02/2004|29/02/2004|"_s, u"29/02/2005||"_s,
                                u"1/2/2005 9:05|01/02/2005 09:05:00|02/01/2005 09:05:00"_s,
                                u"1/2/2005 24:00||"_s, u"1/2-2005||"_s, u"1/2/205||"_s}) {
            const QString text = row.section(u'|', 0, 0);
            const auto read = [&](DateOrder order) {
                return dateText(parseDate(text, order).value_or(QDateTime()));
            };
            QCOMPARE(text + u'|' + read(DateOrder::DayFirst) + u'|' + read(DateOrder::MonthFirst), row);
        }
        QVERIFY(!textToDate({}).isValid());
        QCOMPARE(errorOf([] { return textToDate(u"0"_s); }), 13);
        QCOMPARE(serialFromDate(QDate(1980, 1, 1)), 29221);
    }

    void variants() {
        const Variant null;
        QVERIFY(!null.isNumeric() && Variant(u" 7 "_s).isNumeric() &&
                !Variant(QDate(2005, 1, 1)).isNumeric());
        QCOMPARE(Variant(29221.5).toDateTime(), QDateTime(QDate(1980, 1, 1), QTime(12, 0), Qt::UTC));
        QCOMPARE(told([] { return Variant(true).toText(); }) + told([] {
                     return Variant(u"7"_s).toInt32();
                 }) + told([] { return Variant(qint64{1} << 40).toInt32(); }) +
                     told([] { return Variant(u"ERR:x"_s).toInt32(); }) +
                     told([&] { return null.toText(); }) + told([&] { return null.toDouble(); }),
                 u"|True|7|E6|E13|E94|E94"_s);
    }
};

QUIVERDECK_TEST(TestRuntime)
#include "test_runtime.moc"
