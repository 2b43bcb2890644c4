#pragma once

#include <QDateEdit>

namespace toolkit {

/// A date as dd/MM/yyyy with an Italian calendar. Shows today at first. `changed` comes at once, also when
/// the program sets another date.
///
/// It can be typed as people write it: with or without separators (/ . - or a blank), days and months of one
/// digit, the year in two (30 to 99 of the last century). A click marks the part under the pointer, and the
/// next digit replaces it.
class DatePicker : public QDateEdit {
    Q_OBJECT
public:
    DatePicker(const QString& name, QWidget* parent);

    QDate value() const { return date(); }
    /// Raises runtime::InvalidPropertyValue for an invalid date or one before 1753.
    void setValue(QDate date);

    /// Takes what is typed as the date, as leaving the field does. For who takes no focus, as a toolbar.
    void commit();

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    void changed();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    void typeDigit(QKeyEvent* event);
    /// The day as typed, once month and year allow it: a 29 February passes years that have none.
    void bringDayBack();
    void completeYear();

    bool movedOn_ = false; ///< the last key filled its part, and the next part is marked already
    int typedDay_ = 0;     ///< 0 = none
    QDate seen_;           ///< the date after the last digit; another one now was not typed
};

} // namespace toolkit
