#pragma once

#include "platform/toolkit/Form.h"
#include "platform/toolkit/ReportList.h"
#include "support/WindowPage.h"

#include <QApplication>
#include <QTest>
#include <QTimer>
#include <functional>

/// A form as a test sees it: a page with a list.
class FormPage : public WindowPage {
public:
    explicit FormPage(toolkit::Form& form) : WindowPage(form) {}

    toolkit::ReportList& list() const { return find<toolkit::ReportList>(QStringLiteral("LW")); }
    /// The lines of the list, columns joined by "|".
    QStringList lines() const {
        QStringList all;
        for (int line = 0; line < list().count(); ++line) {
            QStringList cells;
            for (int column = 0; column < list().model()->columnCount(); ++column)
                cells.append(list().cell(line, column));
            all.append(cells.join(QLatin1Char('|')));
        }
        return all;
    }
};

/// Acts on the modal form that the next call opens, once it shows; the act must close it.
inline void whenModal(std::function<void(toolkit::Form&)> act, int patience = 1000) {
    QTimer::singleShot(0, qApp, [act = std::move(act), patience] {
        auto* form = qobject_cast<toolkit::Form*>(QApplication::activeModalWidget());
        if (form == nullptr) { // not yet: whoever opens it may let events through before
            QVERIFY(patience > 0);
            return whenModal(act, patience - 1);
        }
        act(*form);
        if (form->isVisible()) {
            form->unload();
            QFAIL("the modal form was still open");
        }
    });
}
