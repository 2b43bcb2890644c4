#include "platform/runtime/Error.h"
#include "platform/toolkit/Toolkit.h"
#include "support/Suite.h"
#include "support/ToolkitTest.h"
#include "support/WindowPage.h"

#include <QWheelEvent>

using namespace toolkit;

namespace {

class FieldPage : public Form {
public:
    FieldPage() : Form("FieldPage") {
        setInnerSize(6000, 4500);
        place(*serie, 150, 150, 1500, 285);
        place(*note, 150, 600, 3000, 900);
        place(*durata, 150, 1650, 1500, 315);
        place(*row, 150, 2100, 900, 285);
        place(*tabs, 1500, 2100, 2400, 315);
        place(*bar, 5000, 150, 240, 3000);
        place(*caption, 150, 2700, 900, 255);
        place(*access, 150, 3000, 900, 285);
        durata->addItems({"30s", "45s"});
        tabs->addTab("a", "Uno");
        tabs->addTab("b", "Due");
        bar->setRange(1, 10);
        tools->addButton("salva", "Salva", {});
        addTopBar(tools);
        auto* validation = new Validation(this);
        validation->add(serie, [this] {
            ++asked;
            if (throwing)
                runtime::raise(runtime::TypeMismatch);
            return serie->text().toInt() <= 99;
        });
        validation->add(durata, [this] {
            ++asked;
            return durata->index() >= 0;
        });
        connect(row, &QPushButton::clicked, this, [this] { acted += "row "; });
        connect(access, &QPushButton::clicked, this, [this] { acted += "access "; });
        connect(tabs, &TabStrip::clicked, this, [this] { acted += "tab "; });
        connect(bar, &ScrollBar::changed, this, [this] { acted += "scroll "; });
        connect(tools, &Toolbar::buttonClick, this, [this] { acted += "tool "; });
        connect(durata, &Combo::gotFocus, this, [this] { acted += "focus "; });
    }

    TextBox* serie = new TextBox("serie", client());
    TextArea* note = new TextArea("note", client());
    Combo* durata = new Combo("durata", client());
    Button* row = new Button("row", "X", client());
    TabStrip* tabs = new TabStrip("tabs", client());
    ScrollBar* bar = new ScrollBar("bar", client());
    Label* caption = new Label("caption", "Testo", client());
    Button* access = new Button("access", "&Info", client());
    Toolbar* tools = new Toolbar("tools", this);
    int asked = 0;
    bool throwing = false;
    QString acted;
};

class ShownPage : public FieldPage {
public:
    ShownPage() {
        show();
        QTRY_VERIFY(isActiveWindow());
    }
};

void wheel(QWidget& widget) {
    QWheelEvent event(QPointF(5, 5), widget.mapToGlobal(QPointF(5, 5)), {}, QPoint(0, -120), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&widget, &event);
}

} // namespace

class TestValidation : public QObject {
    Q_OBJECT
private Q_SLOTS:
    /// One row for each way to leave a field: what is done, whether it asks the check, what acts if it
    /// passes.
    void leaving_data() {
        QTest::addColumn<QString>("way");
        QTest::addColumn<bool>("asks");
        QTest::addColumn<QString>("acts");
        QTest::newRow("button") << "row" << true << "row ";
        QTest::newRow("combo box") << "durata" << true << "focus ";
        QTest::newRow("text area") << "note" << true << "";
        QTest::newRow("tab strip") << "tabs" << true << "tab ";
        QTest::newRow("scroll bar") << "bar" << true << "scroll ";
        QTest::newRow("wheel on the scroll bar") << "wheel" << true << "scroll ";
        QTest::newRow("Tab") << "Tab" << true << "";
        QTest::newRow("Backtab") << "Backtab" << true << "";
        QTest::newRow("access key") << "Alt+I" << true << "access ";
        QTest::newRow("toolbar button") << "salva" << false << "tool ";
        QTest::newRow("caption") << "caption" << false << "";
        QTest::newRow("the field itself") << "serie" << false << "";
    }
    void leaving() {
        QFETCH(QString, way);
        QFETCH(bool, asks);
        QFETCH(QString, acts);
        for (const bool good : {false, true}) {
            ShownPage form;
            const WindowPage page(form);
            page.type("serie", good ? "99" : "100");
            form.asked = 0;
            if (way == "Tab")
                page.key("serie", Qt::Key_Tab);
            else if (way == "Backtab")
                page.key("serie", Qt::Key_Backtab);
            else if (way == "Alt+I")
                page.key("serie", Qt::Key_I, Qt::AltModifier);
            else if (way == "wheel")
                wheel(*form.bar);
            else if (way == "tabs")
                page.clickTab("tabs", 2);
            else if (way == "bar")
                QTest::mouseClick(form.bar, Qt::LeftButton, {}, QPoint(7, form.bar->height() - 30));
            else if (way == "note")
                QTest::mouseClick(form.note->viewport(), Qt::LeftButton);
            else
                page.press(way);
            QCOMPARE(form.asked, asks ? 1 : 0);
            // The click of an access key is animated, and acts at its end.
            QTRY_VERIFY(!form.access->isDown());
            QCOMPARE(form.acted, good || !asks ? acts : QString());
            if (!good) {
                QVERIFY(form.serie->hasFocus());
                QCOMPARE(form.tabs->selectedIndex(), 1);
                QCOMPARE(form.bar->value(), 1);
            }
        }
    }

    void typedItemPassesTypedNonsenseStays() {
        ShownPage form;
        const WindowPage page(form);
        page.type("durata", "50s");
        page.press("row");
        QVERIFY(form.durata->hasFocus());
        QCOMPARE(form.acted, QString("focus "));
        page.type("durata", "45s");
        page.press("row");
        QCOMPARE(form.acted, QString("focus row "));
    }

    void anotherWindowAsksNothing() {
        FieldPage form;
        FieldPage other;
        form.show();
        other.show();
        form.activateWindow();
        QTRY_VERIFY(form.isActiveWindow());
        WindowPage(form).type("serie", "100");
        WindowPage(other).press("row");
        QCOMPARE(form.asked, 0);
        QCOMPARE(other.acted, QString("row "));
    }

    void aFailingCheckIsAFatalError() {
        ShownPage form;
        const ExpectedFatal fatal;
        WindowPage(form).type("serie", "1");
        form.throwing = true;
        WindowPage(form).press("row");
        QCOMPARE(fatal.count, 1);
        QCOMPARE(fatal.lastNumber, int(runtime::TypeMismatch));
    }
};

QUIVERDECK_TEST(TestValidation)
#include "test_toolkit_validation.moc"
