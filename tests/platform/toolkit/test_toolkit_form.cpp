#include "platform/toolkit/Button.h"
#include "platform/toolkit/ChildFrame.h"
#include "platform/toolkit/DialogOwner.h"
#include "platform/toolkit/ParentForm.h"
#include "platform/toolkit/Shared.h"
#include "platform/toolkit/StatusBar.h"
#include "platform/toolkit/Toolbar.h"
#include "support/Errors.h"
#include "support/Suite.h"
#include "support/ToolkitTest.h"
#include "support/WindowPage.h"

#include <QMdiArea>
#include <QTimer>

using namespace Qt::StringLiterals;

using toolkit::Form;

namespace {

QStringList& journal() {
    static QStringList lines;
    return lines;
}

/// Writes down its own life.
class Witness : public Form {
public:
    explicit Witness(const QString& name) : Form(name) {}
    ~Witness() override { journal() << objectName() + " destroyed"; }

    bool agrees = true;
    bool leavesWhileLoading = false;

protected:
    void onLoad() override {
        note("load");
        if (leavesWhileLoading)
            unload();
    }
    void onActivate() override { note("activate"); }
    bool onQueryUnload() override {
        note(agrees ? "agree" : "refuse");
        return agrees;
    }
    void onUnload() override { note("unload"); }

private:
    void note(const char* what) { journal() << objectName() + ' ' + QLatin1String(what); }
};

class Dialog : public Witness, public toolkit::Shared<Dialog> {
public:
    Dialog() : Witness("Dialog"), leave(new toolkit::Button("leave", "Chiudi", client())) {
        setInnerSize(3000, 1500);
        QObject::connect(leave, &QPushButton::clicked, this, [this] { unload(); });
    }
    toolkit::Button* leave;
    QString typed = "design";
};

class Page : public Witness {
public:
    Page(const QString& name, toolkit::ParentForm& shell) : Witness(name) {
        setParentForm(shell);
        setOuterSize(6300, 3505);
    }
};

QStringList taken() {
    return std::exchange(journal(), {});
}

} // namespace

