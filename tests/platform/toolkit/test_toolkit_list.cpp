#include "platform/toolkit/Form.h"
#include "platform/toolkit/ReportList.h"
#include "platform/toolkit/Twips.h"
#include "support/Errors.h"
#include "support/Suite.h"
#include "support/WindowPage.h"

#include <QSignalSpy>

using toolkit::ReportList;

namespace {

void fill(ReportList& list, const QList<QStringList>& lines) {
    const ReportList::Refill refill(list);
    list.clear();
    for (const QStringList& cells : lines) {
        const int line = list.addItem(cells.at(0));
        for (int column = 1; column < cells.size(); ++column)
            list.setSubItem(line, column, cells.at(column));
    }
}

QStringList column(const ReportList& list, int column) {
    QStringList cells;
    for (int line = 0; line < list.count(); ++line)
        cells << list.cell(line, column);
    return cells;
}

const QList<QStringList> athletes{{"10", "rossi", "Anna", "02/01/1990"},
                                  {"2", "Bianchi", "Éva", "15/12/1985"},
                                  {"7", "Rossi", "Aldo", ""},
                                  {"9", "Verdi", "anna", "03/01/1985"}};

} // namespace

class TestList : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() {
        form_ = std::make_unique<toolkit::Form>("F");
        form_->setInnerSize(9000, 4500);
        list_ = new ReportList("LW", form_->client());
        place(*list_, 0, 0, 9000, 4500);
        list_->addColumn("ID", 0);
        list_->addColumn("Cognome", 2805);
        list_->addColumn("Nome", 2540);
        list_->addColumn("Data Nascita", 2540, Qt::AlignHCenter);
        form_->show();
    }
    void cleanup() { form_.reset(); }

    void headerSorts_data() {
        QTest::addColumn<int>("by");
        QTest::addColumn<QStringList>("keys");
        QTest::newRow("surnames, ignoring case, equal ones as they were")
            << 1 << QStringList{"2", "10", "7", "9"};
        QTest::newRow("first names, accents in their place") << 2 << QStringList{"7", "10", "9", "2"};
        QTest::newRow("dates by time, none first") << 3 << QStringList{"7", "9", "2", "10"};
    }
    void headerSorts() {
        QFETCH(int, by);
        QFETCH(QStringList, keys);
        fill(*list_, athletes);
        QCOMPARE(column(*list_, 0), QStringList({"10", "2", "7", "9"}));
        WindowPage(*form_).clickLine("LW", 3);
        const QSignalSpy told(list_, &ReportList::columnClick);
        WindowPage(*form_).clickHeader("LW", by);
        QCOMPARE(told.count(), 1);
        QCOMPARE(column(*list_, 0), keys);
        QCOMPARE(list_->selectedText(), QString("9")); // the line goes along
        QTest::keyClick(list_, Qt::Key_Space, Qt::ControlModifier);
        QVERIFY(list_->hasSelection());
        WindowPage(*form_).clickHeader("LW", by);
        QCOMPARE(column(*list_, 0), keys); // never descending
        fill(*list_, athletes + QList<QStringList>{{"1", "Zeta", "Zoe", "01/01/2001"}});
        QCOMPARE(column(*list_, 0), keys + QStringList("1"));
    }

    void refillKeepsTheKeyElseTheFirstLine() {
        fill(*list_, athletes);
        QCOMPARE(list_->selectedText(), QString("10"));
        list_->select(2);
        fill(*list_, {athletes.at(3), athletes.at(2)});
        QCOMPARE(list_->selectedText(), QString("7"));
        fill(*list_, {athletes.at(3), athletes.at(0)});
        QCOMPARE(list_->selectedText(), QString("9"));
        fill(*list_, {});
        QVERIFY(!list_->hasSelection());
        QCOMPARE(errorOf([&] { return list_->selectedText(); }), int(runtime::ObjectNotSet));
    }

    void doubleClickNeedsALine() {
        fill(*list_, {athletes.at(0)});
        const QSignalSpy told(list_, &ReportList::doubleClick);
        WindowPage(*form_).clickLine("LW", 0, 2);
        QCOMPARE(told.count(), 1);
        QTest::mouseDClick(list_->viewport(), Qt::LeftButton, {},
                           QPoint(50, list_->viewport()->height() - 5));
        QCOMPARE(told.count(), 1);
    }

private:
    std::unique_ptr<toolkit::Form> form_;
    ReportList* list_ = nullptr;
};

QUIVERDECK_TEST(TestList)
#include "test_toolkit_list.moc"
