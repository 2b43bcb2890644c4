#include "monkey/Ends.h"

#include "cards/SchedaApribile.h"
#include "cards/mdiScheda.h"
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

/// Whether a field of the exercise pages bears one of the names and holds such a text. In the page of one
/// exercise minutes and seconds stand in one field.
bool fieldHolds(const QStringList& names, bool (*test)(const QString&)) {
    QStringList texts;
    for (const QWidget* widget : QApplication::allWidgets())
        if (const auto* field = qobject_cast<const toolkit::TextBox*>(widget);
            field != nullptr && names.contains(field->objectName().section(u'_', 0, 0)))
            texts += field->text().split(u':');
    return std::any_of(texts.begin(), texts.end(), test);
}

bool rowBeyond8Bits() {
    return fieldHolds({u"recuperoMin"_s, u"recuperoSec"_s, u"serie"_s, u"recupero"_s},
                      [](const QString& text) {
                          const double number = runtime::leadingNumber(text);
                          return number < 0 || number > 255;
                      });
}

bool secondsUnreadable() {
    return fieldHolds({u"recuperoSec"_s}, [](const QString& text) {
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

} // namespace

QString reasonOf(int number) {
    if (number == runtime::Overflow && rowBeyond8Bits())
        return u"a row's number beyond 8 bits is an error, never wrapped"_s;
    if (number == runtime::Overflow && timesBeyond16Bits())
        return u"times beyond 16 bits are an error"_s;
    if (number == runtime::TypeMismatch && secondsUnreadable())
        return u"leaving the seconds empty or with letters pasted in fails their strict conversion"_s;
    if (number == runtime::ObjectNotSet && nothingSelected())
        return u"a command on the selected line, and none is selected"_s;
    return {};
}

} // namespace monkey
