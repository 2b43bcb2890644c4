#include "platform/toolkit/DatePicker.h"

#include "platform/runtime/Dates.h"
#include "platform/runtime/Error.h"

#include <QCalendarWidget>
#include <QKeyEvent>
#include <QLineEdit>
#include <QWheelEvent>

using namespace Qt::StringLiterals;

namespace toolkit {

namespace {

/// Two-digit years from here on belong to the twentieth century, as most desktops read them.
constexpr int firstOfLastCentury = 30;

/// What a year of four digits begins with; as a year of two it waits for the field to be left.
const QStringList centuries{u"17"_s, u"18"_s, u"19"_s, u"20"_s};

bool isSeparator(const QString& text) {
    return text.size() == 1 && u"/.- "_s.contains(text);
}

bool isDigit(const QString& text) {
    return text.size() == 1 && text.front().isDigit();
}

} // namespace

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
    lineEdit()->installEventFilter(this);
}

void DatePicker::setValue(QDate date) {
    if (!date.isValid() || date < minimumDate() || date > maximumDate())
        runtime::raise(runtime::InvalidPropertyValue, {}, objectName());
    setDate(date);
}

bool DatePicker::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::MouseButtonRelease && !lineEdit()->hasSelectedText())
        setSelectedSection(currentSection());
    return QDateEdit::eventFilter(watched, event);
}

void DatePicker::keyPressEvent(QKeyEvent* event) {
    if (isSeparator(event->text())) {
        if (lineEdit()->hasSelectedText())
            return; // nothing is typed here yet: the digits before have moved on by themselves
        QKeyEvent slash(QEvent::KeyPress, Qt::Key_Slash, Qt::NoModifier, u"/"_s);
        QDateEdit::keyPressEvent(&slash);
    } else if (isDigit(event->text())) {
        typeDigit(event);
    } else {
        if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
            completeYear();
        QDateEdit::keyPressEvent(event);
    }
}

void DatePicker::typeDigit(QKeyEvent* event) {
    const Section section = currentSection();
    const int full = section == YearSection ? 4 : 2;
    if (!lineEdit()->hasSelectedText() && sectionText(section).size() == full)
        setSelectedSection(section); // a caret in a whole number: typing replaces it
    if (date() != seen_ || (section == DaySection && lineEdit()->hasSelectedText()))
        typedDay_ = 0;
    if (section == DaySection)
        typedDay_ = 10 * typedDay_ + event->text().toInt();
    QDateEdit::keyPressEvent(event);
    if (section != DaySection)
        bringDayBack();
    if (!centuries.contains(sectionText(YearSection)))
        completeYear(); // at once, since a toolbar button takes the date without leaving the field
    seen_ = date();
}

void DatePicker::bringDayBack() {
    const QDate meant(date().year(), date().month(), typedDay_);
    if (typedDay_ > date().day() && meant.isValid())
        setDate(meant);
}

void DatePicker::completeYear() {
    const QString year = sectionText(YearSection);
    if (year.size() != 2)
        return;
    const int number = year.toInt();
    const int meant = number + (number < firstOfLastCentury ? 2000 : 1900);
    setDate(date().addYears(meant - date().year()));
    bringDayBack();
}

void DatePicker::focusOutEvent(QFocusEvent* event) {
    completeYear();
    QDateEdit::focusOutEvent(event);
}

void DatePicker::wheelEvent(QWheelEvent* event) {
    event->ignore();
}

} // namespace toolkit
