#include "platform/runtime/Collection.h"
#include "platform/runtime/Conversions.h"
#include "platform/runtime/Dates.h"
#include "platform/runtime/Variant.h"
#include "support/Errors.h"
#include "support/Suite.h"

#include <cmath>

using namespace Qt::StringLiterals;
using runtime::Variant;

class TestRuntime : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void narrowing_data() {
        QTest::addColumn<double>("value");
        QTest::addColumn<int>("byte"); // -1: overflow
        QTest::addColumn<int>("int16");
        constexpr int over = 99999;
        QTest::newRow("tie down") << 2.5 << 2 << 2;
        QTest::newRow("tie up") << 3.5 << 4 << 4;
        QTest::newRow("tie to zero") << -0.5 << 0 << 0;
        QTest::newRow("below 255.5") << 255.4 << 255 << 255;
        QTest::newRow("255.5") << 255.5 << -1 << 256;
        QTest::newRow("-1") << -1.0 << -1 << -1;
        QTest::newRow("32767.4") << 32767.4 << -1 << 32767;
        QTest::newRow("32767.5") << 32767.5 << -1 << over;
        QTest::newRow("-32768.5") << -32768.5 << -1 << -32768;
        QTest::newRow("-32769") << -32769.0 << -1 << over;
        QTest::newRow("no number") << std::nan("") << -1 << over;
    }
    void narrowing() {
        QFETCH(double, value);
        QFETCH(int, byte);
        QFETCH(int, int16);
        if (byte < 0)
            QCOMPARE(errorOf([&] { return runtime::toByte(value); }), 6);
        else
            QCOMPARE(int{runtime::toByte(value)}, byte);
        if (int16 > 32767)
            QCOMPARE(errorOf([&] { return runtime::toInt16(value); }), 6);
        else
            QCOMPARE(int{runtime::toInt16(value)}, int16);
    }

    void wideAndSums() {
        QCOMPARE(runtime::toInt32(2147483647.4), 2147483647);
        QCOMPARE(errorOf([] { return runtime::toInt32(2147483647.5); }), 6);
        QCOMPARE(runtime::add16(32766, 1), qint16{32767});
        QCOMPARE(errorOf([] { return runtime::add16(32767, 1); }), 6);
        QCOMPARE(errorOf([] { return runtime::add16(-32768, -1); }), 6);
        QCOMPARE(runtime::mul16(255, 128), qint16{32640});
        QCOMPARE(errorOf([] { return runtime::mul16(255, 129); }), 6);
    }

    void numbersInText_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<double>("leading");
        QTest::addColumn<QString>("strict"); // the number's text; empty: type mismatch
        QTest::addColumn<int>("byte");       // -1: refused
        QTest::newRow("with a unit") << u"30 sec"_s << 30.0 << QString() << -1;
        QTest::newRow("blanks within") << u" 1 2x"_s << 12.0 << QString() << -1;
        QTest::newRow("decimals") << u"2.50"_s << 2.5 << u"2.5"_s << -1;
        QTest::newRow("comma ends the prefix") << u"2,5"_s << 2.0 << u"2.5"_s << -1;
        QTest::newRow("exponent") << u"1e2"_s << 100.0 << u"100"_s << -1;
        QTest::newRow("empty") << QString() << 0.0 << QString() << -1;
        QTest::newRow("infinity is a word") << u"inf"_s << 0.0 << QString() << -1;
        QTest::newRow("sign") << u"-7"_s << -7.0 << u"-7"_s << -1;
        QTest::newRow("cut exponent") << u"1e"_s << 1.0 << QString() << -1;
        QTest::newRow("255") << u" 255 "_s << 255.0 << u"255"_s << 255;
        QTest::newRow("256") << u"256"_s << 256.0 << u"256"_s << -1;
        QTest::newRow("beyond any int") << u"99999999999"_s << 99999999999.0 << u"99999999999"_s << -1;
        QTest::newRow("other digits") << u"٣"_s << 0.0 << QString() << -1;
    }
    void numbersInText() {
        QFETCH(QString, text);
        QFETCH(QString, strict);
        QFETCH(int, byte);
        QTEST(runtime::leadingNumber(text), "leading");
        QCOMPARE(runtime::isNumber(text), !strict.isEmpty());
        if (strict.isEmpty())
            QCOMPARE(errorOf([&] { return runtime::strictNumber(text); }), 13);
        else
            QCOMPARE(runtime::numberText(runtime::strictNumber(text)), strict);
        QCOMPARE(runtime::wholeByte(text).has_value() ? int{*runtime::wholeByte(text)} : -1, byte);
    }

    void booleans() {
        for (const auto& yes : {u"True"_s, u"VERO"_s, u"1"_s, u"-1"_s})
            QVERIFY(runtime::textToBoolean(yes));
        for (const auto& no : {u"false"_s, u"Falso"_s, u"0"_s})
            QVERIFY(!runtime::textToBoolean(no));
        for (const auto& wrong : {QString(), u"sì"_s, u"ERR:Dati non trovati"_s})
            QCOMPARE(errorOf([&] { return runtime::textToBoolean(wrong); }), 13);
    }

    void dates_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("dayFirst"); // read and written again; empty: no date
        QTest::addColumn<QString>("monthFirst");
        QTest::newRow("either way") << u"01/02/2005"_s << u"01/02/2005"_s << u"02/01/2005"_s;
        QTest::newRow("month first") << u"12/31/2005"_s << QString() << u"31/12/2005"_s;
        QTest::newRow("short") << u"1-2-05"_s << u"01/02/2005"_s << u"02/01/2005"_s;
        QTest::newRow("last century") << u"1/1/30"_s << u"01/01/1930"_s << u"01/01/1930"_s;
        QTest::newRow("leap day") << u"29/02/2004"_s << u"29/02/2004"_s << QString();
        QTest::newRow("no leap day") << u"29/02/2005"_s << QString() << QString();
        QTest::newRow("time") << u"1/2/2005 9:05"_s << u"01/02/2005 09:05:00"_s << u"02/01/2005 09:05:00"_s;
        QTest::newRow("no such time") << u"1/2/2005 24:00"_s << QString() << QString();
        QTest::newRow("mixed separators") << u"1/2-2005"_s << QString() << QString();
        QTest::newRow("three-digit year") << u"1/2/205"_s << QString() << QString();
    }
    void dates() {
        QFETCH(QString, text);
        for (const auto& [order, column] : {std::pair(runtime::DateOrder::DayFirst, "dayFirst"),
                                            std::pair(runtime::DateOrder::MonthFirst, "monthFirst")}) {
            const auto date = runtime::parseDate(text, order);
            QTEST(date ? runtime::dateText(*date) : QString(), column);
        }
    }

    void dateEdges() {
        QCOMPARE(runtime::dateText(QDate()), QString());
        QVERIFY(!runtime::textToDate({}).isValid());
        QCOMPARE(errorOf([] { return runtime::textToDate(u"0"_s); }), 13);
        QCOMPARE(runtime::dateFromSerial(29221), QDate(1980, 1, 1));
        QCOMPARE(runtime::serialFromDate(QDate(1980, 1, 1)), 29221);
    }

    void variants() {
        QCOMPARE(Variant(true).toText(), u"True"_s);
        QCOMPARE(Variant(2.5).toText(), u"2.5"_s);
        QCOMPARE(Variant(QDate(2005, 12, 31)).toText(), u"31/12/2005"_s);
        QCOMPARE(Variant(u"7"_s).toInt32(), 7);
        QCOMPARE(Variant(29221.5).toDateTime(), QDateTime(QDate(1980, 1, 1), QTime(12, 0), Qt::UTC));
        QCOMPARE(errorOf([] { return Variant(qint64{1} << 40).toInt32(); }), 6);
        QCOMPARE(errorOf([] { return Variant(u"ERR:x"_s).toInt32(); }), 13);
        const Variant null;
        QVERIFY(!null.isNumeric());
        QVERIFY(Variant(u" 7 "_s).isNumeric());
        QVERIFY(!Variant(QDate(2005, 1, 1)).isNumeric());
        QCOMPARE(errorOf([&] { return null.toText(); }), 94);
        QCOMPARE(errorOf([&] { return null.toDouble(); }), 94);
        QCOMPARE(errorOf([&] { return null.toBoolean(); }), 94);
        QCOMPARE(errorOf([&] { return null.toDateTime(); }), 94);
    }

    void collection() {
        runtime::Collection<int> items;
        for (const int value : {1, 3})
            items.Add(std::make_shared<int>(value));
        items.Add(std::make_shared<int>(2), 2);
        QCOMPARE(*items.Item(2), 2);
        QCOMPARE(*items.Item(3), 3);
        items.Remove(1);
        QCOMPARE(items.Count(), 2);
        QCOMPARE(*items.Item(1), 2);
        for (const int wrong : {0, 3, -1}) {
            QCOMPARE(errorOf([&] { return *items.Item(wrong); }), 9);
            QCOMPARE(errorOf([&] { items.Remove(wrong); }), 9);
            QCOMPARE(errorOf([&] { items.Add(std::make_shared<int>(9), wrong); }), 9);
        }
        QCOMPARE(items.Count(), 2);
    }
};

QUIVERDECK_TEST(TestRuntime)
#include "test_runtime.moc"
