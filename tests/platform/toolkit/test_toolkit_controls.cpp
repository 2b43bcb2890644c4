#include "platform/toolkit/Focus.h"
#include "support/Errors.h"
#include "support/Suite.h"
#include "support/Toolkit.h"
#include "support/WindowChecks.h"
#include "support/WindowPage.h"

#include <QAbstractItemView>
#include <QClipboard>
#include <QSignalSpy>
#include <QWheelEvent>

using namespace Qt::StringLiterals;
using namespace toolkit;

namespace {

void leave(const WindowPage& page, const QString& way) {
    if (way.startsWith(u"key ")) {
        QTest::keySequence(&page.widget(u"serie"_s), QKeySequence(way.mid(4)));
    } else if (way == u"wheel") {
        QWidget& bar = page.widget(u"bar"_s);
        QWheelEvent turn({5, 5}, bar.mapToGlobal(QPointF(5, 5)), {}, {0, -120}, {}, {}, {}, false);
        QApplication::sendEvent(&bar, &turn);
    } else if (way == u"tabs") {
        page.clickTab(way, 2);
    } else if (way == u"note") {
        QTest::mouseClick(page.find<TextArea>(way).viewport(), Qt::LeftButton);
    } else {
        page.press(way);
    }
}

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
    QStringList cells;
    for (int line = 0; line < list.count(); ++line)
        cells << list.cell(line, 0);
    return cells.join(u' ');
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
        for (const auto& typed : {u"45S"_s, u"45s"_s}) { // neither completed nor chosen, in whatever case
            page.type(u"combo"_s, typed);
            page.key(u"combo"_s, Qt::Key_Return);
            page.press(u"other"_s);
            QCOMPARE(combo->text(), typed);
        }
        combo->setText(u"30s"_s);
        QCOMPARE(QPoint(int(clicks.count()), combo->count()), QPoint(0, 3));
        page.key(u"combo"_s, Qt::Key_Down);
        QCOMPARE(combo->text(), u"45s"_s);
        combo->setText(u"altro"_s);
        QCOMPARE(combo->index(), -1);
        combo->selectIndex(1); // the item chosen before, under another text
        QCOMPARE(combo->text(), u"45s"_s);
        QCOMPARE(clicks.count(), 2);
        QCOMPARE(errorOf([&] { combo->selectIndex(3); }), int(runtime::InvalidPropertyValue));
        Combo fixed(u"fixed"_s, form_->client(), Combo::Kind::Fixed);
        fixed.addItems({u"Uno"_s, u"Due"_s});
        QCOMPARE(errorOf([&] { fixed.setText(u"due"_s); }), int(runtime::InvalidPropertyValue));
    }

    void comboPopupChoosesByMouse() {
        auto* combo = add<Combo>(u"combo"_s);
        combo->addItems({u"30s"_s, u"45s"_s});
        show();
        const QSignalSpy clicks(combo, &Combo::clicked);
        combo->showPopup();
        QAbstractItemView* list = combo->view();
        QTRY_VERIFY(list->isVisible());
        const auto choose = [&] {
            const QPoint item = list->visualRect(combo->model()->index(1, 0)).center();
            QTest::mouseMove(list->viewport(), item);
            QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, item);
            return combo->text();
        };
        // The popup ignores what comes right after it opened, so that the opening click chooses nothing.
        QTRY_COMPARE(choose(), u"45s"_s);
        QCOMPARE(clicks.count(), 1);
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

    void scrollBarReportsOnRelease() {
        auto* bar = add<ScrollBar>(u"bar"_s);
        place(*bar, 0, 0, 240, 5475);
        bar->setRange(1, 20);
        show();
        const QSignalSpy told(bar, &ScrollBar::changed);
        const QPoint lower(7, 175);
        QTest::mousePress(bar, Qt::LeftButton, {}, QPoint(7, 25));
        QMouseEvent move(QEvent::MouseMove, lower, bar->mapToGlobal(lower), Qt::NoButton, Qt::LeftButton, {});
        QApplication::sendEvent(bar, &move);
        QCOMPARE(told.count(), 0);
        QTest::mouseRelease(bar, Qt::LeftButton, {}, lower);
        QCOMPARE(told.count(), 1);
        QVERIFY(bar->value() > 1);
        bar->setValue(3);
        QTest::mouseClick(bar, Qt::LeftButton, {}, QPoint(7, bar->height() - 4)); // the arrow: one step
        QCOMPARE(QPoint(int(told.count()), bar->value()), QPoint(3, 4));
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
        QVERIFY(free->isWhole());
        QCOMPARE(free->font().stretch(), int(QFont::Unstretched));
        QVERIFY(shut->font().stretch() < 100 && shut->font().stretch() >= Label::narrowestStretch);
        QVERIFY(shut->geometry().right() < field->x());
        place(*shut, 120, 450, 600, 255);
        shut->setCaption(u"Dal:"_s);
        QCOMPARE(shut->width(), 40); // home again
        QCOMPARE(cutTexts(*form_), QStringList());
        add<Combo>(u"combo"_s)->addItem(u"un valore troppo lungo per una casella così stretta"_s);
        form_->client()->findChild<Combo*>()->show();
        QCOMPARE(cutTexts(*form_).size(), 1); // the check does see what is cut
    }

    /// Ways to leave a field that ask its check, and what acts if it passes; ways that ask nothing.
    void leaving() {
        const QStringList asking{u"row|row"_s,       u"durata|focus"_s, u"note|"_s,
                                 u"tabs|tab"_s,      u"bar|scroll"_s,   u"wheel|scroll"_s,
                                 u"key Tab|focus"_s, u"key Backtab|"_s, u"key Alt+I|access"_s};
        for (const QString& way : asking + QStringList{u"salva|tool"_s, u"caption|"_s, u"serie|"_s}) {
            for (const bool good : {false, true}) {
                cleanup();
                init();
                addFields();
                const WindowPage page(*form_);
                page.type(u"serie"_s, good ? u"99"_s : u"100"_s);
                acted_ = way.section(u'|', 0, 0) + u'|';
                leave(page, way.section(u'|', 0, 0));
                // The click of an access key is animated, and acts at its end.
                QTRY_VERIFY(!page.find<Button>(u"access"_s).isDown());
                const bool asks = asking.contains(way);
                QCOMPARE(acted_, good || !asks ? way : way.section(u'|', 0, 0) + u'|');
                QCOMPARE(asked_, asks ? 1 : 0);
                QVERIFY(good || page.widget(u"serie"_s).hasFocus());
                QCOMPARE(page.find<TextBox>(u"serie"_s).hasSelectedText(), asks && !good);
            }
        }
    }

    void anotherWindowAsksNothing() {
        addFields();
        const WindowPage page(*form_);
        for (const auto& typed : {u"50s"_s, u"45s"_s}) { // a typed item passes, typed nonsense stays
            acted_.clear();
            page.type(u"durata"_s, typed);
            page.press(u"row"_s);
            QCOMPARE(acted_, typed == u"45s" ? u"row"_s : u"focus"_s);
        }
        page.type(u"serie"_s, u"100"_s);
        asked_ = 0;
        Form other(u"Other"_s);
        other.show();
        QTRY_VERIFY(other.isActiveWindow());
        QCOMPARE(asked_, 0);
    }

    void headerSorts() {
        ReportList& list = shownList();
        fill(list, athletes);
        const WindowPage page(*form_);
        page.clickLine(u"LW"_s, 3);
        for (const auto& [column, sorted] :
             {std::pair(1, u"2 10 7 9"_s),            // surnames, ignoring case, equal ones as they were
              {2, u"7 10 9 2"_s},                     // first names, accents in their place
              {3, u"7 9 2 10"_s}}) {                  // dates by time, none first
            for (int click = 0; click < 2; ++click) { // never descending
                page.clickHeader(u"LW"_s, column);
                QCOMPARE(keys(list), sorted);
                QTest::keyClick(&list, Qt::Key_Space, Qt::ControlModifier);
                QCOMPARE(list.selectedText(), u"9"_s); // the line goes along, and Ctrl takes nothing away
            }
        }
        fill(list, athletes + QStringList(u"1|Zeta|Zoe|01/01/2001"_s));
        QCOMPARE(keys(list), u"7 9 2 10 1"_s);
    }

    void refillKeepsTheKeyElseTheFirstLine() {
        ReportList& list = shownList();
        fill(list, athletes);
        QCOMPARE(list.selectedText(), u"10"_s);
        list.select(2);
        fill(list, {athletes.at(3), athletes.at(2)});
        QCOMPARE(list.selectedText(), u"7"_s);
        fill(list, {athletes.at(3), athletes.at(0)});
        QCOMPARE(list.selectedText(), u"9"_s);
        const QSignalSpy told(&list, &ReportList::doubleClick);
        WindowPage(*form_).clickLine(u"LW"_s, 0, 2);
        const QPoint noLine(50, list.viewport()->height() - 5);
        QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, noLine);
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

    /// Fields with a check, and what there is to go to from them.
    void addFields() {
        asked_ = 0;
        auto* validation = new Validation(form_.get());
        auto* serie = add<TextBox>(u"serie"_s);
        validation->add(serie, [this, serie] { return ++asked_ > 0 && serie->text().toInt() <= 99; });
        auto* durata = add<Combo>(u"durata"_s);
        durata->addItems({u"30s"_s, u"45s"_s});
        validation->add(durata, [durata] { return durata->index() >= 0; });
        const auto acts = [this](const QString& what) { return [this, what] { acted_ += what; }; };
        onFocus(*durata, acts(u"focus"_s));
        connect(add<Button>(u"row"_s, u"X"_s), &QPushButton::clicked, this, acts(u"row"_s));
        connect(add<Button>(u"access"_s, u"&Info"_s), &QPushButton::clicked, this, acts(u"access"_s));
        add<TextArea>(u"note"_s);
        add<Label>(u"caption"_s, u"Testo"_s);
        auto* tabs = add<TabStrip>(u"tabs"_s);
        tabs->addTab(u"a"_s, u"Uno"_s);
        tabs->addTab(u"b"_s, u"Due"_s);
        connect(tabs, &TabStrip::clicked, this, acts(u"tab"_s));
        auto* bar = add<ScrollBar>(u"bar"_s);
        place(*bar, 2000, 0, 240, 3000);
        bar->setRange(1, 10);
        connect(bar, &ScrollBar::changed, this, acts(u"scroll"_s));
        auto* tools = new Toolbar(u"tools"_s, form_.get());
        tools->addButton(u"salva"_s, u"Salva"_s, {});
        form_->addTopBar(tools);
        connect(tools, &Toolbar::buttonClick, this, acts(u"tool"_s));
        show();
    }

    ReportList& shownList() {
        auto* list = add<ReportList>(u"LW"_s);
        place(*list, 0, 0, 9000, 4500);
        list->addColumn(u"ID"_s, 0);
        for (const auto& title : {u"Cognome"_s, u"Nome"_s, u"Data Nascita"_s})
            list->addColumn(title, 2600);
        show();
        return *list;
    }

    std::unique_ptr<Form> form_;
    int rows_ = 0;
    int asked_ = 0;
    QString acted_;
};

QUIVERDECK_TEST(TestControls)
#include "test_toolkit_controls.moc"
