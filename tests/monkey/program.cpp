#include "core/Avvio.h"
#include "monkey/Monkey.h"
#include "platform/host/ProgramDirectory.h"
#include "platform/host/Settings.h"
#include "platform/runtime/Dates.h"

#include <QApplication>
#include <QPointer>

#include <csignal>
#include <cstdlib>

namespace {

monkey::Orders orders;
QPointer<monkey::Monkey> inside;

void heard(QtMsgType type, const QMessageLogContext& /*context*/, const QString& text) {
    if (type != QtDebugMsg && type != QtInfoMsg && inside != nullptr)
        inside->heard(text);
}

void enter() {
    inside = new monkey::Monkey(orders);
    inside->setParent(QCoreApplication::instance());
    qInstallMessageHandler(heard);
    QApplication::setKeyboardInputInterval(1000000); // what is sought by keys depends on no time
    QApplication::setCursorFlashTime(0);
}

} // namespace
Q_COREAPP_STARTUP_FUNCTION(enter)

/// monkey_program FOLDER SETTINGS SEED FIRST LAST: the program in a folder, with the monkey inside.
int main(int /*argc*/, char** argv) {
    std::signal(SIGALRM, [](int) { std::abort(); }); // its stack comes along
    const auto argument = [argv](int n) { return QString::fromLocal8Bit(argv[n]); };
    orders = {argument(1), argument(3).toUInt(), argument(4).toInt(), argument(5).toInt()};
    host::setProgramDirectory(orders.folder);
    host::setSettingsFolder(argument(2));
    runtime::setClock([] { return QDateTime(QDate(2026, 3, 2), QTime(10, 0), Qt::UTC); });
    int none = 1;
    const int status = avvia(none, argv);
    monkey::tell("end", {});
    return status;
}
