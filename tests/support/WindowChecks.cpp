#include "support/WindowChecks.h"

#include "platform/toolkit/Form.h"
#include "platform/toolkit/Frame.h"
#include "platform/toolkit/Label.h"

#include <QAccessible>
#include <QComboBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QListWidget>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QTabBar>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize endless(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);

/// Texts, each with the room for it.
using Texts = QList<std::pair<QString, QSize>>;

Texts textsOf(const QHeaderView& header) {
    Texts texts;
    for (int section = 0; section < header.count(); ++section)
        if (!header.isSectionHidden(section))
            texts.append({header.model()->headerData(section, header.orientation()).toString(),
                          {header.sectionSize(section) - 8, header.height()}});
    return texts;
}

Texts textsOf(const QTabBar& tabs) {
    const bool upright = tabs.shape() == QTabBar::RoundedWest;
    Texts texts;
    for (int tab = 0; tab < tabs.count(); ++tab) {
        const QSize room = tabs.tabRect(tab).intersected(tabs.rect()).size();
        texts.append({tabs.tabText(tab), (upright ? room.transposed() : room) - QSize(4, 0)});
    }
    return texts;
}

Texts textsOf(const QComboBox& combo) {
    const QSize room = combo.isEditable() ? combo.lineEdit()->size() - QSize(5, 0)
                                          : combo.size() - QSize(24, 2); // its arrow and its frame
    Texts texts{{combo.currentText(), room}};
    for (int item = 0; item < combo.count(); ++item)
        texts.append({combo.itemText(item), room});
    return texts;
}

/// What a control writes. Where a control knows its own need, it is all or nothing.
Texts textsOf(const QWidget& widget) {
    const QSize size = widget.size();
    if (const auto* label = qobject_cast<const toolkit::Label*>(&widget))
        return {{label->text(), label->isWhole() ? endless : QSize()}};
    if (const auto* frame = qobject_cast<const toolkit::Frame*>(&widget))
        return {{frame->caption(), size - QSize(14, 0)}};
    if (const auto* button = qobject_cast<const QPushButton*>(&widget))
        return {
            {button->text(), size - QSize(button->icon().isNull() ? 4 : button->iconSize().width() + 8, 2)}};
    if (const auto* button = qobject_cast<const QAbstractButton*>(&widget))
        return {{button->text(), size.width() < button->sizeHint().width() ? QSize() : endless}};
    if (const auto* line = qobject_cast<const QLineEdit*>(&widget))
        return {
            {line->text(), size - QSize(5 + line->textMargins().left() + line->textMargins().right(), 0)}};
    if (const auto* list = qobject_cast<const QListWidget*>(&widget))
        return {{u"an item"_s, list->sizeHintForColumn(0) > list->viewport()->width() ? QSize() : endless}};
    if (const auto* combo = qobject_cast<const QComboBox*>(&widget))
        return textsOf(*combo);
    if (const auto* header = qobject_cast<const QHeaderView*>(&widget))
        return textsOf(*header);
    if (const auto* tabs = qobject_cast<const QTabBar*>(&widget))
        return textsOf(*tabs);
    return {};
}

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

bool readsBefore(const QRect& first, const QRect& second) {
    const int shared = std::min(first.bottom(), second.bottom()) - std::max(first.top(), second.top());
    if (2 * shared >= std::max(first.height(), second.height())) // one row
        return first.left() <= second.left();
    const bool nextColumn = second.left() >= first.right();
    return second.top() >= first.top() || nextColumn;
}

/// The control, or what holds it beside the other one.
const QWidget* besideOf(const QWidget* control, const QWidget* other) {
    while (!control->parentWidget()->isAncestorOf(other))
        control = control->parentWidget();
    return control;
}

} // namespace

QStringList cutTexts(const QWidget& window) {
    QStringList cut;
    for (const QWidget* widget : window.findChildren<QWidget*>()) {
        if (!widget->isVisible())
            continue;
        const QFontMetrics font = widget->fontMetrics();
        const bool inside = qobject_cast<const QTabBar*>(widget) != nullptr || // a strip ends in free room
                            widget->parentWidget()->rect().adjusted(0, 0, 1, 1).contains(widget->geometry());
        for (const auto& [text, room] : textsOf(*widget))
            if (!text.isEmpty() &&
                (!inside || font.height() - 1 > room.height() || // without the empty leading
                 font.size(Qt::TextShowMnemonic, text).width() > room.width()))
                cut.append(u"%1: \"%2\" is cut"_s.arg(nameOf(*widget), text));
    }
    return cut;
}

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
        const QWidget* before = besideOf(all[i - 1], all[i]);
        const QWidget* after = besideOf(all[i], all[i - 1]);
        // Tab goes round in a page of the editor and does not leave it.
        if (qobject_cast<const QMdiSubWindow*>(before) == nullptr &&
            !readsBefore(before->geometry(), after->geometry()))
            leaps.append(nameOf(*all[i - 1]) + u" -> "_s + nameOf(*all[i]));
    }
    return leaps;
}

qsizetype tabStops(const QWidget& window) {
    return stops(window).size();
}
