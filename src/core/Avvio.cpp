#include "core/Avvio.h"

#include "artwork/logos/Loghi.h"
#include "cards/RipresaScheda.h"
#include "core/CopieArchivio.h"
#include "core/Main.h"
#include "core/Principale.h"
#include "desktop/Schermo.h"
#include "desktop/TastoAiuto.h"
#include "platform/host/InstalledCopy.h"
#include "platform/host/ProgramDirectory.h"
#include "platform/host/Services.h"
#include "platform/host/SingleInstance.h"
#include "platform/toolkit/Application.h"
#include "platform/toolkit/FileDialogs.h"
#include "platform/toolkit/MessageBoxes.h"
#include "platform/toolkit/QtPrinterDialog.h"

#include <QCursor>
#include <QTimerEvent>
#include <algorithm>
#include <cstdlib>

using namespace Qt::StringLiterals;

namespace {

bool nothingVisible() {
    const QWidgetList windows = QApplication::topLevelWidgets();
    return std::none_of(windows.begin(), windows.end(),
                        [](const QWidget* window) { return window->isVisible(); });
}

/// Ends the event loop once no window is visible: the editor's shell alone, loaded and hidden, keeps nothing
/// alive.
class EndOfProgram : public QObject {
public:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Hide && watched->isWidgetType())
            startTimer(0); // the handler that hides one window may be about to show another
        return QObject::eventFilter(watched, event);
    }

protected:
    void timerEvent(QTimerEvent* event) override {
        killTimer(event->timerId());
        if (nothingVisible())
            QCoreApplication::quit();
    }
};

/// Where the mouse stands, in the same pixels as every geometry.
class ScreenCursor : public host::Cursor {
public:
    QPoint position() override { return QCursor::pos(); }
};

void raiseWindow() {
    if (toolkit::Form* form = toolkit::Form::active()) {
        form->setWindowState(form->windowState() & ~Qt::WindowMinimized);
        form->raise();
        form->activateWindow();
    }
}

/// Puts the user's data folder in the place of an installed program's own; false if it cannot be made.
bool chooseProgramDirectory(bool installed) {
    if (!installed)
        return true;
    const QString folder = host::installed::dataFolder();
    host::setProgramDirectory(folder);
    return host::installed::makeFolder(folder);
}

/// Fills or renews the user's data folder; false, behind a box, if there is nothing to start with.
bool prepareDataFolder() {
    using host::installed::Outcome;
    const auto result =
        host::installed::prepare(QCoreApplication::applicationDirPath(), host::programDirectory());
    switch (result.outcome) {
    case Outcome::Ready:
        break;
    case Outcome::NotRenewed:
        host::message(u"Figure e catalogo sono rimasti quelli della versione precedente: i dati "
                      "non sono cambiati e si può lavorare.\n\n"_s +
                          result.reason,
                      host::Icon::Exclamation);
        break;
    case Outcome::NotFilled:
        host::message(u"La cartella dei dati non può essere preparata.\n\n"_s + result.reason,
                      host::Icon::Critical);
        return false;
    }
    return true;
}

} // namespace

int avvia(int& argc, char** argv) {
    toolkit::Application::prepareScale(argc, argv);
    toolkit::Application application(argc, argv);

    QGuiApplication::setDesktopFileName(u"org.example.Quiverdeck"_s);
    QApplication::setWindowIcon(artwork::iconaProgramma());

    toolkit::MessageBoxes boxes;
    toolkit::FileDialogs fileDialogs;
    toolkit::QtPrinterDialog printerDialog;
    ScreenCursor cursor;
    Schermo schermo;
    host::setBoxes(&boxes);
    host::setFileDialogs(&fileDialogs);
    toolkit::setPrinterDialog(&printerDialog);
    host::setCursor(&cursor);
    host::setDisplay(&schermo);
    const TastoAiuto tastoAiuto;

    const bool installed = host::installed::isInstalled(QCoreApplication::applicationDirPath());
    if (!chooseProgramDirectory(installed)) {
        host::message(u"La cartella dei dati non può essere creata:\n"_s + host::programDirectory(),
                      host::Icon::Critical);
        return EXIT_FAILURE;
    }
    const host::SingleInstance instance(host::programDirectory());
    if (!instance.isFirst()) {
        if (!instance.askToRaise())
            host::message(u"Il programma è già aperto, ma per ora non risponde."_s, host::Icon::Exclamation);
        return EXIT_SUCCESS;
    }
    QObject::connect(&instance, &host::SingleInstance::raiseRequested, &application, raiseWindow);
    // Before anything is written: a catalogue of ours is none for a newer store.
    if (CopieArchivio::troppoRecente())
        return EXIT_FAILURE;
    // Only now: a program that runs already has the store open.
    if (installed && !prepareDataFolder())
        return EXIT_FAILURE;

    CopieArchivio copie;
    Main();
    const bool started = Principale::esiste() && Principale::comune().isVisible();
    if (!started)
        copie.proponi(); // right behind the error's own box
    if (nothingVisible())
        return EXIT_FAILURE;
    EndOfProgram end;
    application.installEventFilter(&end);
    RipresaScheda ripresa;
    toolkit::Application::setEventObserver(
        [&ripresa](bool fatal) { fatal ? ripresa.primaDellaFine() : ripresa.dopoEvento(); });
    if (started) {
        QMetaObject::invokeMethod(
            &application,
            [&ripresa, &copie] {
                copie.copia();
                ripresa.proponi();
            },
            Qt::QueuedConnection);
    }
    const int status = QApplication::exec();
    toolkit::Application::setEventObserver({});
    return started ? status : EXIT_FAILURE;
}
