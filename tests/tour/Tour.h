#pragma once

#include "hand/RunningProgram.h"

/// A traveller at the real program: a real pointer, real keys, and questions to the hand about where things
/// are. Every act waits until its target is seen and can be used.
class Tour : public RunningProgram {
public:
    /// `folder` is the program's folder, `pictures` takes the screenshots.
    Tour(const QString& folder, QString pictures);

    const QString pictures;

    /// Where a target is, once it is there and does not move any more.
    QJsonObject where(const QString& target);
    void click(const QString& target);
    /// Presses on `from`, moves in small steps, and lets go on `to`, or so many pixels away.
    void drag(const QString& from, const QString& to);
    void drag(const QString& from, int dx, int dy);
    /// Clicks into a field, selects what stands there, and types.
    void fill(const QString& target, const QString& text);

    /// Waits until a target's text contains `text`.
    void reads(const QString& target, const QString& text);
    /// Waits until the window of that object name is the active one.
    void window(const QString& name);
    /// Clicks, waits for the window that comes, and takes its picture.
    void go(const QString& target, const QString& name, const QString& picture = {});
    /// The same by a menu, with a picture of that too.
    void menu(const QString& title, const QString& item, const QString& name, const QString& picture);
    /// Presses keys and waits for a window.
    void key(const QString& keys, const QString& name);
    /// Waits for a message box of that text and presses `button`.
    void box(const QString& text, const QString& button, const QString& picture = {});
    /// Prints from a window into a PDF beside the pictures; gives its path.
    QString print(const QString& name, const QString& file, const QString& picture = {});

    /// Keeps a picture of the screen, if it has a name, and of windows and pages alone as finestre/NAME.png.
    void shot(const QString& name, const QStringList& portraits = {});
    void check(bool holds, const QString& what);
    /// Runs another program, which must succeed.
    void run(const QString& program, const QStringList& arguments);

protected:
    [[noreturn]] void fail(const QString& what) override;

private:
    int shots_ = 0;
};
