#pragma once

#include "platform/toolkit/FormWindow.h"

#include <QPointer>
#include <QString>

class QEventLoop;

namespace toolkit {

class ParentForm;

/// A window of fixed geometry in twips, with a lifecycle of separate steps: made (design state), loaded,
/// shown and activated, asked to unload, unloaded. Controls live in `client()`.
///
/// A derived class builds its controls in the constructor (the design state) and overrides the `on…`
/// handlers.
class Form : public FormWindow {
    Q_OBJECT
public:
    /// `name` becomes the objectName.
    explicit Form(const QString& name);
    ~Form() override;

    QString Tag; ///< free text for whoever opens the form

    /// Makes the form a child page of `parent`: it stands inside its area, and outer sizes include the slim
    /// frame. Call in the constructor or before the first show.
    void setParentForm(ParentForm& parent);

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
    void innerResized() override;

private:
    friend class ParentForm;
    enum class State { Design, Loading, Loaded, Gone };

    /// What must agree before any unload handler runs: the form and all pages inside it.
    virtual bool unloadPages() { return true; }
    void activate();
    void leaveActivation();
    void finishUnload();
    void endModal();

    QPointer<ParentForm> parentForm_;
    QEventLoop* loop_ = nullptr;
    State state_ = State::Design;
    bool modal_ = false;
    bool unloading_ = false;
};

} // namespace toolkit
