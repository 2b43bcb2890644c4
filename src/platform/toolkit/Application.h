#pragma once

#include <QApplication>
#include <QTranslator>
#include <functional>

namespace toolkit {

/// Called in place of the report box and the end of the process.
using FatalHandler = std::function<void(int number, const QString& description)>;

/// Called behind each event that the event loop has delivered and that may have changed something, whatever
/// events it sent in turn; events of a box's or a dialog's own loop count too. `fatal` tells of a report that
/// is about to be shown.
using EventObserver = std::function<void(bool fatal)>;

/// The application: Italian texts, the one style, and the one place where an uncaught exception ends.
class Application : public QApplication {
    Q_OBJECT
public:
    Application(int& argc, char** argv);
    ~Application() override;

    /// Sets the scale for big screens. Call once, before the Application is made: the largest quarter step at
    /// which 1024 x 768 still fits the available screen; none where the desktop scales by itself.
    static void prepareScale(int& argc, char** argv);

    /// The scale for an available screen of this size; never below 1.
    static double scaleFor(const QSize& available);

    /// Ends the program: one report box (number and description), then the process ends with status 1, and no
    /// close handler runs. An error while the box is open ends the process at once.
    static void fatal(int number, const QString& description);

    /// Replaces report and end; an empty handler brings them back.
    static void setFatalHandler(FatalHandler handler);

    /// Installs the one observer of events; an empty one takes it away.
    static void setEventObserver(EventObserver observer);

    /// Destroys the unloaded forms that wait for the event loop.
    static void purge();

    bool notify(QObject* receiver, QEvent* event) override;

private:
    QTranslator italian;
};

} // namespace toolkit
