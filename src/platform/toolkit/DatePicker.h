#pragma once

#include <QDateEdit>

namespace toolkit {

/// A date as dd/MM/yyyy with an Italian calendar. Shows today at first. `changed` comes at once, also when
/// the program sets another date.
class DatePicker : public QDateEdit {
    Q_OBJECT
public:
    DatePicker(const QString& name, QWidget* parent);

    QDate value() const { return date(); }
    /// Raises runtime::InvalidPropertyValue for an invalid date or one before 1753.
    void setValue(QDate date);

Q_SIGNALS:
    void changed();

protected:
    void wheelEvent(QWheelEvent* event) override;
};

} // namespace toolkit
