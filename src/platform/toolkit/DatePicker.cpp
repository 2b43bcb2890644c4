#include "platform/toolkit/DatePicker.h"

#include "platform/runtime/Dates.h"
#include "platform/runtime/Error.h"

#include <QCalendarWidget>
#include <QKeyEvent>
#include <QLineEdit>
#include <QWheelEvent>
#include <utility>

using namespace Qt::StringLiterals;

namespace toolkit {

namespace {

bool isModifier(int key) {
    return (key >= Qt::Key_Shift && key <= Qt::Key_ScrollLock) || key == Qt::Key_AltGr;
}

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

void DatePicker::commit() {
    completeYear();
    interpretText();
    typedDay_ = 0;
}

bool DatePicker::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::MouseButtonPress)
        commit();
    if (event->type() == QEvent::MouseButtonRelease && !lineEdit()->hasSelectedText())
        setSelectedSection(currentSection());
    return QDateEdit::eventFilter(watched, event);
}

void DatePicker::keyPressEvent(QKeyEvent* event) {
    if (isModifier(event->key())) { // on its way to a separator, perhaps
        QDateEdit::keyPressEvent(event);
        return;
    }
    const bool movedOn = std::exchange(movedOn_, false);
    const bool plain = (event->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) == 0;
    if (plain && isDigit(event->text())) {
        typeDigit(event);
    } else if (plain && isSeparator(event->text())) {
        if (movedOn)
            return;
        QKeyEvent slash(QEvent::KeyPress, Qt::Key_Slash, Qt::NoModifier, u"/"_s);
        QDateEdit::keyPressEvent(&slash);
    } else {
        typedDay_ = 0;
        if (event->key() != Qt::Key_Backspace && event->key() != Qt::Key_Delete)
            completeYear();
        QDateEdit::keyPressEvent(event);
    }
}

void DatePicker::typeDigit(QKeyEvent* event) {
    if (lineEdit()->selectedText() == text())
        setSelectedSection(DaySection); // all is to be typed anew
    const Section section = currentSection();
    const int full = section == YearSection ? 4 : 2;
    if (!lineEdit()->hasSelectedText() && sectionText(section).size() == full)
        setSelectedSection(section); // a caret in a whole number: typing replaces it
    if (date() != seen_ || (section == DaySection && lineEdit()->hasSelectedText()))
        typedDay_ = 0;
    if (section == DaySection)
        typedDay_ = 10 * typedDay_ + event->text().toInt();
    QDateEdit::keyPressEvent(event);
    movedOn_ = currentSection() != section;
    if (section != DaySection)
        bringDayBack();
    seen_ = date();
}

void DatePicker::bringDayBack() {
    const QDate meant(date().year(), date().month(), typedDay_);
    if (typedDay_ > date().day() && meant.isValid())
        setDate(meant);
}

void DatePicker::completeYear() {
    const QString year = sectionText(YearSection);
    const auto meant = runtime::parseDate(u"1/1/"_s + year, runtime::DateOrder::DayFirst);
    if (year.size() != 2 || !meant)
        return;
    setDate(date().addYears(meant->date().year() - date().year()));
    bringDayBack();
}

void DatePicker::focusOutEvent(QFocusEvent* event) {
    commit();
    movedOn_ = false;
    QDateEdit::focusOutEvent(event);
}

void DatePicker::wheelEvent(QWheelEvent* event) {
    event->ignore();
}

} // namespace toolkit
