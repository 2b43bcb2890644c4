#include "platform/toolkit/Form.h"

#include "platform/runtime/Error.h"
#include "platform/toolkit/ChildFrame.h"
#include "platform/toolkit/OpenForms.h"
#include "platform/toolkit/ParentForm.h"

#include <QApplication>
#include <QCloseEvent>
#include <QEventLoop>
#include <QKeyEvent>
#include <QMdiArea>
#include <QScopedValueRollback>

using namespace Qt::StringLiterals;

namespace toolkit {

Form::Form(const QString& name) {
    setObjectName(name);
    OpenForms::all().add(this);
}

Form::~Form() {
    OpenForms::all().remove(this);
    endModal();
}

void Form::setParentForm(ParentForm& parent) {
    parentForm_ = &parent;
    setWindowFlags(Qt::Widget);
    setAutoFillBackground(true); // the colour of an active frame stays in its border
    parent.pages_.append(this);
    putInto(*parent.area(), new ChildFrame(*this));
}

void Form::load() {
    if (state_ != State::Design)
        return;
    state_ = State::Loading;
    ensurePolished();
    try {
        onLoad();
    } catch (...) {
        state_ = state_ == State::Loading ? State::Design : state_;
        throw;
    }
    if (state_ == State::Loading) {
        fitInner(); // bars grow with the pictures they get meanwhile
        state_ = State::Loaded;
        arrange();
    }
}

void Form::show() {
    setVisible(true);
    if (!isVisible())
        return;
    if (frame()) {
        parentForm_->area()->setActiveSubWindow(frame());
    } else {
        raise();
        activateWindow();
    }
}

void Form::setVisible(bool visible) {
    if (!visible) {
        if (frame()) {
            frame()->hide();
            return;
        }
        QWidget::setVisible(false);
        if (loop_ != nullptr)
            endModal();
        else
            leaveActivation();
        return;
    }
    if (isVisible())
        return;
    load();
    if (state_ == State::Gone)
        return;
    if (frame()) {
        QWidget::setVisible(true);
        frame()->setVisible(true);
    } else {
        showOnScreen(modal_, active());
    }
    onResize();
    activate();
}

void Form::showModal() {
    if (loop_ != nullptr || frame())
        runtime::raise(5, u"La finestra è già aperta."_s, objectName());
    load();
    if (state_ == State::Gone)
        return;
    modal_ = true;
    QEventLoop loop;
    loop_ = &loop;
    const QPointer<Form> self(this);
    try {
        setVisible(true);
        if (isVisible()) {
            activateWindow();
            loop.exec();
        }
    } catch (...) {
        if (self) {
            loop_ = nullptr;
            modal_ = false;
        }
        throw;
    }
    if (!self)
        return;
    loop_ = nullptr;
    modal_ = false;
    leaveActivation();
}

void Form::endModal() {
    if (loop_ != nullptr)
        loop_->quit();
}

void Form::activate() {
    if (frame()) {
        onActivate();
        return;
    }
    if (active() == this && isActiveWindow())
        return;
    OpenForms::all().activated(this);
    onActivate();
}

void Form::leaveActivation() {
    const bool wasLast = OpenForms::all().left(this);
    Form* next = active();
    if (wasLast && next != nullptr) {
        next->activateWindow();
        next->onActivate();
    }
}

Form* Form::active() {
    return OpenForms::all().active();
}

bool Form::unload() {
    if (unloading_ || state_ == State::Design || state_ == State::Gone)
        return true;
    {
        const QScopedValueRollback<bool> guard(unloading_, true);
        if (!unloadPages() || !onQueryUnload())
            return false;
        onUnload();
    }
    finishUnload();
    return true;
}

void Form::finishUnload() {
    state_ = State::Gone;
    if (ChildFrame* frame = this->frame()) {
        frame->hide();
        if (parentForm_)
            parentForm_->area()->removeSubWindow(frame);
        frame->deleteLater(); // takes the page along
        return;
    }
    setVisible(false);
    deleteLater();
}

void Form::destroyAll() {
    while (Form* form = OpenForms::all().newest())
        delete form->outer();
}

bool Form::event(QEvent* event) {
    if (event->type() == QEvent::WindowActivate && !frame() && isVisible() && state_ == State::Loaded &&
        active() != this) {
        const auto* modal = qobject_cast<Form*>(QApplication::activeModalWidget());
        if (modal == nullptr || modal == this)
            activate();
    }
    return QWidget::event(event);
}

void Form::closeEvent(QCloseEvent* event) {
    event->ignore(); // unload() hides and deletes by itself
    unload();
}

void Form::keyPressEvent(QKeyEvent* event) {
    if (modal_ && event->key() == Qt::Key_Escape) {
        unload();
        return;
    }
    QWidget::keyPressEvent(event);
}

void Form::innerResized() {
    if (state_ == State::Loaded)
        onResize();
}

} // namespace toolkit
