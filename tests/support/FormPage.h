#pragma once

#include "platform/runtime/Error.h"
#include "platform/toolkit/Application.h"
#include "platform/toolkit/Form.h"
#include "platform/toolkit/ReportList.h"
#include "platform/toolkit/TextBox.h"
#include "platform/toolkit/Toolbar.h"

#include <QAbstractButton>
#include <QLineEdit>
#include <QTest>
#include <QTimer>
#include <QToolButton>
#include <functional>

/// A window as a test sees it: controls by their names. Looking for one that is not there ends the test
/// program, pressing one that is hidden or disabled fails the test.
class FormPage {
public:
    explicit FormPage(toolkit::Form& form) : form_(&form) {}

    template <class Control> Control& control(const QString& name) const {
        auto* found = form_->findChild<Control*>(name);
        if (found == nullptr) {
            qFatal("no control %s", qPrintable(name));
        }
        return *found;
    }
    void press(const QString& name) const {
        auto& button = control<QAbstractButton>(name);
        QVERIFY2(button.isVisible() && button.isEnabled(), qPrintable(name));
        button.click();
    }
    void type(const QString& field, const QString& text) const {
        QTest::keyClicks(&control<QWidget>(field), text);
    }

    toolkit::ReportList& list(const QString& name = QStringLiteral("LW")) const {
        return control<toolkit::ReportList>(name);
    }
    /// The lines of a list, columns joined by "|".
    QStringList lines(const QString& name = QStringLiteral("LW"), int columns = 4) const {
        QStringList all;
        for (int line = 0; line < list(name).count(); ++line) {
            QStringList cells;
            for (int column = 0; column < columns; ++column) {
                cells.append(list(name).cell(line, column));
            }
            all.append(cells.join(QLatin1Char('|')));
        }
        return all;
    }

    /// Names of the controls that Tab visits, in its order, from the first on.
    QStringList tabOrder() const {
        QStringList names;
        for (QWidget* next = form_->nextInFocusChain(); next != form_; next = next->nextInFocusChain()) {
            if ((next->focusPolicy() & Qt::TabFocus) != 0 && next->isVisible() &&
                !next->objectName().startsWith("qt_")) {
                names.append(next->objectName());
            }
        }
        return names;
    }
    /// Names of the controls that take the focus and have no accessible name.
    QStringList nameless() const {
        QStringList names;
        for (const QWidget* widget : form_->findChildren<QWidget*>()) {
            if ((widget->focusPolicy() & Qt::TabFocus) != 0 && widget->isVisible() &&
                widget->accessibleName().isEmpty() &&
                qobject_cast<const QAbstractButton*>(widget) == nullptr && widget->focusProxy() == nullptr &&
                !widget->objectName().startsWith("qt_")) {
                names.append(widget->objectName());
            }
        }
        return names;
    }

private:
    toolkit::Form* form_;
};

/// Acts on the modal window that the next call opens, once it shows. It must close it.
inline void whenModal(std::function<void(toolkit::Form&)> act) {
    QTimer::singleShot(0, qApp, [act = std::move(act)] {
        auto* form = qobject_cast<toolkit::Form*>(QApplication::activeModalWidget());
        QVERIFY(form != nullptr);
        act(*form);
    });
}

/// The number of the error that `act` raises, 0 for none.
template <class Act> int errorOf(Act act) {
    try {
        act();
    } catch (const runtime::Error& error) {
        return error.number();
    }
    return 0;
}

/// The program of a test of windows.
template <class Test> int runFormsTest(int argc, char** argv) {
    toolkit::Application application(argc, argv);
    Test test;
    return QTest::qExec(&test, argc, argv);
}
