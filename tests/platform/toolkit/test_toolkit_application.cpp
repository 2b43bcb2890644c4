#include "platform/host/Application.h"
#include "platform/runtime/Error.h"
#include "platform/toolkit/FileDialogs.h"
#include "platform/toolkit/Form.h"
#include "platform/toolkit/Hourglass.h"
#include "platform/toolkit/MessageBoxes.h"
#include "platform/toolkit/Twips.h"
#include "support/Suite.h"
#include "support/ToolkitTest.h"

#include <QMessageBox>
#include <QProcess>
#include <QPushButton>
#include <QTimer>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

constexpr auto failing = "--fail";

QMessageBox* openBox() {
    return qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
}

/// The program that an uncaught error ends: its form must not be asked anything any more.
int failingProgram(int /*argc*/, char** /*argv*/) {
    struct Asking : toolkit::Form {
        Asking() : Form("Asking") {}
        void onUnload() override { std::puts("unload"); }
        ~Asking() override { std::puts("destroyed"); }
    } form;
    form.show();
    QTimer::singleShot(0, &form, [] { runtime::raise(runtime::TypeMismatch, u"Tipo non valido"_s); });
    QTimer::singleShot(0, [] {
        const QMessageBox* box = openBox();
        std::printf("%s|%s|%d\n", qPrintable(box->windowTitle()), box->text().toUtf8().constData(),
                    int(box->icon()));
        std::fflush(stdout);
        box->findChild<QPushButton*>()->click();
    });
    return QApplication::exec();
}

const suite::Entry failingEntry(failing, &failingProgram);

} // namespace

class TestApplication : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void uncaughtErrorEndsTheProcess() {
        QProcess program;
        program.start(QCoreApplication::applicationFilePath(), {failing});
        QVERIFY(program.waitForFinished(-1));
        QCOMPARE(program.exitStatus(), QProcess::NormalExit);
        QVERIFY(program.exitCode() != 0);
        QCOMPARE(program.readAllStandardOutput(), QByteArray("Quiver-Deck|Errore 13\n\nTipo non valido|3\n"));
    }

    void uncaughtErrorIsReportedOnce() {
        const ExpectedFatal fatal;
        QTimer::singleShot(0, this, [] { throw std::runtime_error("standard"); });
        QTRY_COMPARE(fatal.count, 1);
        QTimer::singleShot(0, this, [] { runtime::raise(runtime::FileNotFound); });
        QTRY_COMPARE(fatal.count, 2);
        QCOMPARE(fatal.lastNumber, int(runtime::FileNotFound));
        QVERIFY(!fatal.description.isEmpty());
    }

    void scaleSteps_data() {
        QTest::addColumn<QSize>("available");
        QTest::addColumn<double>("scale");
        QTest::newRow("smaller than the design") << QSize(800, 600) << 1.0;
        QTest::newRow("just too low for a step") << QSize(1280, 959) << 1.0;
        QTest::newRow("a step") << QSize(1280, 960) << 1.25;
        QTest::newRow("full HD with a panel") << QSize(1920, 1040) << 1.25;
        QTest::newRow("4K") << QSize(3840, 2160) << 2.75;
    }
    void scaleSteps() {
        QFETCH(QSize, available);
        QTEST(toolkit::Application::scaleFor(available), "scale");
    }

    void answers_data() {
        QTest::addColumn<host::Buttons>("buttons");
        QTest::addColumn<QString>("press"); // empty: Escape
        QTest::addColumn<host::Answer>("answer");
        using host::Answer;
        using host::Buttons;
        QTest::newRow("ok") << Buttons::Ok << "OK" << Answer::Ok;
        QTest::newRow("ok escaped") << Buttons::Ok << "" << Answer::Ok;
        QTest::newRow("yes") << Buttons::YesNo << "Sì" << Answer::Yes;
        QTest::newRow("yes or no escaped") << Buttons::YesNo << "" << Answer::No;
        QTest::newRow("cancel") << Buttons::YesNoCancel << "Annulla" << Answer::Cancel;
        QTest::newRow("three escaped") << Buttons::YesNoCancel << "" << Answer::Cancel;
        QTest::newRow("no of three") << Buttons::YesNoCancel << "No" << Answer::No;
    }
    void answers() {
        QFETCH(host::Buttons, buttons);
        QFETCH(QString, press);
        QString title;
        bool hourglass = true;
        const toolkit::Hourglass working;
        QTimer::singleShot(0, this, [&] {
            QMessageBox* box = openBox();
            title = box->windowTitle();
            hourglass = QGuiApplication::overrideCursor() != nullptr;
            if (press.isEmpty()) {
                QTest::keyClick(box, Qt::Key_Escape);
                return;
            }
            for (QAbstractButton* button : box->buttons())
                if (button->text() == press)
                    button->click();
        });
        QTEST(toolkit::MessageBoxes().show(host::Icon::Question, "Confermi?", buttons), "answer");
        QCOMPARE(title, host::title());
        QVERIFY(!hourglass && QGuiApplication::overrideCursor() != nullptr); // back when it has been answered
    }

    void italianEverywhere() {
        QCOMPARE(QLocale().language(), QLocale::Italian);
        QCOMPARE(QCoreApplication::translate("QPlatformTheme", "Cancel"), QString("Annulla"));
        QCOMPARE(toolkit::FileDialogs::nameFilters("File Immagine|*.JPG;*.BMP;*.GIF|Tutti|*"),
                 QStringList({"File Immagine (*.JPG *.BMP *.GIF)", "Tutti (*)"}));
    }

    void twips() {
        QCOMPARE(toolkit::toPixels(3505), 234);
        QCOMPARE(toolkit::toPixels(-15), -1);
        QCOMPARE(toolkit::toPixels(7.5), 1);
    }
};

QUIVERDECK_TEST(TestApplication)
#include "test_toolkit_application.moc"
