#include "monkey/Seen.h"

#include "cards/mdiScheda.h"
#include "cards/scheda.h"
#include "platform/runtime/Conversions.h"
#include "platform/toolkit/CheckListBox.h"
#include "platform/toolkit/Form.h"
#include "templates/SchedaModello.h"

#include <QJsonArray>
#include <QMetaProperty>
#include <QRegularExpression>
#include <QWidget>

using namespace Qt::StringLiterals;

namespace monkey {

namespace {

/// Nothing for what is no field. Half a date typed is no other date yet.
QVariant value(const QWidget& control) {
    if (const auto* days = qobject_cast<const toolkit::CheckListBox*>(&control)) {
        QString ticks;
        for (int day = 0; day < days->count(); ++day)
            ticks += days->checked(day) ? u'1' : u'0';
        return ticks;
    }
    if (control.inherits("QTabBar"))
        return control.property("currentIndex");
    return control.objectName().startsWith("nEsercizio_"_L1)
               ? control.property("text")
               : control.metaObject()->userProperty().read(&control);
}

} // namespace

QJsonObject seen() {
    static const QRegularExpression pages(u"^(SchedaIntestazione|SchedaCorpo$)"_s);
    static const QRegularExpression named(u"^(?!qt_|VS$)."_s); // the rows tell where the list stands
    if (!mdiScheda::esiste() || !mdiScheda::comune().isVisible() || !mdiScheda::comune().schedaAperta)
        return {};
    const auto& editor = mdiScheda::comune();
    const SchedaApribile& card = *editor.schedaAperta;
    QJsonObject all{{"template"_L1, card.isModello},
                    {"note"_L1, card.note},
                    {"key"_L1, card.id_scheda},
                    {"lines"_L1, card.esercizi->Count()}};
    for (const auto& e : *card.esercizi)
        all.insert(u"line %1"_s.arg(all.size()),
                   QJsonArray{e->id_fig, e->durata, e->frequenza, e->ampiezza, e->recuperoMin, e->recuperoSec,
                              e->serie, e->modalita, e->peso, e->note, e->isLibero});
    for (const toolkit::Form* page : editor.findChildren<toolkit::Form*>()) {
        if (!page->isLoaded() || !pages.match(page->objectName()).hasMatch())
            continue;
        for (const QWidget* control : page->findChildren<QWidget*>(named))
            if (const QVariant shown = value(*control); shown.isValid())
                all.insert(page->objectName() + u'/' + control->objectName(), QJsonValue::fromVariant(shown));
    }
    // What was typed there and not chosen is no part of the card: it is refused on leaving the field. A
    // frequency of 0 shows as the usual 3 whenever the page loads.
    if (runtime::wholeByte(all["SchedaIntestazione/FreqAllen"_L1].toString()).value_or(0) == 0)
        all.remove("SchedaIntestazione/FreqAllen"_L1);
    if (all["SchedaIntestazione/categoria"_L1] != card.categoria)
        all.remove("SchedaIntestazione/categoria"_L1);
    return all;
}

QString windowOf(const QWidget& control) {
    for (const QWidget* widget = &control; widget != nullptr; widget = widget->parentWidget())
        if (widget->inherits("toolkit::Form") || widget->inherits("QDialog"))
            return widget->objectName();
    return QString::fromLatin1(control.window()->metaObject()->className());
}

} // namespace monkey
