#include "support/KeyboardWalk.h"

#include "platform/toolkit/Form.h"

#include <QAccessible>
#include <QWidget>

#include <algorithm>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

/// Parts of a control, and pages, which only hold controls.
bool isPart(const QWidget& control) {
    return control.focusProxy() != nullptr || control.objectName().startsWith(QLatin1String("qt_")) ||
           qobject_cast<const toolkit::Form*>(&control) != nullptr;
}

QString nameOf(const QWidget& control) {
    return control.objectName().isEmpty() ? QString::fromLatin1(control.metaObject()->className())
                                          : control.objectName();
}

QList<const QWidget*> stops(const QWidget& window) {
    QList<const QWidget*> found;
    for (const QWidget* next = window.nextInFocusChain(); next != &window; next = next->nextInFocusChain())
        if ((next->focusPolicy() & Qt::TabFocus) != 0 && next->isVisible() && next->isEnabled() &&
            next->window() == &window && !isPart(*next))
            found.append(next);
    return found;
}

/// From the window down to the control.
QList<const QWidget*> ancestry(const QWidget* control) {
    QList<const QWidget*> line;
    for (; control != nullptr; control = control->parentWidget())
        line.prepend(control);
    return line;
}

QRect placeOf(const QWidget& control) {
    return {control.mapTo(control.window(), QPoint(0, 0)), control.size()};
}

bool readsBefore(const QRect& first, const QRect& second) {
    const int shared = std::min(first.bottom(), second.bottom()) - std::max(first.top(), second.top());
    if (2 * shared >= std::max(first.height(), second.height())) // one row
        return first.left() <= second.left();
    const bool nextColumn = second.left() >= first.right();
    return second.top() >= first.top() || nextColumn;
}

/// Tab goes round in a page of the editor and does not leave it.
const QWidget* pageOf(const QWidget* control) {
    while (!control->isWindow() && qobject_cast<const toolkit::Form*>(control) == nullptr)
        control = control->parentWidget();
    return control;
}

} // namespace

QStringList namelessControls(const QWidget& window) {
    QStringList names;
    for (QWidget* control : window.findChildren<QWidget*>()) {
        if (control->focusPolicy() == Qt::NoFocus || !control->isVisible() || isPart(*control))
            continue;
        const QAccessibleInterface* told = QAccessible::queryAccessibleInterface(control);
        if (told == nullptr || told->text(QAccessible::Name).trimmed().isEmpty())
            names.append(nameOf(*control));
    }
    return names;
}

QStringList leapsOfTab(const QWidget& window) {
    QStringList leaps;
    const auto all = stops(window);
    for (qsizetype i = 1; i < all.size(); ++i) {
        if (pageOf(all[i - 1]) != pageOf(all[i]))
            continue;
        const auto before = ancestry(all[i - 1]);
        const auto after = ancestry(all[i]);
        qsizetype depth = 0;
        while (depth + 1 < std::min(before.size(), after.size()) && before[depth] == after[depth])
            ++depth;
        if (!readsBefore(placeOf(*before[depth]), placeOf(*after[depth])))
            leaps.append(nameOf(*all[i - 1]) + u" -> "_s + nameOf(*all[i]));
    }
    return leaps;
}

qsizetype tabStops(const QWidget& window) {
    return stops(window).size();
}
