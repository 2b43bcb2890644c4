#pragma once

#include "platform/toolkit/FormBars.h"

#include <QPointer>
#include <QString>
#include <QWidget>

class QEventLoop;

namespace toolkit {

class ParentForm;
class ChildFrame;

/// A window of fixed geometry in twips, with a lifecycle of separate steps: made (design state), loaded,
/// shown and activated, asked to unload, unloaded. Controls live in `client()`, the area below menu and
/// toolbar and above the status bar; its size is what `innerWidth` and `innerHeight` speak of.
///
/// A derived class builds its controls in the constructor (the design state) and overrides the `on…`
/// handlers.
class Form : public QWidget {
    Q_OBJECT
public:
    enum class Pointer { Default, Hourglass };

    /// `name` becomes the objectName.
    explicit Form(const QString& name);
    ~Form() override;

    QString Tag; ///< free text for whoever opens the form

    QString caption() const { return windowTitle(); }
    void setCaption(const QString& caption) { setWindowTitle(caption); }

    /// The parent of the form's controls.
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

    /// Makes the form a child page of `parent`: it stands inside its area, and outer sizes include the slim
    /// frame. Call in the constructor or before the first show.
    void setParentForm(ParentForm& parent);

    void setPointer(Pointer pointer);

    // --- lifecycle ---
    /// Runs `onLoad` unless the form is loaded already.
    void load();
    bool isLoaded() const { return state_ == State::Loaded; }
    /// Unloaded for good; the instance only waits for its destruction.
    bool isGone() const { return state_ == State::Gone; }

    /// Loads, shows without waiting, activates. (QWidget::show does the same; hide() keeps the form loaded.)
    void show();
    /// Loads, shows modally, activates, and returns when the form is hidden or unloaded.
    void showModal();

    /// Asks `onQueryUnload`; unless refused runs `onUnload`, hides, and the instance is gone (deleted when
    /// control is back in the event loop, so that a form may unload itself from any of its handlers). A form
    /// that was never loaded stays as it is. False if the unload was refused.
    bool unload();

    /// The form that was activated last and still shows, or nullptr.
    static Form* active();
    /// Destroys every form; at the program's end.
    static void destroyAll();

    /// Keeps this window in front of another form's; of none for nullptr. Where the other stands in front of
    /// this one already, it changes place with it: the toolkit follows these windows without end in a ring.
    void stayAbove(const QWidget* other);

    void setVisible(bool visible) override;

protected:
    virtual void onLoad() {}
    /// The window became the active one, coming from another window of the program or anew. Boxes and popups
    /// of the program do not count as other windows.
    virtual void onActivate() {}
    /// False refuses the unload. May be asked without an unload following.
    virtual bool onQueryUnload() { return true; }
    virtual void onUnload() {}
    /// The window's or its inner area's size changed.
    virtual void onResize() {}

    bool event(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    friend class ParentForm;
    enum class State { Design, Loading, Loaded, Gone };

    /// What must agree before any unload handler runs: the form and all pages inside it.
    virtual bool unloadPages() { return true; }
    void activate();
    void leaveActivation();
    void finishUnload();
    void endModal();
    void prepareWindow();
    void waitForWindow();
    QWidget* outer() const;
    QSize frameExtra() const;
    void resizeOuter(const QSize& pixels);
    void resizeInner();
    void arrange();

    QWidget* client_;
    QSize inner_; ///< client()'s size in pixels as last asked for; invalid if the outer size was
    FormBars bars_;
    QPointer<ParentForm> parentForm_;
    QPointer<ChildFrame> frame_;
    QEventLoop* loop_ = nullptr;
    State state_ = State::Design;
    bool modal_ = false;
    bool unloading_ = false;
    bool maximised_ = false;
    bool resizable_ = false;
    bool borderless_ = false;
    QSize outerWanted_;   ///< pixels; an outer size asked for before the window had its frame
    bool placed_ = false; ///< somebody chose the position
    bool sized_ = false;  ///< client() was given its size, which bars added later must not take
};

} // namespace toolkit
