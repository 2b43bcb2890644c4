#include "platform/toolkit/Form.h"

#include "platform/runtime/Error.h"
#include "platform/toolkit/ChildFrame.h"
#include "platform/toolkit/Exposure.h"
#include "platform/toolkit/OpenForms.h"
#include "platform/toolkit/ParentForm.h"
#include "platform/toolkit/Twips.h"

#include <QApplication>
#include <QCloseEvent>
#include <QEventLoop>
#include <QKeyEvent>
#include <QMdiArea>
#include <QScopedValueRollback>
#include <QScreen>
#include <QWindow>
#include <utility>

using namespace Qt::StringLiterals;

namespace toolkit {

namespace {

/// How long a show waits for the window manager to map a maximised window; milliseconds.
constexpr int mapPatience = 1000;

} // namespace

Form::Form(const QString& name) : client_(new QWidget(this)) {
    setObjectName(name);
    client_->setObjectName(u"client"_s);
    setWindowFlags(Qt::Window);
    setAutoFillBackground(true); // a page must not show the frame's colour
    OpenForms::all().add(this);
}

Form::~Form() {
    OpenForms::all().remove(this);
    endModal();
}

QWidget* Form::outer() const {
    return frame_ ? static_cast<QWidget*>(frame_.data()) : const_cast<Form*>(this);
}

QSize Form::frameExtra() const {
    if (frame_)
        return {2 * ChildFrame::border, ChildFrame::titleHeight + ChildFrame::border};
    return isVisible() ? frameGeometry().size() - size() : QSize(0, 0);
}

double Form::left() const {
    return toTwips(outer()->x());
}

double Form::top() const {
    return toTwips(outer()->y());
}

double Form::outerWidth() const {
    return toTwips(size().width() + frameExtra().width());
}

double Form::outerHeight() const {
    return toTwips(size().height() + frameExtra().height());
}

double Form::innerWidth() const {
    return toTwips(client_->width());
}

double Form::innerHeight() const {
    return toTwips(client_->height());
}

void Form::setLeft(double twips) {
    placed_ = true;
    outer()->move(toPixels(twips), outer()->y());
}

void Form::setTop(double twips) {
    placed_ = true;
    outer()->move(outer()->x(), toPixels(twips));
}

void Form::setOuterSize(double width, double height) {
    sized_ = true;
    inner_ = QSize();
    const QSize pixels(toPixels(width), toPixels(height));
    if (!frame_ && !isVisible())
        outerWanted_ = pixels;
    resizeOuter(pixels);
}

void Form::setInnerSize(double width, double height) {
    sized_ = true;
    inner_ = QSize(toPixels(width), toPixels(height));
    outerWanted_ = QSize();
    resizeInner();
}

void Form::resizeInner() {
    resizeOuter(inner_ + QSize(0, bars_.height()) + frameExtra());
}

void Form::resizeOuter(const QSize& pixels) {
    const QSize inside = (pixels - frameExtra()).expandedTo({1, 1});
    if (frame_) {
        frame_->setFixedSize(pixels);
        resize(inside);
    } else if (resizable_ || maximised_) {
        setMinimumSize(0, 0);
        setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
        resize(inside);
    } else {
        setFixedSize(inside);
    }
    arrange();
}

void Form::centre() {
    const QRect room = screen()->availableGeometry();
    placed_ = true;
    move(room.center() - QPoint(width() / 2, height() / 2));
}

void Form::addTopBar(QWidget* bar) {
    bar->setParent(this);
    bars_.addTop(bar);
    if (sized_)
        resizeOuter(size() + frameExtra() + QSize(0, bar->sizeHint().height()));
    arrange();
}

void Form::addBottomBar(QWidget* bar) {
    bar->setParent(this);
    bars_.addBottom(bar);
    if (sized_)
        resizeOuter(size() + frameExtra() + QSize(0, bar->sizeHint().height()));
    arrange();
}

void Form::arrange() {
    const QSize before = client_->size();
    client_->setGeometry(bars_.arrange(size()));
    if (client_->size() != before && state_ == State::Loaded)
        onResize();
}

void Form::setResizable(bool resizable) {
    resizable_ = resizable;
    resizeOuter(size() + frameExtra());
}

void Form::setMaximised(bool maximised) {
    maximised_ = maximised;
    resizeOuter(size() + frameExtra());
    if (isVisible() && !frame_) {
        setWindowState(maximised ? windowState() | Qt::WindowMaximized
                                 : windowState() & ~Qt::WindowMaximized);
    }
}

void Form::setBorderless() {
    borderless_ = true;
}

void Form::setParentForm(ParentForm& parent) {
    parentForm_ = &parent;
    setWindowFlags(Qt::Widget);
    setAutoFillBackground(true); // the colour of an active frame stays in its border
    frame_ = new ChildFrame(*this);
    parent.area()->addSubWindow(frame_);
    parent.pages_.append(this);
    frame_->hide();
    frame_->move(0, 0);
    resizeOuter(size() + frameExtra());
}

void Form::setPointer(Pointer pointer) {
    if (pointer == Pointer::Hourglass)
        setCursor(Qt::WaitCursor);
    else
        unsetCursor();
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
        if (inner_.isValid() && !maximised_)
            resizeInner(); // bars grow with the pictures they get meanwhile
        state_ = State::Loaded;
        arrange();
    }
}

