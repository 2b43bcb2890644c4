#include "Desk.h"

#include <QCoreApplication>
#include <QFile>

#include <cstdio>
#include <cstdlib>
#include <stdexcept>

using namespace Qt::StringLiterals;

namespace bench {

namespace {

/// A window without a screen cannot come to the front, and says so each time.
void leaveOut(QtMsgType /*type*/, const QMessageLogContext& /*context*/, const QString& text) {
    if (!text.startsWith(QLatin1String("This plugin does not support")))
        std::fprintf(stderr, "%s\n", qPrintable(text));
}

} // namespace

void useVirtualScreen(const QString& folder) {
    const QString description = folder + u"/screen.json"_s;
    QFile file(description);
    if (!file.open(QIODevice::WriteOnly) ||
        file.write(
            R"({"screens": [{"name": "bench", "x": 0, "y": 0, "width": 1024, "height": 768, "logicalDpi": 96, )"
            R"("logicalBaseDpi": 96, "dpr": 1}]})") < 0)
        throw std::runtime_error("no virtual screen");
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + QFile::encodeName(description));
    qputenv("QT_SCALE_FACTOR", "1");
}

Desk::Desk() : application_(argc_, argv_) {
    host::setBoxes(&boxes_);
    qInstallMessageHandler(leaveOut);
    toolkit::Application::setFatalHandler([](int number, const QString& text) {
        std::fprintf(stderr, "error %d: %s\n", number, qPrintable(text));
        std::_Exit(EXIT_FAILURE);
    });
}

Desk::~Desk() {
    host::setBoxes(nullptr);
}

void Desk::settle() {
    QCoreApplication::processEvents();
    toolkit::Application::purge();
}

host::Answer Desk::Dismiss::show(host::Icon /*icon*/, const QString& /*text*/, host::Buttons buttons) {
    return buttons == host::Buttons::Ok ? host::Answer::Ok : host::Answer::No;
}

} // namespace bench
