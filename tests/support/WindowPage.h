#pragma once

#include <QString>
#include <QWidget>

#include <stdexcept>

/// The base of page objects: drives one window as a user does, by the names of its controls. What cannot be
/// done (no such control, hidden, disabled) fails the test and throws, so that nothing is pressed by mistake.
class WindowPage {
public:
    explicit WindowPage(QWidget& window) : window_(window) {}

    QWidget& window() const { return window_; }
    /// Shown to the user, in a window that shows.
    bool isVisible(const QString& name) const { return widget(name).isVisible(); }
    bool isEnabled(const QString& name) const { return widget(name).isEnabled(); }

    QWidget& widget(const QString& name) const;
    template <class T> T& find(const QString& name) const {
        auto* found = dynamic_cast<T*>(&widget(name));
        if (found == nullptr)
            fail(name + QStringLiteral(" is of another kind"));
        return *found;
    }

    /// Clicks the middle of a control that shows and is enabled.
    void press(const QString& name) const;
    /// Puts the focus on a field by a click and replaces its text by typing.
    void type(const QString& name, const QString& text) const;
    void key(const QString& name, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const;
    /// Chooses a combo box's item by arrow keys.
    void choose(const QString& combo, const QString& item) const;
    /// Clicks a line of a ReportList, `times` 2 double-clicks it.
    void clickLine(const QString& list, int line, int times = 1) const;
    /// Clicks the header of a ReportList's column.
    void clickHeader(const QString& list, int column) const;
    /// Clicks a tab, counted from 1.
    void clickTab(const QString& strip, int index) const;
    /// Drops a text on a control, by events: enter, move, drop. False if the control refused it.
    bool drop(const QString& name, const QString& text) const;
    /// The text that the control shows: of a field, a label, a combo box, a date, a button.
    QString text(const QString& name) const;

private:
    QWidget& ready(const QString& name) const;
    [[noreturn]] void fail(const QString& what) const;

    QWidget& window_;
};
