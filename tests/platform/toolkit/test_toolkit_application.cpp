#include "platform/host/Application.h"
#include "platform/runtime/Error.h"
#include "platform/toolkit/FileDialogs.h"
#include "platform/toolkit/Form.h"
#include "platform/toolkit/Hourglass.h"
#include "platform/toolkit/MessageBoxes.h"
#include "platform/toolkit/Twips.h"
#include "support/ToolkitTest.h"

#include <QMessageBox>
#include <QProcess>
#include <QPushButton>
#include <QTimer>
#include <cstdio>

namespace {

constexpr auto failing = "--fail";

QMessageBox* openBox() {
    return qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
}

/// The program that an uncaught error ends: its form must not be asked anything any more.
int failingProgram() {
    struct Asking : toolkit::Form {
        Asking() : Form("Asking") {}
        void onUnload() override { std::puts("unload"); }
        ~Asking() override { std::puts("destroyed"); }
    } form;
    form.show();
    QTimer::singleShot(0, &form,
                       [] { runtime::raise(runtime::TypeMismatch, QStringLiteral("Tipo non valido")); });
    QTimer::singleShot(0, [] {
        const QMessageBox* box = openBox();
        std::printf("%s|%s|%d\n", qPrintable(box->windowTitle()), box->text().toUtf8().constData(),
                    int(box->icon()));
        std::fflush(stdout);
        box->findChild<QPushButton*>()->click();
    });
    return QApplication::exec();
}

} // namespace

class TestApplication : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void uncaughtErrorEndsTheProcess() {
        QProcess program;
        program.start(QCoreApplication::applicationFilePath(), {failing});
        QVERIFY(program.waitForFinished());
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
        QTest::newRow("the design's own") << QSize(1024, 768) << 1.0;
        QTest::newRow("smaller") << QSize(800, 600) << 1.0;
        QTest::newRow("just too low for a step") << QSize(1280, 959) << 1.0;
        QTest::newRow("a step") << QSize(1280, 960) << 1.25;
        QTest::newRow("full HD") << QSize(1920, 1080) << 1.25;
        QTest::newRow("full HD with a panel") << QSize(1920, 1040) << 1.25;
        QTest::newRow("4K") << QSize(3840, 2160) << 2.75;
    }
    void scaleSteps() {
        QFETCH(QSize, available);
        QFETCH(double, scale);
        QCOMPARE(toolkit::Application::scaleFor(available), scale);
    }

    void answers_data() {
        QTest::addColumn<int>("buttons");
        QTest::addColumn<QString>("press");
        QTest::addColumn<int>("answer");
        using host::Answer;
        using host::Buttons;
        const auto row = [](const char* name, Buttons buttons, const char* press, Answer answer) {
            QTest::newRow(name) << int(buttons) << QString(press) << int(answer);
        };
        row("ok", Buttons::Ok, "OK", Answer::Ok);
        row("ok escaped", Buttons::Ok, "", Answer::Ok);
        row("yes", Buttons::YesNo, "Sì", Answer::Yes);
        row("no", Buttons::YesNo, "No", Answer::No);
        row("yes or no escaped", Buttons::YesNo, "", Answer::No);
        row("cancel", Buttons::YesNoCancel, "Annulla", Answer::Cancel);
        row("three escaped", Buttons::YesNoCancel, "", Answer::Cancel);
        row("no of three", Buttons::YesNoCancel, "No", Answer::No);
    }
    void answers() {
        QFETCH(int, buttons);
        QFETCH(QString, press);
        QFETCH(int, answer);
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
            for (QAbstractButton* button : box->buttons()) {
                if (button->text() == press) {
                    button->click();
                }
            }
        });
        const auto given =
            toolkit::MessageBoxes().show(host::Icon::Question, "Confermi?", host::Buttons(buttons));
        QCOMPARE(int(given), answer);
        QCOMPARE(title, host::title());
        QVERIFY(!hourglass && QGuiApplication::overrideCursor() != nullptr); // back when it has been answered
    }

    void italianEverywhere() {
        QCOMPARE(QLocale().language(), QLocale::Italian);
        QCOMPARE(QCoreApplication::translate("QPlatformTheme", "Cancel"), QString("Annulla"));
    }

    void fileFilters() {
        QCOMPARE(toolkit::FileDialogs::nameFilters("File Immagine|*.JPG;*.BMP;*.GIF|Tutti|*"),
                 QStringList({"File Immagine (*.JPG *.BMP *.GIF)", "Tutti (*)"}));
    }

    void twips_data() {
        QTest::addColumn<double>("twips");
        QTest::addColumn<int>("pixels");
        QTest::newRow("page height") << 3505.0 << 234;
        QTest::newRow("a pixel to the left") << -15.0 << -1;
        QTest::newRow("half") << 7.5 << 1;
    }
    void twips() {
        QFETCH(double, twips);
        QFETCH(int, pixels);
        QCOMPARE(toolkit::toPixels(twips), pixels);
    }
};

int main(int argc, char** argv) {
    toolkit::Application application(argc, argv);
    if (argc > 1 && QLatin1String(argv[1]) == QLatin1String(failing)) {
        return failingProgram();
    }
    TestApplication test;
    QTEST_SET_MAIN_SOURCE_PATH
    return QTest::qExec(&test, argc, argv);
}
#include "test_toolkit_application.moc"