class TestForm : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void cleanup() {
        Form::destroyAll();
        journal().clear();
    }

    void lifecycleStepByStep() {
        auto* form = new Witness("F");
        QVERIFY(form->unload()); // never loaded: nothing happens
        QVERIFY(!form->isGone());
        QCOMPARE(taken(), QStringList());
        form->load();
        form->load();
        QCOMPARE(taken(), QStringList("F load"));
        QVERIFY(!form->isVisible());
        form->show();
        form->hide(); // stays loaded
        form->show();
        QCOMPARE(taken(), QStringList({"F activate", "F activate"}));
        form->agrees = false;
        QTest::keyClick(form, Qt::Key_Escape); // does nothing in a window
        form->close();                         // the close box
        QCOMPARE(taken(), QStringList("F refuse"));
        QVERIFY(form->isVisible());
        form->agrees = true;
        QVERIFY(form->unload());
        QVERIFY(form->isGone() && !form->isVisible());
        QCOMPARE(taken(), QStringList({"F agree", "F unload"}));
        toolkit::Application::purge();
        QCOMPARE(taken(), QStringList("F destroyed"));
    }

    void aFormMayUnloadItselfWhileLoading() {
        auto* form = new Witness("F");
        form->leavesWhileLoading = true;
        form->showModal(); // returns at once
        QVERIFY(form->isGone());
    }

    void anErrorWhileLoadingLeavesTheDesignState() {
        struct Failing : Form {
            Failing() : Form("F") {}
            void onLoad() override { runtime::raise(runtime::FileNotFound); }
        } form;
        QCOMPARE(errorOf([&] { form.showModal(); }), int(runtime::FileNotFound));
        QVERIFY(!form.isLoaded() && !form.isVisible());
    }

    void sharedInstanceStartsAfreshAfterUnload() {
        QVERIFY(!Dialog::esiste());
        Dialog::comune().typed = "changed";
        QVERIFY(Dialog::esiste());
        Dialog::comune().load();
        QCOMPARE(Dialog::comune().typed, QString("changed"));
        Dialog::comune().unload();
        QVERIFY(!Dialog::esiste()); // before it is destroyed
        QCOMPARE(Dialog::comune().typed, QString("design"));
        toolkit::Application::purge();
        QVERIFY(Dialog::esiste());
    }

    void modalEndsBy_data() {
        QTest::addColumn<QString>("way");
        QTest::addColumn<bool>("gone");
        for (const char* way : {"button", "escape", "close box"})
            QTest::newRow(way) << QString(way) << true;
        QTest::newRow("hide") << QString("hide") << false;
    }
    void modalEndsBy() {
        QFETCH(QString, way);
        QFETCH(bool, gone);
        auto* main = new Witness("Main");
        main->show();
        Dialog* dialog = &Dialog::comune();
        bool wasModal = false;
        QTimer::singleShot(0, dialog, [&] {
            wasModal = dialog->isModal() && Form::active() == dialog;
            if (way == "button")
                WindowPage(*dialog).press("leave");
            else if (way == "escape")
                QTest::keyClick(dialog, Qt::Key_Escape);
            else if (way == "close box")
                dialog->close();
            else
                dialog->hide();
        });
        dialog->showModal();
        QVERIFY(wasModal);
        QCOMPARE(dialog->isGone(), gone);
        QCOMPARE(Form::active(), main);
        QStringList expected{"Main load", "Main activate", "Dialog load", "Dialog activate"};
        if (gone) {
            expected << "Dialog agree"
                     << "Dialog unload";
        }
        QCOMPARE(taken(), expected << "Main activate");
    }

    void anUnloadedWindowOwnsNoBox() {
        auto* form = new Witness("F");
        form->show();
        QVERIFY(QTest::qWaitForWindowActive(form));
        QCOMPARE(toolkit::dialogOwner(), form);
        {
            QWidget list(form, Qt::Window); // as a combo's list, which goes with the form
            list.show();
            QVERIFY(QTest::qWaitForWindowActive(&list));
            QCOMPARE(toolkit::dialogOwner(), form);
        }
        form->unload();
        QCOMPARE(toolkit::dialogOwner(), nullptr); // it only waits for its destruction, a box along with it
    }

    void anErrorInAModalHandlerReachesTheOnePlace() {
        const ExpectedFatal fatal;
        Dialog* dialog = &Dialog::comune();
        connect(dialog->leave, &QPushButton::clicked, dialog,
                [] { runtime::raise(runtime::Overflow, u"troppo"_s); });
        QTimer::singleShot(0, dialog, [dialog] { WindowPage(*dialog).press("leave"); });
        dialog->showModal();
        QCOMPARE(fatal.count, 1);
        QCOMPARE(fatal.lastNumber, int(runtime::Overflow));
        QCOMPARE(fatal.description, QString("troppo"));
    }

    void comingBackFromAnotherWindowActivates() {
        auto* one = new Witness("One");
        auto* other = new Witness("Other");
        one->show();
        other->show();
        QTRY_COMPARE(QApplication::activeWindow(), other);
        taken();
        one->activateWindow();
        QTRY_COMPARE(journal(), QStringList("One activate"));
        taken();
        QWidget box(nullptr, Qt::Dialog); // the program's own boxes do not count
        box.show();
        box.activateWindow();
        QTRY_COMPARE(QApplication::activeWindow(), &box);
        one->activateWindow();
        QTRY_COMPARE(QApplication::activeWindow(), one);
        QCOMPARE(taken(), QStringList());
    }

    void barsLeaveTheInnerSize() {
        auto* form = new Witness("F");
        form->setInnerSize(6000, 3000);
        auto* tools = new toolkit::Toolbar("T", form);
        tools->addButton("a", "Salva", "");
        form->addTopBar(tools);
        form->addBottomBar(new toolkit::StatusBar("S", form));
        form->show();
        QCOMPARE(form->innerWidth(), 6000.0);
        QCOMPARE(form->innerHeight(), 3000.0);
        QCOMPARE(form->client()->y(), tools->height());
        QCOMPARE(form->height(), 200 + tools->height() + toolkit::StatusBar::barHeight);
    }

    void childPagesTakeOuterSizes() {
        toolkit::ParentForm shell("Shell");
        shell.setInnerSize(15000, 10000);
        shell.show();
        auto* page = new Page("P", shell);
        page->setLeft(300);
        page->setTop(150);
        page->show();
        QCOMPARE(page->outerWidth(), 6300.0);
        QCOMPARE(page->innerWidth(), 6300.0 - 4 * 15);
        QCOMPARE(page->innerHeight(), (234 - 24) * 15.0);
        QCOMPARE(page->size(), QSize(416, 210)); // as laid out, too
        QCOMPARE(page->left(), 300.0);
        QCOMPARE(page->top(), 150.0);
        page->hide();
        QVERIFY(!page->isVisible() && page->isLoaded());
    }

    void refusingPageKeepsTheWholeShell() {
        auto* shell = new toolkit::ParentForm("Shell");
        shell->show();
        auto* first = new Page("A", *shell);
        auto* second = new Page("B", *shell);
        auto* never = new Page("C", *shell);
        first->show();
        second->show();
        taken();
        second->agrees = false;
        shell->close();
        QCOMPARE(taken(), QStringList({"A agree", "B refuse"}));
        QCOMPARE(shell->pages(), QList<Form*>({first, second}));
        second->agrees = true;
        QVERIFY(shell->unload());
        QCOMPARE(taken(), QStringList({"A agree", "B agree", "A unload", "B unload"}));
        QVERIFY(!never->isGone());
    }

    void closeBoxOfAPageAsks() {
        toolkit::ParentForm shell("Shell");
        shell.show();
        auto* page = new Page("P", shell);
        page->show();
        page->agrees = false;
        auto* frame = shell.area()->subWindowList().constFirst();
        frame->close();
        QVERIFY(page->isVisible());
        page->agrees = true;
        taken();
        frame->close();
        QVERIFY(page->isGone());
        toolkit::Application::purge();
        QCOMPARE(taken(), QStringList({"P agree", "P unload", "P destroyed"}));
        QVERIFY(shell.area()->subWindowList().isEmpty());
    }
};

QUIVERDECK_TEST(TestForm)
#include "test_toolkit_form.moc"
