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
    /// What stands in the field after a person's keys, by whatever way the field was entered.
    void typed() {
        Form form(u"F"_s);
        auto* picker = new DatePicker(u"date"_s, form.client());
        QLineEdit& text = *picker->findChild<QLineEdit*>();
        auto* other = new TextBox(u"other"_s, form.client());
        form.show();
        QTRY_VERIFY(form.isActiveWindow());
        const QStringList rows{u"14/03/1988|19880314"_s, u"14031988|19880314"_s,
                               u"3-4-1988|19880403"_s,   u"1.12 2001|20011201"_s,
                               u"29/02/1988|19880229"_s, // though the year before has no such day
                               u"29/2/88|19880229"_s,    u"31/12/29|20291231"_s,
                               u"31/04/1990|19900430"_s, u"14/03|20260314"_s};
        for (const QString& row : rows)
            for (const auto& enter : {u"tab"_s, u"click"_s, u"return"_s}) {
                picker->setValue({2026, 11, 23});
                if (enter == u"tab")
                    picker->setFocus(Qt::TabFocusReason);
                else
                    QTest::mouseClick(&text, Qt::LeftButton, {}, {4, 8});
                QCOMPARE(text.selectedText(), u"23"_s);
                const QString keys = row.section(u'|', 0, 0);
                QTest::keyClicks(picker, keys);
                if (enter == u"return")
                    QTest::keyClick(picker, Qt::Key_Return);
                else
                    other->setFocus();
                QCOMPARE(keys + picker->value().toString(u"|yyyyMMdd"_s), row);
                other->setFocus();
            }
    }
};

QUIVERDECK_TEST(TestDates)
#include "test_toolkit_dates.moc"
