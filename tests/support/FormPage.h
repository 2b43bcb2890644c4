#pragma once

#include "platform/toolkit/Form.h"
#include "platform/toolkit/ReportList.h"
#include "support/WindowPage.h"

#include <QAbstractButton>
#include <QApplication>
#include <QTest>
#include <QTimer>
#include <functional>

/// A form as a test sees it: a page with a list, and what a keyboard and an assistive tool find.
class FormPage : public WindowPage {
public:
    explicit FormPage(toolkit::Form& form) : WindowPage(form) {}

    toolkit::ReportList& list() const { return find<toolkit::ReportList>(QStringLiteral("LW")); }
    /// The lines of the list, columns joined by "|".
    QStringList lines() const {
        QStringList all;
        for (int line = 0; line < list().count(); ++line) {
            QStringList cells;
            for (int column = 0; column < list().model()->columnCount(); ++column) {
                cells.append(list().cell(line, column));
            }
            all.append(cells.join(QLatin1Char('|')));
        }
        return all;
    }

    /// Names of the controls that Tab visits, in its order.
    QStringList tabOrder() const {
        QStringList names;
        for (QWidget* next = window().nextInFocusChain(); next != &window();
             next = next->nextInFocusChain()) {
            if (takesTab(*next)) {
                names.append(next->objectName());
            }
        }
        return names;
    }
    /// Names of those that Tab visits and that have neither a text of their own nor an accessible name.
    QStringList nameless() const {
        QStringList names;
        for (const QWidget* control : window().findChildren<QWidget*>()) {
            if (takesTab(*control) && control->accessibleName().isEmpty() &&
                qobject_cast<const QAbstractButton*>(control) == nullptr) {
                names.append(control->objectName());
            }
        }
        return names;
    }

private:
    static bool takesTab(const QWidget& control) {
        return (control.focusPolicy() & Qt::TabFocus) != 0 && control.isVisible() &&
               control.focusProxy() == nullptr && !control.objectName().startsWith(QLatin1String("qt_"));
    }
};

/// Acts on the modal form that the next call opens, once it shows; the act must close it.
inline void whenModal(std::function<void(toolkit::Form&)> act, int patience = 1000) {
    QTimer::singleShot(0, qApp, [act = std::move(act), patience] {
        auto* form = qobject_cast<toolkit::Form*>(QApplication::activeModalWidget());
        if (form == nullptr) { // not yet: whoever opens it may let events through before
            QVERIFY(patience > 0);
            whenModal(act, patience - 1);
            return;
        }
        act(*form);
        if (form->isVisible()) {
            form->unload();
            QFAIL("the modal form was still open");
        }
    });
}
