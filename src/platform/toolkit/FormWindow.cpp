#include "platform/toolkit/FormWindow.h"

#include "platform/toolkit/ChildFrame.h"
#include "platform/toolkit/Exposure.h"
#include "platform/toolkit/Twips.h"

#include <QGuiApplication>
#include <QMdiArea>
#include <QScreen>
#include <QWindow>
#include <utility>

using namespace Qt::StringLiterals;

namespace toolkit {

namespace {

/// How long a show waits for the window manager to map a maximised window; milliseconds.
constexpr int mapPatience = 1000;

} // namespace

FormWindow::FormWindow() : client_(new QWidget(this)) {
    client_->setObjectName(u"client"_s);
    setWindowFlags(Qt::Window);
    setAutoFillBackground(true); // a page must not show the frame's colour
}

FormWindow::~FormWindow() = default;

ChildFrame* FormWindow::frame() const {
    return frame_;
}

QWidget* FormWindow::outer() const {
    return frame_ ? static_cast<QWidget*>(frame_.data()) : const_cast<FormWindow*>(this);
}

QSize FormWindow::frameExtra() const {
    if (frame_)
        return {2 * ChildFrame::border, ChildFrame::titleHeight + ChildFrame::border};
    return isVisible() ? frameGeometry().size() - size() : QSize(0, 0);
}

double FormWindow::left() const {
    return toTwips(outer()->x());
}

double FormWindow::top() const {
    return toTwips(outer()->y());
}

double FormWindow::outerWidth() const {
    return toTwips(size().width() + frameExtra().width());
}

double FormWindow::outerHeight() const {
    return toTwips(size().height() + frameExtra().height());
}

double FormWindow::innerWidth() const {
    return toTwips(client_->width());
}

double FormWindow::innerHeight() const {
    return toTwips(client_->height());
}

void FormWindow::setLeft(double twips) {
    placed_ = true;
    outer()->move(toPixels(twips), outer()->y());
}

void FormWindow::setTop(double twips) {
    placed_ = true;
    outer()->move(outer()->x(), toPixels(twips));
}

void FormWindow::setOuterSize(double width, double height) {
    sized_ = true;
    inner_ = QSize();
    const QSize pixels(toPixels(width), toPixels(height));
    if (!frame_ && !isVisible())
        outerWanted_ = pixels;
    resizeOuter(pixels);
}

void FormWindow::setInnerSize(double width, double height) {
    sized_ = true;
    inner_ = QSize(toPixels(width), toPixels(height));
    outerWanted_ = QSize();
    resizeInner();
}

void FormWindow::resizeInner() {
    resizeOuter(inner_ + QSize(0, bars_.height()) + frameExtra());
}

void FormWindow::fitInner() {
    if (inner_.isValid() && !maximised_)
        resizeInner();
}

void FormWindow::resizeOuter(const QSize& pixels) {
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

void FormWindow::centre() {
    const QRect room = screen()->availableGeometry();
    placed_ = true;
    move(room.center() - QPoint(width() / 2, height() / 2));
}

void FormWindow::addTopBar(QWidget* bar) {
    bars_.addTop(bar);
    addBar(bar);
}

void FormWindow::addBottomBar(QWidget* bar) {
    bars_.addBottom(bar);
    addBar(bar);
}

void FormWindow::addBar(QWidget* bar) {
    bar->setParent(this);
    if (sized_)
        resizeOuter(size() + frameExtra() + QSize(0, bar->sizeHint().height()));
    arrange();
}

void FormWindow::arrange() {
    const QSize before = client_->size();
    client_->setGeometry(bars_.arrange(size()));
    if (client_->size() != before)
        innerResized();
}

void FormWindow::setResizable(bool resizable) {
    resizable_ = resizable;
    resizeOuter(size() + frameExtra());
}

void FormWindow::setMaximised(bool maximised) {
    maximised_ = maximised;
    resizeOuter(size() + frameExtra());
    if (isVisible() && !frame_) {
        setWindowState(maximised ? windowState() | Qt::WindowMaximized
                                 : windowState() & ~Qt::WindowMaximized);
    }
}

void FormWindow::setBorderless() {
    borderless_ = true;
}

void FormWindow::putInto(QMdiArea& area, ChildFrame* frame) {
    frame_ = frame;
    area.addSubWindow(frame);
    frame->hide();
    frame->move(0, 0);
    resizeOuter(size() + frameExtra());
}

void FormWindow::setPointer(Pointer pointer) {
    if (pointer == Pointer::Hourglass)
        setCursor(Qt::WaitCursor);
    else
        unsetCursor();
}

Qt::WindowFlags FormWindow::topLevelFlags(bool modal) const {
    const Qt::WindowFlags kind = modal ? Qt::Dialog : Qt::Window;
    if (borderless_)
        return kind | Qt::FramelessWindowHint;
    if (resizable_ || maximised_)
        return kind;
    return kind | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
           Qt::WindowCloseButtonHint;
}

void FormWindow::showOnScreen(bool modal, const QWidget* owner) {
    setWindowFlags(topLevelFlags(modal));
    setWindowModality(modal ? Qt::ApplicationModal : Qt::NonModal);
    if (maximised_) {
        // The window manager's answer comes later; who measures at once gets what it will be.
        resize(screen()->availableSize());
        setWindowState(windowState() | Qt::WindowMaximized);
    } else if (!placed_) {
        centre();
    }
    if (modal) {
        winId(); // makes the window
        if (owner != nullptr && owner != this && windowHandle() != nullptr)
            stayAbove(owner);
    }
    QWidget::setVisible(true);
    waitForWindow();
    if (outerWanted_.isValid())
        resizeOuter(std::exchange(outerWanted_, QSize())); // now that the frame is known
}

void FormWindow::stayAbove(const QWidget* other) {
    QWindow* own = windowHandle();
    QWindow* below = other == nullptr ? nullptr : other->windowHandle();
    for (QWindow* window = below; window != nullptr; window = window->transientParent())
        if (window->transientParent() == own)
            window->setTransientParent(own->transientParent());
    own->setTransientParent(below);
}

void FormWindow::waitForWindow() {
    if ((!maximised_ && !outerWanted_.isValid()) || QGuiApplication::platformName() != QLatin1String("xcb"))
        return;
    waitForExposure(*this, mapPatience);
}

void FormWindow::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    arrange();
}

} // namespace toolkit
