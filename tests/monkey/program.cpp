#include "core/Avvio.h"
#include "monkey/Monkey.h"
#include "platform/host/ProgramDirectory.h"
#include "platform/host/Settings.h"
#include "platform/runtime/Dates.h"

#include <QApplication>
#include <QDesktopServices>

#include <cstdlib>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

monkey::Orders orders;
std::unique_ptr<monkey::Monkey> inside;

void heard(QtMsgType type, const QMessageLogContext& /*context*/, const QString& text) {
    if (type != QtDebugMsg && type != QtInfoMsg && inside != nullptr)
        inside->heard(text);
    std::fprintf(stderr, "%s\n", qPrintable(text));
}

void enter() {
    inside = std::make_unique<monkey::Monkey>(orders);
    qInstallMessageHandler(heard);
    QApplication::setKeyboardInputInterval(1000000); // what is sought by keys depends on no time
    QApplication::setCursorFlashTime(0);
    for (const char* scheme : {"http", "https", "mailto"})
        QDesktopServices::setUrlHandler(QLatin1String(scheme), inside.get(), "follow");
}

} // namespace
Q_COREAPP_STARTUP_FUNCTION(enter)

/// monkey_program FOLDER SETTINGS JOURNAL SEED FIRST LAST: the program in a folder, with the monkey inside.
int main(int argc, char** argv) {
    if (argc != 7)
        return EXIT_FAILURE;
    const auto argument = [argv](int n) { return QString::fromLocal8Bit(argv[n]); };
    orders = {argument(1), argument(3), argument(4).toUInt(), argument(5).toInt(), argument(6).toInt()};
    host::setProgramDirectory(orders.folder);
    host::setSettingsFolder(argument(2));
    runtime::setClock([] { return QDateTime(QDate(2026, 3, 2), QTime(10, 0), Qt::UTC); });
    int none = 1;
    const int status = avvia(none, argv);
    inside->tell(u"end"_s, QString::number(status));
    qInstallMessageHandler(nullptr);
    inside.reset();
    return status;
}
