#include "monkey/Ends.h"

#include "cards/SchedaApribile.h"
#include "cards/SchedaCorpo.h"
#include "cards/SchedaCorpo2.h"
#include "cards/mdiScheda.h"
#include "core/Principale.h"
#include "platform/runtime/Conversions.h"
#include "platform/runtime/Error.h"
#include "platform/toolkit/ReportList.h"
#include "platform/toolkit/TextBox.h"

#include <QApplication>
#include <QLocale>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace monkey {

namespace {

bool rowHolds(const QStringList& names, bool (*test)(const QString&)) {
    if (!SchedaCorpo::esiste())
        return false;
    const auto fields = SchedaCorpo::comune().findChildren<toolkit::TextBox*>();
    return std::any_of(fields.begin(), fields.end(), [&](const toolkit::TextBox* field) {
        return names.contains(field->objectName().section(u'_', 0, 0)) && test(field->text());
    });
}

bool beyond8Bits(const QString& text) {
    const double number = runtime::leadingNumber(text);
    return number < 0 || number > 255;
}

bool rowBeyond8Bits() {
    return rowHolds({u"recuperoMin"_s, u"recuperoSec"_s, u"serie"_s}, beyond8Bits);
}

/// The same in the page of one exercise, where minutes and seconds stand in one field.
bool recoveryBeyond8Bits() {
    if (!SchedaCorpo2::esiste())
        return false;
    const auto* field = SchedaCorpo2::comune().findChild<toolkit::TextBox*>(u"recupero"_s);
    return field != nullptr &&
           (beyond8Bits(field->text().section(u':', 0, 0)) || beyond8Bits(field->text().section(u':', 1)));
}

/// The seconds are no number.
bool secondsUnreadable() {
    return rowHolds({u"recuperoSec"_s}, [](const QString& text) {
        bool number = false;
        QLocale::c().toDouble(text.trimmed(), &number);
        return !number;
    });
}

/// The times of the exercises, or their sum in minutes or hours, go beyond 16 bits.
bool timesBeyond16Bits() {
    if (!mdiScheda::esiste() || !mdiScheda::comune().schedaAperta)
        return false;
    double worst = 0;
    double sum = 0;
    for (const auto& e : *mdiScheda::comune().schedaAperta->esercizi) {
        const double seconds = std::abs(e->serie * runtime::leadingNumber(e->durata));
        worst = std::max(worst, seconds);
        sum += seconds / 60 + e->serie * (e->recuperoMin + e->recuperoSec / 60.0);
    }
    constexpr double most = 32767;
    return worst > most || sum > most - 60;
}

/// The front window's list has no selected line.
bool nothingSelected() {
    const QWidget* front = QApplication::activeModalWidget();
    for (const QWidget* window : QApplication::topLevelWidgets()) // the report's own box is in front
        if (window->isVisible() && window->objectName().contains("Selezione"_L1))
            front = window;
    const auto* list = front == nullptr ? nullptr : front->findChild<toolkit::ReportList*>(u"LW"_s);
    return list != nullptr && !list->hasSelection();
}

struct End {
    int number;
    bool (*holds)();
    const char* why;
};

// Every error that the program lets through on purpose, and what must be so when it comes.
constexpr End ends[] = {
    {runtime::Overflow, rowBeyond8Bits, "a row's number beyond 8 bits is an error, never wrapped"},
    {runtime::Overflow, recoveryBeyond8Bits, "the same for the recovery of one exercise"},
    {runtime::Overflow, timesBeyond16Bits, "times beyond 16 bits are an error"},
    {runtime::TypeMismatch, secondsUnreadable,
     "leaving the seconds empty or with letters pasted in fails their strict conversion"},
    {runtime::ObjectNotSet, nothingSelected, "a command on the selected line, and none is selected"},
};

} // namespace

QString reasonOf(int number) {
    const auto* end = std::find_if(std::begin(ends), std::end(ends),
                                   [number](const End& e) { return e.number == number && e.holds(); });
    return end == std::end(ends) ? QString() : QString::fromLatin1(end->why);
}

} // namespace monkey
