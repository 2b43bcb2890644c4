#include "platform/runtime/Error.h"
#include "platform/toolkit/FileDialogs.h"
#include "platform/toolkit/Hourglass.h"
#include "platform/toolkit/MessageBoxes.h"
#include "support/Suite.h"
#include "support/ToolkitTest.h"

#include <QAbstractButton>
#include <QMessageBox>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

QMessageBox* openBox() {
    return qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
}

} // namespace

class TestApplication : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void uncaughtErrorIsReportedOnce() {
        const ExpectedFatal fatal;
        QTimer::singleShot(0, this, [] { throw std::runtime_error("standard"); });
        QTRY_COMPARE(fatal.count, 1);
        QTimer::singleShot(0, this, [] { runtime::raise(runtime::FileNotFound); });
        QTRY_COMPARE(fatal.count, 2);
        QCOMPARE(fatal.lastNumber, int(runtime::FileNotFound));
        QVERIFY(!fatal.description.isEmpty());
    }

    void scaleSteps() {
        for (const auto& [available, scale] : {std::pair(QSize(800, 600), 1.0), // smaller than the design
                                               {QSize(1280, 959), 1.0},
                                               {QSize(1280, 960), 1.25},
                                               {QSize(1920, 1040), 1.25}, // full HD with a panel
                                               {QSize(3840, 2160), 2.75}})
            QCOMPARE(toolkit::Application::scaleFor(available), scale);
    }

    void answers() {
        using host::Answer;
        using host::Buttons;
        for (const auto& [buttons, press, answer] :
             std::initializer_list<std::tuple<Buttons, QString, Answer>>{
                 {Buttons::Ok, {}, Answer::Ok},
                 {Buttons::YesNo, u"Sì"_s, Answer::Yes},
                 {Buttons::YesNo, {}, Answer::No},
                 {Buttons::YesNoCancel, u"Annulla"_s, Answer::Cancel},
                 {Buttons::YesNoCancel, u"No"_s, Answer::No},
                 {Buttons::YesNoCancel, {}, Answer::Cancel}}) {
            bool hourglass = true;
            const toolkit::Hourglass working;
            QTimer::singleShot(0, this, [&] {
                hourglass = QGuiApplication::overrideCursor() != nullptr;
                QMessageBox* box = openBox();
                const auto all = box->buttons();
                const auto wanted =
                    std::find_if(all.begin(), all.end(), [&](auto* one) { return one->text() == press; });
                if (wanted == all.end())
                    QTest::keyClick(box, Qt::Key_Escape);
                else
                    (*wanted)->click();
            });
            QCOMPARE(toolkit::MessageBoxes().show(host::Icon::Question, u"Confermi?"_s, buttons), answer);
            QVERIFY(!hourglass && QGuiApplication::overrideCursor() != nullptr); // back behind the box
        }
    }

    void italianEverywhere() {
        QCOMPARE(QLocale().language(), QLocale::Italian);
        QCOMPARE(QCoreApplication::translate("QPlatformTheme", "Cancel"), u"Annulla"_s);
        QCOMPARE(toolkit::FileDialogs::nameFilters(u"File Immagine|*.JPG;*.BMP;*.GIF|Tutti|*"_s),
                 QStringList({u"File Immagine (*.JPG *.BMP *.GIF)"_s, u"Tutti (*)"_s}));
    }
};

QUIVERDECK_TEST(TestApplication)
#include "test_toolkit_application.moc"
