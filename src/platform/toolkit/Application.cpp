#include "platform/toolkit/Application.h"

#include "platform/runtime/Error.h"
#include "platform/toolkit/Fonts.h"
#include "platform/toolkit/Form.h"
#include "platform/toolkit/MessageBoxes.h"
#include "platform/toolkit/QuiverStyle.h"
#include "platform/toolkit/Validation.h"

#include <QEvent>
#include <QLibraryInfo>
#include <QLocale>
#include <QMouseEvent>
#include <QScopedValueRollback>
#include <QScreen>
#include <QThread>
#include <algorithm>
#include <cmath>
#include <cstdlib>

using namespace Qt::StringLiterals;

namespace toolkit {

namespace {

constexpr auto scaleVariable = "QT_SCALE_FACTOR";

FatalHandler& fatalHandler() {
    static FatalHandler handler;
    return handler;
}

EventObserver& eventObserver() {
    static EventObserver observer;
    return observer;
}

/// Events that come in numbers and change nothing in a record.
bool changesNothing(const QEvent& event) {
    switch (event.type()) {
    case QEvent::Paint:
    case QEvent::UpdateRequest:
    case QEvent::LayoutRequest:
    case QEvent::Enter:
    case QEvent::Leave:
    case QEvent::HoverEnter:
    case QEvent::HoverLeave:
    case QEvent::HoverMove:
    case QEvent::ToolTip:
        return true;
    case QEvent::MouseMove:
        return static_cast<const QMouseEvent&>(event).buttons() == Qt::NoButton;
    default:
        return false;
    }
}

bool& scaleIsOurs() {
    static bool ours = false;
    return ours;
}

} // namespace

Application::Application(int& argc, char** argv) : QApplication(argc, argv) {
    if (scaleIsOurs())
        qunsetenv(scaleVariable); // ours alone: a program started from here scales by itself
    QLocale::setDefault(QLocale(QLocale::Italian, QLocale::Italy));
    if (italian.load(u"qtbase_it"_s, QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        installTranslator(&italian);
    setAttribute(Qt::AA_DontUseNativeDialogs);
    setAttribute(Qt::AA_DontUseNativeMenuBar);
    setStyle(new QuiverStyle);
    setPalette(QuiverStyle::colours());
    setFont(formFont());
    setQuitOnLastWindowClosed(false);
}

Application::~Application() {
    Form::destroyAll();
}

double Application::scaleFor(const QSize& available) {
    const double fit = std::min(available.width() / 1024.0, available.height() / 768.0);
    return std::max(1.0, std::floor(fit * 4.0) / 4.0);
}

void Application::prepareScale(int& argc, char** argv) {
    for (const char* name : {scaleVariable, "QT_SCREEN_SCALE_FACTORS"})
        if (qEnvironmentVariableIsSet(name))
            return;
    double scale = 1.0;
    {
        const QGuiApplication probe(argc, argv);
        const QScreen* screen = QGuiApplication::primaryScreen();
        if (screen != nullptr && screen->devicePixelRatio() <= 1.0)
            scale = scaleFor(screen->availableSize());
    }
    if (scale > 1.0) {
        qputenv(scaleVariable, QByteArray::number(scale));
        scaleIsOurs() = true;
    }
}

void Application::fatal(int number, const QString& description) {
    if (eventObserver())
        eventObserver()(true);
    if (fatalHandler()) {
        fatalHandler()(number, description);
        return;
    }
    static bool reporting = false;
    if (!reporting) {
        reporting = true;
        try {
            MessageBoxes().show(host::Icon::Critical, u"Errore %1\n\n%2"_s.arg(number).arg(description),
                                host::Buttons::Ok);
        } catch (...) { // nothing is left to tell it to
        }
    }
    std::_Exit(EXIT_FAILURE);
}

void Application::setFatalHandler(FatalHandler handler) {
    fatalHandler() = std::move(handler);
}

void Application::setEventObserver(EventObserver observer) {
    eventObserver() = std::move(observer);
}

void Application::purge() {
    sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

bool Application::notify(QObject* receiver, QEvent* event) {
    // The event that a loop delivered, not one that its handlers sent; each loop inside has its own.
    static int loop = -1;
    const int level = QThread::currentThread()->loopLevel();
    const bool outermost = level > loop;
    const bool observed = outermost && eventObserver() && !changesNothing(*event);
    const QScopedValueRollback<int> delivering(loop, std::max(loop, level));
    try {
        const bool handled = Validation::stops(receiver, event) || QApplication::notify(receiver, event);
        if (observed && eventObserver())
            eventObserver()(false);
        return handled;
    } catch (const runtime::Error& error) {
        fatal(error.number(), error.description());
    } catch (const std::exception& error) {
        fatal(0, QString::fromLocal8Bit(error.what()));
    } catch (...) {
        fatal(0, u"Errore sconosciuto"_s);
    }
    return false;
}

} // namespace toolkit
