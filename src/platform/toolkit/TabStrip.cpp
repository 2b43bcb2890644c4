#include "platform/toolkit/TabStrip.h"

#include "platform/runtime/Error.h"

#include <QKeyEvent>
#include <QWheelEvent>

namespace toolkit {

TabStrip::TabStrip(const QString& name, QWidget* parent, Direction direction) : QTabBar(parent) {
    setObjectName(name);
    setShape(direction == Direction::Upright ? QTabBar::RoundedWest : QTabBar::RoundedNorth);
    setExpanding(false);
    setUsesScrollButtons(false);
    setElideMode(Qt::ElideNone);
    setDrawBase(true);
    connect(this, &QTabBar::tabBarClicked, this, [this](int index) {
        if (index >= 0 && isTabEnabled(index)) {
            setCurrentIndex(index);
            Q_EMIT clicked();
        }
    });
}

void TabStrip::addTab(const QString& key, const QString& caption, const QString& tip) {
    const int index = QTabBar::addTab(caption);
    setTabData(index, key);
    setTabToolTip(index, tip);
}

QString TabStrip::selectedKey() const {
    return tabData(currentIndex()).toString();
}

QString TabStrip::key(int index) const {
    return tabData(index - 1).toString();
}

void TabStrip::select(int index) {
    if (index < 1 || index > count())
        runtime::raise(runtime::ElementNotFound, {}, objectName());
    setCurrentIndex(index - 1);
    Q_EMIT clicked();
}

void TabStrip::select(const QString& key) {
    for (int index = 1; index <= count(); ++index) {
        if (this->key(index) == key) {
            select(index);
            return;
        }
    }
    runtime::raise(runtime::ElementNotFound, {}, key);
}

void TabStrip::keyPressEvent(QKeyEvent* event) {
    const int before = currentIndex();
    QTabBar::keyPressEvent(event);
    if (currentIndex() != before)
        Q_EMIT clicked();
}

void TabStrip::wheelEvent(QWheelEvent* event) {
    event->ignore();
}

QSize TabStrip::tabSizeHint(int index) const {
    QSize hint = QTabBar::tabSizeHint(index);
    const bool upright = shape() == QTabBar::RoundedWest;
    if (upright && width() > 0)
        hint.setWidth(width()); // the strip's own breadth, whatever the style would like
    else if (!upright && height() > 0)
        hint.setHeight(height());
    return hint;
}

} // namespace toolkit
