#include "platform/toolkit/DatePicker.h"

#include "platform/runtime/Dates.h"
#include "platform/runtime/Error.h"

#include <QCalendarWidget>
#include <QWheelEvent>

using namespace Qt::StringLiterals;

namespace toolkit {

DatePicker::DatePicker(const QString& name, QWidget* parent) : QDateEdit(runtime::today(), parent) {
    setObjectName(name);
    setLocale(QLocale(QLocale::Italian, QLocale::Italy));
    setDateRange(QDate(1753, 1, 1), QDate(9999, 12, 31));
    setDisplayFormat(u"dd/MM/yyyy"_s);
    setCalendarPopup(true);
    calendarWidget()->setLocale(locale());
    calendarWidget()->setFirstDayOfWeek(Qt::Monday);
    calendarWidget()->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
    connect(this, &QDateEdit::dateChanged, this, &DatePicker::changed);
}

void DatePicker::setValue(QDate date) {
    if (!date.isValid() || date < minimumDate() || date > maximumDate())
        runtime::raise(runtime::InvalidPropertyValue, {}, objectName());
    setDate(date);
}

void DatePicker::wheelEvent(QWheelEvent* event) {
    event->ignore();
}

} // namespace toolkit
