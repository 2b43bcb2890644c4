#pragma once

#include <QJsonObject>
#include <QLocalSocket>
#include <QProcess>
#include <QString>

#include <functional>
#include <stdexcept>

/// What went wrong on the way, in words; the driver prints it and ends with a failure.
class TourError : public std::runtime_error {
public:
    explicit TourError(const QString& text) : std::runtime_error(text.toStdString()) {}
};

/// A traveller at the real program: a real pointer, real keys, and questions to the probe about where things
/// are. Targets are the probe's: NAME, WINDOW/NAME, NAME#row:0, NAME#tab:1, NAME#item:text, NAME#at:x,y,
/// box#button:Sì. Every act waits until its target is seen and enabled (at most thirty seconds), else it
/// raises TourError.
class Tour {
public:
    /// `folder` is the program's folder, `pictures` takes the screenshots.
    Tour(QString folder, QString pictures);
    ~Tour();

    void start();
    /// Waits for the process to end by itself; gives its exit code.
    int waitForEnd();
    /// Ends the process at once, as a power cut would; `start` starts another one.
    void kill();
    /// Starts the program a second time and gives the exit code of that second process.
    int startAgain();

    QJsonObject where(const QString& target);
    QString text(const QString& target);
    bool visible(const QString& target);

    void click(const QString& target);
    void doubleClick(const QString& target);
    /// Presses on `from`, moves in small steps, and lets go on `to`.
    void drag(const QString& from, const QString& to);
    /// The same by pixels, from a target.
    void dragBy(const QString& from, int dx, int dy);
    void type(const QString& text);
    void key(const QString& keys);
    /// Clicks into a field, selects what stands there, and types.
    void fill(const QString& target, const QString& text);

    /// Waits for a message box whose text contains `text`, takes its picture when `picture` is given, presses
    /// `button`.
    void box(const QString& text, const QString& button, const QString& picture = {});
    /// Waits until a window of that object name is the active one.
    void window(const QString& name);
    void until(const QString& what, const std::function<bool()>& condition);
    void shot(const QString& name);
    /// Keeps a picture of one window or page alone, as NAME.png in the folder `finestre` of the pictures.
    void portrait(const QString& name);
    void check(bool holds, const QString& what);

    QString folder() const { return folder_; }
    QString pictures() const { return pictures_; }

private:
    QJsonObject ask(const QString& question);
    QJsonObject see(const QString& target);
    void xdotool(const QStringList& arguments);
    void moveTo(const QJsonObject& place);

    QString folder_;
    QString pictures_;
    QProcess program;
    QLocalSocket probe;
    int shots = 0;
};
