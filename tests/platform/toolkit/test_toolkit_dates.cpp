#include "platform/toolkit/DatePicker.h"
#include "platform/toolkit/Form.h"
#include "platform/toolkit/TextBox.h"
#include "support/Suite.h"

#include <QLineEdit>

using namespace Qt::StringLiterals;
using namespace toolkit;

class TestDates : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void typed_data() {
        QTest::addColumn<QString>("keys");
        QTest::addColumn<QDate>("date");
        const auto row = [](const char* keys, QDate date) { QTest::newRow(keys) << keys << date; };
        row("14/03/1988", {1988, 3, 14});
        row("14031988", {1988, 3, 14});
        row("3-4-1988", {1988, 4, 3});
        row("1.12 2001", {2001, 12, 1});
        row("29/02/1988", {1988, 2, 29}); // though the year before has no such day
        row("29/2/88", {1988, 2, 29});
        row("31/12/29", {2029, 12, 31});
        row("31/04/1990", {1990, 4, 30});
        row("14/03", {2026, 3, 14});
    }

    /// What stands in the field after a person's keys, by whatever way the field was entered.
    void typed() {
        QFETCH(const QString, keys);
        Form form(u"F"_s);
        auto* picker = new DatePicker(u"date"_s, form.client());
        QLineEdit& text = *picker->findChild<QLineEdit*>();
        auto* other = new TextBox(u"other"_s, form.client());
        form.show();
        QTRY_VERIFY(form.isActiveWindow());
        for (const auto& enter : {u"tab"_s, u"click"_s, u"return"_s}) {
            picker->setValue({2026, 11, 23});
            if (enter == u"tab")
                picker->setFocus(Qt::TabFocusReason);
            else
                QTest::mouseClick(&text, Qt::LeftButton, {}, {4, 8});
            QCOMPARE(text.selectedText(), u"23"_s);
            QTest::keyClicks(picker, keys);
            if (enter == u"return")
                QTest::keyClick(picker, Qt::Key_Return);
            else
                other->setFocus();
            QTEST(picker->value(), "date");
        }
    }
};

QUIVERDECK_TEST(TestDates)
#include "test_toolkit_dates.moc"
