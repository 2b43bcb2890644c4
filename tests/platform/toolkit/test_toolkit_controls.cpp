#include "platform/toolkit/Button.h"
#include "platform/toolkit/Combo.h"
#include "platform/toolkit/DatePicker.h"
#include "platform/toolkit/Focus.h"
#include "platform/toolkit/Form.h"
#include "platform/toolkit/Label.h"
#include "platform/toolkit/ReportList.h"
#include "platform/toolkit/ScrollBar.h"
#include "platform/toolkit/TextArea.h"
#include "platform/toolkit/TextBox.h"
#include "platform/toolkit/Toolbar.h"
#include "platform/toolkit/Twips.h"
#include "platform/toolkit/Validation.h"
#include "support/Errors.h"
#include "support/Suite.h"
#include "support/WindowChecks.h"
#include "support/WindowPage.h"

#include <QClipboard>
#include <QSignalSpy>

using namespace Qt::StringLiterals;
using namespace toolkit;

namespace {

void fill(ReportList& list, const QStringList& lines) {
    const ReportList::Refill refill(list);
    list.clear();
    for (const QString& cells : lines) {
        const int line = list.addItem(cells.section(u'|', 0, 0));
        for (int column = 1; column < 4; ++column)
            list.setSubItem(line, column, cells.section(u'|', column, column));
    }
}

QString keys(const ReportList& list) {
    QString all;
    for (int line = 0; line < list.count(); ++line)
        all += list.cell(line, 0) + u' ';
    return all;
}

const QStringList athletes{u"10|rossi|Anna|02/01/1990"_s, u"2|Bianchi|Éva|15/12/1985"_s, u"7|Rossi|Aldo|"_s,
                           u"9|Verdi|anna|03/01/1985"_s};

} // namespace