void Form::show() {
    setVisible(true);
    if (!isVisible())
        return;
    if (frame_) {
        parentForm_->area()->setActiveSubWindow(frame_);
    } else {
        raise();
        activateWindow();
    }
}

void Form::setVisible(bool visible) {
    if (!visible) {
        if (frame_) {
            frame_->hide();
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
    if (frame_) {
        QWidget::setVisible(true);
        frame_->setVisible(true);
    } else {
        prepareWindow();
        QWidget::setVisible(true);
        waitForWindow();
        if (outerWanted_.isValid())
            resizeOuter(std::exchange(outerWanted_, QSize())); // now that the frame is known
    }
    onResize();
    activate();
}

void Form::prepareWindow() {
    Qt::WindowFlags flags = modal_ ? Qt::Dialog : Qt::Window;
    if (borderless_) {
        flags |= Qt::FramelessWindowHint;
    } else if (!resizable_ && !maximised_) {
        flags |= Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                 Qt::WindowCloseButtonHint;
    }
    setWindowFlags(flags);
    setWindowModality(modal_ ? Qt::ApplicationModal : Qt::NonModal);
    if (maximised_) {
        // The window manager's answer comes later; who measures at once gets what it will be.
        resize(screen()->availableSize());
        setWindowState(windowState() | Qt::WindowMaximized);
    } else if (!placed_) {
        centre();
    }
    if (modal_) {
        const Form* owner = active();
        winId();
        if (owner != nullptr && owner != this && windowHandle() != nullptr)
            stayAbove(owner);
    }
}

void Form::stayAbove(const QWidget* other) {
    QWindow* own = windowHandle();
    QWindow* below = other == nullptr ? nullptr : other->windowHandle();
    for (QWindow* window = below; window != nullptr; window = window->transientParent())
        if (window->transientParent() == own)
            window->setTransientParent(own->transientParent());
    own->setTransientParent(below);
}

void Form::waitForWindow() {
    if ((!maximised_ && !outerWanted_.isValid()) || QGuiApplication::platformName() != QLatin1String("xcb"))
        return;
    waitForExposure(*this, mapPatience);
}

void Form::showModal() {
    if (loop_ != nullptr || frame_)
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
    if (frame_) {
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
    if (frame_) {
        ChildFrame* frame = frame_;
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
    if (event->type() == QEvent::WindowActivate && !frame_ && isVisible() && state_ == State::Loaded &&
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

void Form::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    arrange();
}

} // namespace toolkit
