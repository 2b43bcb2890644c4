#include "support/WindowChecks.h"

#include "platform/toolkit/Form.h"
#include "platform/toolkit/Frame.h"
#include "platform/toolkit/Label.h"

#include <QAccessible>
#include <QCheckBox>
#include <QComboBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QListWidget>
#include <QRadioButton>
#include <QStyleOptionButton>
#include <QStyleOptionComboBox>
#include <QTabBar>
#include <QToolButton>

using namespace Qt::StringLiterals;

namespace {

/// A line editor keeps 2 pixels on either side, and one for the caret.
constexpr int lineMargins = 5;

class Walk {
public:
    explicit Walk(const QWidget& window) {
        for (const QWidget* widget : window.findChildren<QWidget*>())
            if (widget->isVisible())
                check(*widget);
    }

    QStringList cut;

private:
    /// `room` is the width for the text and its margins; the height is the font's without its empty leading.
    void tell(const QWidget& widget, const QString& text, int margins, QSize room) {
        const QSize needed(widget.fontMetrics().size(Qt::TextShowMnemonic, text).width() + margins,
                           widget.fontMetrics().height() - 1);
        if (text.isEmpty() || (needed.width() <= room.width() && needed.height() <= room.height()))
            return;
        const QWidget* named = &widget;
        while (named->objectName().isEmpty() && named->parentWidget() != nullptr)
            named = named->parentWidget();
        cut.append(u"%1: \"%2\" needs %3 × %4 pixels"_s.arg(named->objectName(), text)
                       .arg(needed.width())
                       .arg(needed.height()));
    }

    void check(const QWidget& widget) {
        if (const auto* label = qobject_cast<const toolkit::Label*>(&widget)) {
            tell(widget, label->text(), 0,
                 label->isWhole() ? QSize(QWIDGETSIZE_MAX, label->height()) : QSize());
            inside(widget, label->text());
        } else if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) {
            checkButton(*button);
        } else if (const auto* combo = qobject_cast<const QComboBox*>(&widget)) {
            checkCombo(*combo);
        } else if (const auto* line = qobject_cast<const QLineEdit*>(&widget)) {
            const int frame =
                line->hasFrame() ? 2 * line->style()->pixelMetric(QStyle::PM_DefaultFrameWidth) : 0;
            const QMargins inner = line->textMargins();
            if (qobject_cast<const QComboBox*>(line->parentWidget()) == nullptr)
                tell(widget, line->text(), lineMargins + inner.left() + inner.right(),
                     line->size() - QSize(frame, frame));
        } else if (const auto* tabs = qobject_cast<const QTabBar*>(&widget)) {
            const bool upright =
                tabs->shape() == QTabBar::RoundedWest || tabs->shape() == QTabBar::RoundedEast;
            for (int index = 0; index < tabs->count(); ++index) {
                const QSize place = tabs->tabRect(index).intersected(tabs->rect()).size();
                tell(*tabs, tabs->tabText(index), 4, upright ? place.transposed() : place);
            }
        } else if (const auto* header = qobject_cast<const QHeaderView*>(&widget)) {
            const int margins = 2 * header->style()->pixelMetric(QStyle::PM_HeaderMargin, nullptr, header);
            for (int section = 0; section < header->count(); ++section)
                if (!header->isSectionHidden(section))
                    tell(*header, header->model()->headerData(section, header->orientation()).toString(),
                         margins, {header->sectionSize(section), header->height()});
        } else if (const auto* list = qobject_cast<const QListWidget*>(&widget)) {
            if (list->sizeHintForColumn(0) > list->viewport()->width())
                cut.append(list->objectName() + u": an item"_s);
        } else if (const auto* frame = qobject_cast<const toolkit::Frame*>(&widget)) {
            tell(widget, frame->caption(), 14, frame->size());
        }
    }

    /// A caption outside its parent is cut by it.
    void inside(const QWidget& widget, const QString& text) {
        if (!text.isEmpty() &&
            !widget.parentWidget()->rect().adjusted(0, 0, 1, 1).contains(widget.geometry()))
            tell(widget, text, 0, {});
    }

    void checkButton(const QAbstractButton& button) {
        inside(button, button.text());
        if (qobject_cast<const QToolButton*>(&button) != nullptr)
            return tell(button, button.text(), 0, button.size() - button.sizeHint() + QSize(9999, 9999));
        QStyleOptionButton option;
        option.initFrom(&button);
        option.text = button.text();
        option.icon = button.icon();
        option.iconSize = button.iconSize();
        const auto contents =
            qobject_cast<const QRadioButton*>(&button) != nullptr ? QStyle::SE_RadioButtonContents
            : qobject_cast<const QCheckBox*>(&button) != nullptr  ? QStyle::SE_CheckBoxContents
                                                                  : QStyle::SE_PushButtonContents;
        const int room = button.style()->subElementRect(contents, &option, &button).width();
        tell(button, button.text(), button.icon().isNull() ? 0 : button.iconSize().width() + 4,
             {room, button.height() - 2});
    }

    void checkCombo(const QComboBox& combo) {
        QStyleOptionComboBox option;
        option.initFrom(&combo);
        option.editable = combo.isEditable();
        option.subControls = QStyle::SC_All;
        const QRect field =
            combo.style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, &combo);
        for (int item = -1; item < combo.count(); ++item)
            tell(combo, item < 0 ? combo.currentText() : combo.itemText(item),
                 combo.isEditable() ? lineMargins : 0, field.size());
    }
};

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

QStringList cutTexts(const QWidget& window) {
    return Walk(window).cut;
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