class TestControls : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() {
        form_ = std::make_unique<Form>(u"F"_s);
        form_->setInnerSize(9000, 6000);
        rows_ = 0;
    }
    void cleanup() { form_.reset(); }

    void comboClicksAreChoices() {
        auto* combo = add<Combo>(u"combo"_s);
        combo->addItems({u"30s"_s, u"45s"_s, u"60s"_s});
        add<TextBox>(u"other"_s);
        show();
        const QSignalSpy clicks(combo, &Combo::clicked);
        const WindowPage page(*form_);
        page.type(u"combo"_s, u"45s"_s); // neither completed nor chosen
        page.key(u"combo"_s, Qt::Key_Return);
        page.press(u"other"_s);
        combo->setText(u"30s"_s);
        QCOMPARE(clicks.count(), 0);
        page.key(u"combo"_s, Qt::Key_Down);
        QCOMPARE(combo->text(), u"45s"_s);
        combo->setText(u"altro"_s);
        QCOMPARE(combo->index(), -1);
        combo->selectIndex(1); // the item chosen before, under another text
        QCOMPARE(combo->text(), u"45s"_s);
        QCOMPARE(clicks.count(), 2);
    }

    void apostrophes() {
        add<TextBox>(u"box"_s)->guardApostrophes();
        add<TextArea>(u"area"_s)->guardApostrophes();
        auto* combo = add<Combo>(u"combo"_s);
        combo->guardApostrophes();
        auto* digits = add<TextBox>(u"digits"_s);
        digits->setKeyFilter([](QChar c) { return c.unicode() == 8 || c.isDigit(); });
        show();
        const WindowPage page(*form_);
        QGuiApplication::clipboard()->setText(u"l'asta d'oro"_s);
        for (const auto& field : {u"box"_s, u"area"_s, u"combo"_s}) {
            page.type(field, u"D'Amico"_s);
            QCOMPARE(page.text(field), u"D’Amico"_s);
            page.type(field, {});
            page.key(field, Qt::Key_V, Qt::ControlModifier);
            QCOMPARE(page.text(field), u"l’asta d’oro"_s);
        }
        combo->setText(u"set'ting"_s); // by program: untouched
        QCOMPARE(combo->text(), u"set'ting"_s);
        page.type(u"digits"_s, u"1a2-'3"_s); // a filter is asked for characters only
        for (const auto key : {Qt::Key_Backspace, Qt::Key_Home, Qt::Key_Delete})
            page.key(u"digits"_s, key);
        QCOMPARE(digits->text(), u"2"_s);
    }

    /// What stands in the field after a person's keys, however it was entered and is left.
    void typedDates() {
        auto* picker = add<DatePicker>(u"date"_s);
        auto* text = picker->findChild<QLineEdit*>();
        auto* other = add<TextBox>(u"other"_s);
        auto* tools = new Toolbar(u"tools"_s, form_.get());
        tools->addButton(u"salva"_s, u"Salva"_s, {});
        form_->addTopBar(tools);
        show();
        const WindowPage page(*form_);
        const QList<std::pair<QString, QDate>> rows{
            {u"14/03/1988"_s, {1988, 3, 14}},  {u"14031988"_s, {1988, 3, 14}},
            {u"3-4-1988"_s, {1988, 4, 3}},     {u"1.12 2001"_s, {2001, 12, 1}},
            {u"29/02/1988"_s, {1988, 2, 29}},  {u"29/2/88"_s, {1988, 2, 29}},
            {u"31/12/29"_s, {2029, 12, 31}},   {u"31/04/1990"_s, {1990, 4, 30}},
            {u"14/03"_s, {2026, 3, 14}},       {u"2"_s, {2026, 11, 2}},
            {u"/3"_s, {2026, 3, 23}},          {u"1\b9/3"_s, {2026, 3, 9}},
            {u"2\b5/10/2100"_s, {2100, 10, 5}}};
        for (const auto& [keys, date] : rows) {
            picker->setValue({2026, 11, 23});
            picker->setFocus(Qt::TabFocusReason);
            QTest::keyClicks(picker, keys);
            other->setFocus();
            QCOMPARE(picker->value(), date);

            picker->setValue({2026, 11, 23});
            QTest::mouseClick(text, Qt::LeftButton, {}, {4, 8});
            QCOMPARE(text->selectedText(), u"23"_s);
            QTest::keyClicks(picker, keys);
            page.press(u"salva"_s); // takes no focus
            QCOMPARE(picker->value(), date);
            QCOMPARE(picker->text(), date.toString(u"dd/MM/yyyy"_s));
            other->setFocus();
        }
        picker->setFocus(Qt::TabFocusReason);
        QTest::keyClick(picker, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(picker, u"31/04/1990"_s);
        other->setFocus();
        picker->setFocus(Qt::TabFocusReason);
        QTest::keyClicks(picker, u"/05"_s); // 30 April has been accepted
        QCOMPARE(picker->value(), QDate(1990, 5, 30));
    }

    void scrollBarReportsOnRelease() {
        auto* bar = add<ScrollBar>(u"bar"_s);
        place(*bar, 0, 0, 240, 5475);
        bar->setRange(1, 20);
        show();
        const QSignalSpy told(bar, &ScrollBar::changed);
        QTest::mousePress(bar, Qt::LeftButton, {}, {7, 25});
        QMouseEvent move(QEvent::MouseMove, {7, 175}, bar->mapToGlobal(QPoint(7, 175)), Qt::NoButton,
                         Qt::LeftButton, {});
        QApplication::sendEvent(bar, &move);
        QCOMPARE(told.count(), 0);
        QTest::mouseRelease(bar, Qt::LeftButton, {}, {7, 175});
        QCOMPARE(told.count(), 1);
        QVERIFY(bar->value() > 1);
    }

    void captionsRunIntoFreeRoomThenNarrow() {
        auto* free = add<Label>(u"free"_s, u"Frequenza allenamento settimanale:"_s);
        auto* shut = add<Label>(u"shut"_s, u"Frequenza allenamento:"_s);
        auto* field = add<TextBox>(u"field"_s);
        place(*free, 120, 0, 900, 255);
        place(*shut, 120, 450, 600, 255);
        const int needed = shut->fontMetrics().horizontalAdvance(shut->text());
        place(*field, 120 + toTwips(needed * 0.92), 450, 900, 285);
        show();
        QVERIFY(free->isWhole() && free->font().stretch() == QFont::Unstretched);
        QVERIFY(shut->isWhole() && shut->geometry().right() < field->x());
        place(*shut, 120, 450, 600, 255);
        shut->setCaption(u"Dal:"_s);
        QCOMPARE(shut->width(), 40); // home again
        QCOMPARE(cutTexts(*form_), QStringList());
        add<Combo>(u"combo"_s)->addItem(u"un valore troppo lungo per una casella così stretta"_s);
        form_->client()->findChild<Combo*>()->show();
        QCOMPARE(cutTexts(*form_).size(), 1); // the check does see what is cut
    }

    /// Ways to leave a field; some ask its check, and act only if it passes.
    void leaving() {
        auto* validation = new Validation(form_.get());
        auto* serie = add<TextBox>(u"serie"_s);
        validation->add(serie, [this, serie] {
            told_ += u" asked"_s;
            return serie->text().toInt() <= 99;
        });
        auto* durata = add<Combo>(u"durata"_s);
        durata->addItems({u"30s"_s, u"45s"_s});
        durata->selectIndex(0);
        validation->add(durata, [durata] { return durata->index() >= 0; });
        const auto acts = [this](const QString& what) { return [this, what] { told_ += u' ' + what; }; };
        onFocus(*durata, acts(u"focus"_s));
        connect(add<Button>(u"row"_s, u"X"_s), &QPushButton::clicked, this, acts(u"row"_s));
        connect(add<Button>(u"access"_s, u"&Info"_s), &QPushButton::clicked, this, acts(u"access"_s));
        auto* bar = add<ScrollBar>(u"bar"_s);
        place(*bar, 2000, 0, 240, 3000);
        bar->setRange(1, 10);
        connect(bar, &ScrollBar::changed, this, acts(u"scroll"_s));
        auto* tools = new Toolbar(u"tools"_s, form_.get());
        tools->addButton(u"salva"_s, u"Salva"_s, {});
        form_->addTopBar(tools);
        connect(tools, &Toolbar::buttonClick, this, acts(u"tool"_s));
        show();
        const WindowPage page(*form_);
        const QStringList rows{
            u"row| asked row"_s, u"durata| asked focus"_s, u"bar| asked scroll"_s, u"Tab| asked focus"_s,
            u"Backtab| asked"_s, u"Alt+I| asked access"_s, u"salva| tool"_s,       u"serie|"_s};
        for (const QString& row : rows)
            for (const auto& value : {u"100"_s, u"99"_s}) {
                page.type(u"serie"_s, value);
                const QString way = row.section(u'|', 0, 0);
                const QString outcome = row.section(u'|', 1);
                told_.clear();
                if (page.window().findChild<QWidget*>(way) != nullptr)
                    page.press(way);
                else
                    QTest::keySequence(&page.widget(u"serie"_s), QKeySequence(way));
                // The click of an access key is animated, and acts at its end.
                QTRY_VERIFY(!page.find<Button>(u"access"_s).isDown());
                const bool refused = value == u"100" && outcome.startsWith(u" asked");
                QCOMPARE(told_, refused ? u" asked"_s : outcome);
                QVERIFY(!refused || page.widget(u"serie"_s).hasFocus());
                // What is refused is marked, so that the next key corrects it.
                QCOMPARE(page.find<TextBox>(u"serie"_s).hasSelectedText(), refused);
            }
        for (const auto& typed : {u"50s"_s, u"45s"_s}) { // a typed item passes, typed nonsense stays
            told_.clear();
            page.type(u"durata"_s, typed);
            page.press(u"row"_s);
            QCOMPARE(told_, typed == u"45s" ? u" row"_s : u" asked focus"_s);
        }
        page.type(u"serie"_s, u"100"_s);
        told_.clear();
        Form other(u"Other"_s);
        other.show();
        QTRY_VERIFY(other.isActiveWindow());
        QCOMPARE(told_, QString()); // another window asks nothing
    }

    void listsSortByTheirHeadersAndKeepTheLine() {
        auto& list = *add<ReportList>(u"LW"_s);
        place(list, 0, 0, 9000, 4500);
        list.addColumn(u"ID"_s, 0);
        for (const auto& title : {u"Cognome"_s, u"Nome"_s, u"Data Nascita"_s})
            list.addColumn(title, 2600);
        show();
        fill(list, athletes);
        QCOMPARE(list.selectedText(), u"10"_s);
        const WindowPage page(*form_);
        page.clickLine(u"LW"_s, 3);
        for (const auto& [column, sorted] :
             {std::pair(1, u"2 10 7 9 "_s), // surnames, ignoring case, equal ones as they were
              {2, u"7 10 9 2 "_s},          // first names, accents in their place
              {3, u"7 9 2 10 "_s},          // dates by time, none first
              {3, u"7 9 2 10 "_s}}) {       // never descending
            page.clickHeader(u"LW"_s, column);
            QCOMPARE(keys(list), sorted);
            page.key(u"LW"_s, Qt::Key_Space, Qt::ControlModifier);
            QCOMPARE(list.selectedText(), u"9"_s); // the line goes along, and Ctrl takes nothing away
        }
        // A new filling keeps the order, and the line by its key; else it selects the first.
        fill(list, athletes + QStringList(u"1|Zeta|Zoe|01/01/2001"_s));
        QCOMPARE(keys(list) + list.selectedText(), u"7 9 2 10 1 9"_s);
        fill(list, {athletes.at(1), athletes.at(2)});
        QCOMPARE(list.selectedText(), u"7"_s);
        const QSignalSpy told(&list, &ReportList::doubleClick);
        page.clickLine(u"LW"_s, 0, 2);
        QTest::mouseDClick(list.viewport(), Qt::LeftButton, {},
                           {50, list.viewport()->height() - 5}); // no line
        QCOMPARE(told.count(), 1);
        fill(list, {});
        QCOMPARE(errorOf([&] { return list.selectedText(); }), int(runtime::ObjectNotSet));
    }

private:
    /// A control of the form, below the one added before.
    template <class Control, class... Arguments> Control* add(const QString& name, const Arguments&... rest) {
        auto* control = new Control(name, rest..., form_->client());
        place(*control, 0, 450 * rows_++, 1500, 315);
        return control;
    }
    void show() {
        form_->show();
        QTRY_VERIFY(form_->isActiveWindow());
    }

    std::unique_ptr<Form> form_;
    int rows_ = 0;
    QString told_;
};

QUIVERDECK_TEST(TestControls)
#include "test_toolkit_controls.moc"
