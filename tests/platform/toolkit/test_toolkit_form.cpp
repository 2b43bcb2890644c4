#include "platform/toolkit/Application.h"
#include "platform/toolkit/DialogOwner.h"
#include "platform/toolkit/ParentForm.h"
#include "support/Suite.h"

#include <QTimer>

using namespace Qt::StringLiterals;
using toolkit::Form;

namespace {

QString journal;

QString taken() {
    return std::exchange(journal, {}).trimmed();
}

/// Writes down its own life.
class Witness : public Form {
public:
    explicit Witness(const QString& name) : Form(name) {}
    Witness(const QString& name, toolkit::ParentForm& shell) : Form(name) { setParentForm(shell); }
    ~Witness() override { note("destroyed"); }

    bool agrees = true;

protected:
    void onLoad() override { note("load"); }
    void onActivate() override { note("activate"); }
    bool onQueryUnload() override {
        note(agrees ? "agree" : "refuse");
        return agrees;
    }
    void onUnload() override { note("unload"); }

private:
    void note(const char* what) { journal += objectName() + u' ' + QLatin1String(what) + u' '; }
};

} // namespace

class TestForm : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void cleanup() {
        Form::destroyAll();
        journal.clear();
    }

    void lifecycleStepByStep() {
        auto* form = new Witness(u"F"_s);
        form->load();
        form->load();
        QCOMPARE(taken(), u"F load"_s);
        QVERIFY(!form->isVisible());
        form->show();
        form->hide(); // stays loaded
        form->show();
        QCOMPARE(taken(), u"F activate F activate"_s);
        form->agrees = false;
        QTest::keyClick(form, Qt::Key_Escape); // does nothing in a window
        form->close();                         // the close box
        QCOMPARE(taken(), u"F refuse"_s);
        QVERIFY(form->isVisible());
        form->agrees = true;
        QVERIFY(form->unload() && form->isGone() && !form->isVisible());
        toolkit::Application::purge();
        QCOMPARE(taken(), u"F agree F unload F destroyed"_s);
    }

    void modalEndsBy() {
        auto* main = new Witness(u"Main"_s);
        main->show();
        for (const bool hides : {true, false}) {
            taken();
            auto* dialog = new Witness(u"Dialog"_s);
            QTimer::singleShot(0, dialog, [dialog, hides] {
                const bool isModal = dialog->isModal() && Form::active() == dialog;
                if (hides)
                    dialog->hide();
                else
                    QTest::keyClick(dialog, Qt::Key_Escape); // the way of the close box
                QVERIFY(isModal);
            });
            dialog->showModal();
            QCOMPARE(Form::active(), main);
            QCOMPARE(taken(), u"Dialog load Dialog activate %1Main activate"_s.arg(
                                  hides ? u""_s : u"Dialog agree Dialog unload "_s));
        }
    }

    void comingBackFromAnotherWindowActivates() {
        auto* one = new Witness(u"One"_s);
        auto* other = new Witness(u"Other"_s);
        one->show();
        other->show();
        QTRY_COMPARE(QApplication::activeWindow(), other);
        taken();
        one->activateWindow();
        QTRY_COMPARE(journal, u"One activate "_s);
        QWidget box(nullptr, Qt::Dialog); // the program's own boxes do not count
        QWidget list(one, Qt::Window);    // nor does a combo's list, which goes with the form
        for (QWidget* window : {&box, &list, static_cast<QWidget*>(one)}) {
            window->show();
            window->activateWindow();
            QTRY_COMPARE(QApplication::activeWindow(), window);
        }
        QCOMPARE(taken(), u"One activate"_s);
        list.activateWindow();
        QTRY_COMPARE(QApplication::activeWindow(), &list);
        QCOMPARE(toolkit::dialogOwner(), one);
        one->unload();
        QVERIFY(toolkit::dialogOwner() != one); // it only waits for its destruction, a box along with it
    }

    void refusingPageKeepsTheWholeShell() {
        auto* shell = new toolkit::ParentForm(u"Shell"_s);
        shell->show();
        auto* first = new Witness(u"A"_s, *shell);
        auto* second = new Witness(u"B"_s, *shell);
        first->show();
        second->show();
        taken();
        second->agrees = false;
        shell->close();
        QCOMPARE(taken(), u"A agree B refuse"_s);
        QCOMPARE(shell->pages(), QList<Form*>({first, second}));
        second->agrees = true;
        QVERIFY(shell->unload());
        QCOMPARE(taken(), u"A agree B agree A unload B unload"_s);
    }
};

QUIVERDECK_TEST(TestForm)
#include "test_toolkit_form.moc"
