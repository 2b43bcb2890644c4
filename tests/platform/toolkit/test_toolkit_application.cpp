#include "platform/toolkit/Application.h"
#include "platform/toolkit/FileDialogs.h"
#include "platform/toolkit/Hourglass.h"
#include "platform/toolkit/MessageBoxes.h"
#include "support/Suite.h"
#include "support/ToolkitTest.h"

#include <QTimer>

using namespace Qt::StringLiterals;
using host::Answer;
using host::Buttons;

class TestApplication : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void anyExceptionIsReported() {
        const ExpectedFatal fatal;
        QTimer::singleShot(0, this, [] { throw std::runtime_error("standard"); });
        QTRY_COMPARE(fatal.description, u"standard"_s);
    }

    void scaleSteps() {
        for (const auto& [available, scale] : {std::pair(QSize(800, 600), 1.0), // smaller than the design
                                               {QSize(1280, 959), 1.0},
                                               {QSize(1280, 960), 1.25},
                                               {QSize(3840, 2160), 2.75}})
            QCOMPARE(toolkit::Application::scaleFor(available), scale);
    }

    void boxesDismissedFromTheHourglass() {
        const toolkit::Hourglass working;
        for (const auto& [buttons, answer] : {std::pair(Buttons::Ok, Answer::Ok),
                                              {Buttons::YesNo, Answer::No},
                                              {Buttons::YesNoCancel, Answer::Cancel}}) {
            QTimer::singleShot(0, this, [] {
                const bool ordinary = QGuiApplication::overrideCursor() == nullptr;
                QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Escape);
                QVERIFY(ordinary);
            });
            QCOMPARE(toolkit::MessageBoxes().show(host::Icon::Question, u"Confermi?"_s, buttons), answer);
            QVERIFY(QGuiApplication::overrideCursor() != nullptr); // back behind the box
        }
    }

    void italianEverywhere() {
        QCOMPARE(QLocale().language(), QLocale::Italian);
        QCOMPARE(QCoreApplication::translate("QPlatformTheme", "Cancel"), u"Annulla"_s);
        QCOMPARE(toolkit::FileDialogs::nameFilters(u"File|*.JPG;*.BMP|Tutti|*"_s).join(u' '),
                 u"File (*.JPG *.BMP) Tutti (*)"_s);
    }
};

QUIVERDECK_TEST(TestApplication)
#include "test_toolkit_application.moc"
