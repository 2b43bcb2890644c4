#pragma once

#include "platform/toolkit/FormBars.h"

#include <QPointer>
#include <QString>
#include <QWidget>

class QMdiArea;

namespace toolkit {

class ChildFrame;

/// The window below a form: its size and place in twips, its bars, and what it asks of the window manager or
/// of the frame of a child page. Of the form's lifecycle it knows nothing.
class FormWindow : public QWidget {
    Q_OBJECT
public:
    enum class Pointer { Default, Hourglass };

    FormWindow();
    ~FormWindow() override;

    QString caption() const { return windowTitle(); }
    void setCaption(const QString& caption) { setWindowTitle(caption); }

    /// The parent of the form's controls: the area below menu and toolbar and above the status bar.
    QWidget* client() const { return client_; }

    // --- geometry in twips; outer sizes include frame, title, bars; inner ones are those of client() ---
    double left() const;
    double top() const;
    double outerWidth() const;
    double outerHeight() const;
    double innerWidth() const;
    double innerHeight() const;
    void setLeft(double twips);
    void setTop(double twips);
    void setOuterSize(double width, double height);
    void setInnerSize(double width, double height);
    /// Puts the window into the middle of the screen.
    void centre();

    /// Bars take the full width, in the order of the calls, above (menus, toolbars) or below client().
    void addTopBar(QWidget* bar);
    void addBottomBar(QWidget* bar);

    /// The user may resize the window (off at first).
    void setResizable(bool resizable);
    /// The first and every later show is maximised; also acts at once on a visible form.
    void setMaximised(bool maximised);
    /// No title, no frame (splash).
    void setBorderless();

    void setPointer(Pointer pointer);

    /// Keeps this window in front of another one; of none for nullptr. Where the other stands in front of
    /// this one already, it changes place with it: the toolkit follows these windows without end in a ring.
    void stayAbove(const QWidget* other);

protected:
    /// client() has another size.
    virtual void innerResized() {}
    void resizeEvent(QResizeEvent* event) override;

    /// Stands in `area` from now on, inside that hidden frame of its own; outer sizes include the frame.
    void putInto(QMdiArea& area, ChildFrame* frame);
    ChildFrame* frame() const;
    /// The frame of a child page, else the window itself.
    QWidget* outer() const;
    /// Gives client() the size last asked for, after bars have grown.
    void fitInner();
    void arrange();
    /// Shows a window outside of any frame, in front of `owner` where it is modal, and returns when its
    /// sizes can be trusted.
    void showOnScreen(bool modal, const QWidget* owner);

private:
    QSize frameExtra() const;
    void resizeOuter(const QSize& pixels);
    void resizeInner();
    void addBar(QWidget* bar);
    Qt::WindowFlags topLevelFlags(bool modal) const;
    void waitForWindow();

    QWidget* client_;
    QSize inner_; ///< client()'s size in pixels as last asked for; invalid if the outer size was
    FormBars bars_;
    QPointer<ChildFrame> frame_;
    bool maximised_ = false;
    bool resizable_ = false;
    bool borderless_ = false;
    QSize outerWanted_;   ///< pixels; an outer size asked for before the window had its frame
    bool placed_ = false; ///< somebody chose the position
    bool sized_ = false;  ///< client() was given its size, which bars added later must not take
};

} // namespace toolkit
