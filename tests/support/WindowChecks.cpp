#include "support/WindowChecks.h"

#include "platform/toolkit/Frame.h"
#include "platform/toolkit/Label.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QHeaderView>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QStyleOptionButton>
#include <QStyleOptionComboBox>
#include <QTabBar>
#include <QToolButton>

using namespace Qt::StringLiterals;

namespace {

/// A line editor keeps 2 pixels on either side, and one for the caret.
constexpr int lineMargins = 5;
/// Tall letters and descenders may come this near to a box's edge; the font's own leading is empty.
constexpr int leading = 1;

class Walk {
public:
    explicit Walk(const QWidget& window) {
        const QList<QWidget*> all = window.findChildren<QWidget*>();
        for (const QWidget* widget : all)
            if (widget->isVisible())
                check(*widget);
    }

    QStringList cut;

private:
    void tell(const QWidget& widget, const QString& text, int needed, int room) {
        if (needed > room) {
            QString name = widget.objectName();
            for (const QWidget* up = widget.parentWidget(); name.isEmpty() && up != nullptr;
                 up = up->parentWidget())
                name = up->objectName();
            cut.append(u"%1: \"%2\" needs %3 pixels, has %4"_s.arg(name, text).arg(needed).arg(room));
        }
    }

    static int width(const QWidget& widget, const QString& text) {
        return widget.fontMetrics().size(Qt::TextShowMnemonic, text).width();
    }

    void height(const QWidget& widget, const QString& text, int room) {
        tell(widget, text, widget.fontMetrics().height() - leading, room);
    }

    void check(const QWidget& widget) {
        if (const auto* label = qobject_cast<const toolkit::Label*>(&widget)) {
            if (!label->isWhole())
                tell(widget, label->text(), width(widget, label->text()), 0);
            height(widget, label->text(), label->height());
            inside(widget, label->text());
        } else if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) {
            checkButton(*button);
        } else if (const auto* combo = qobject_cast<const QComboBox*>(&widget)) {
            checkCombo(*combo);
        } else if (const auto* date = qobject_cast<const QDateEdit*>(&widget)) {
            const auto* line = date->findChild<const QLineEdit*>();
            tell(widget, date->text(), width(*line, date->text()) + lineMargins, line->width());
            height(widget, date->text(), line->height());
        } else if (const auto* line = qobject_cast<const QLineEdit*>(&widget)) {
            if (qobject_cast<const QLineEdit*>(&widget) != nullptr &&
                !line->objectName().startsWith(QLatin1String("qt_"))) {
                const int frame =
                    line->hasFrame() ? 2 * line->style()->pixelMetric(QStyle::PM_DefaultFrameWidth) : 0;
                tell(widget, line->text(),
                     width(widget, line->text()) + lineMargins + line->textMargins().left() +
                         line->textMargins().right(),
                     line->width() - frame);
                height(widget, line->text(), line->height() - frame);
            }
        } else if (const auto* tabs = qobject_cast<const QTabBar*>(&widget)) {
            checkTabs(*tabs);
        } else if (const auto* header = qobject_cast<const QHeaderView*>(&widget)) {
            checkHeader(*header);
        } else if (const auto* list = qobject_cast<const QListWidget*>(&widget)) {
            for (int item = 0; item < list->count(); ++item) {
                tell(widget, list->item(item)->text(),
                     list->sizeHintForIndex(list->model()->index(item, 0)).width(),
                     list->viewport()->width());
            }
        } else if (const auto* frame = qobject_cast<const toolkit::Frame*>(&widget)) {
            tell(widget, frame->caption(), width(widget, frame->caption()) + 14, frame->width());
        }
    }

    /// A caption outside its parent is cut by it.
    void inside(const QWidget& widget, const QString& text) {
        if (widget.parentWidget() != nullptr && !text.isEmpty()) {
            tell(widget, text, widget.geometry().right(), widget.parentWidget()->width());
            tell(widget, text, widget.geometry().bottom(), widget.parentWidget()->height());
        }
    }

    void checkButton(const QAbstractButton& button) {
        if (button.text().isEmpty())
            return;
        inside(button, button.text());
        if (qobject_cast<const QToolButton*>(&button) != nullptr) {
            tell(button, button.text(), button.sizeHint().width(), button.width());
            tell(button, button.text(), button.sizeHint().height(), button.height());
            return;
        }
        QStyleOptionButton option;
        option.initFrom(&button);
        option.text = button.text();
        option.icon = button.icon();
        option.iconSize = button.iconSize();
        QStyle::SubElement contents = QStyle::SE_PushButtonContents;
        if (qobject_cast<const QRadioButton*>(&button) != nullptr)
            contents = QStyle::SE_RadioButtonContents;
        else if (qobject_cast<const QCheckBox*>(&button) != nullptr)
            contents = QStyle::SE_CheckBoxContents;
        const QRect room = button.style()->subElementRect(contents, &option, &button);
        const int icon = button.icon().isNull() ? 0 : button.iconSize().width() + 4;
        tell(button, button.text(), width(button, button.text()) + icon, room.width());
        height(button, button.text(), button.height() - 2);
    }

    void checkCombo(const QComboBox& combo) {
        QStyleOptionComboBox option;
        option.initFrom(&combo);
        option.editable = combo.isEditable();
        option.subControls = QStyle::SC_All;
        const QRect field =
            combo.style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, &combo);
        const int margins = combo.isEditable() ? lineMargins : 0;
        for (int item = 0; item < combo.count(); ++item)
            tell(combo, combo.itemText(item), width(combo, combo.itemText(item)) + margins, field.width());
        tell(combo, combo.currentText(), width(combo, combo.currentText()) + margins, field.width());
        height(combo, combo.currentText(), field.height());
    }

    void checkTabs(const QTabBar& tabs) {
        const bool upright = tabs.shape() == QTabBar::RoundedWest || tabs.shape() == QTabBar::RoundedEast;
        for (int index = 0; index < tabs.count(); ++index) {
            const QRect place = tabs.tabRect(index);
            const int room = upright ? place.height() : place.width();
            tell(tabs, tabs.tabText(index), width(tabs, tabs.tabText(index)) + 4, room);
            tell(tabs, tabs.tabText(index), upright ? place.bottom() : place.right(),
                 upright ? tabs.height() : tabs.width());
            height(
                tabs, tabs.tabText(index),
                std::min(upright ? place.width() : place.height(), upright ? tabs.width() : tabs.height()));
        }
    }

    void checkHeader(const QHeaderView& header) {
        const int margins = 2 * header.style()->pixelMetric(QStyle::PM_HeaderMargin, nullptr, &header);
        for (int section = 0; section < header.count(); ++section) {
            if (!header.isSectionHidden(section)) {
                const QString text = header.model()->headerData(section, header.orientation()).toString();
                tell(header, text, width(header, text) + margins, header.sectionSize(section));
            }
        }
    }
};

} // namespace

QStringList cutTexts(const QWidget& window) {
    return Walk(window).cut;
}
