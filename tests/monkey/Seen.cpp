#include "monkey/Seen.h"

#include "cards/mdiScheda.h"
#include "cards/scheda.h"
#include "platform/runtime/Conversions.h"
#include "platform/runtime/Dates.h"
#include "platform/toolkit/CheckListBox.h"
#include "platform/toolkit/Combo.h"
#include "platform/toolkit/DatePicker.h"
#include "platform/toolkit/Form.h"
#include "platform/toolkit/Label.h"
#include "platform/toolkit/TabStrip.h"
#include "platform/toolkit/TextArea.h"
#include "platform/toolkit/TextBox.h"
#include "templates/SchedaModello.h"

#include <QDialog>
#include <QJsonArray>

using namespace Qt::StringLiterals;

namespace monkey {

namespace {

/// Nothing for what is no field.
QJsonValue value(const QWidget& control) {
    if (const auto* line = qobject_cast<const toolkit::TextBox*>(&control))
        return line->text();
    if (const auto* area = qobject_cast<const toolkit::TextArea*>(&control))
        return area->text();
    if (const auto* combo = qobject_cast<const toolkit::Combo*>(&control))
        return combo->text();
    if (const auto* date = qobject_cast<const toolkit::DatePicker*>(&control))
        return runtime::dateText(date->value()); // half a date typed is no other date yet
    if (const auto* tabs = qobject_cast<const toolkit::TabStrip*>(&control))
        return tabs->selectedIndex();
    if (const auto* days = qobject_cast<const toolkit::CheckListBox*>(&control)) {
        QString ticks;
        for (int day = 0; day < days->count(); ++day)
            ticks += days->checked(day) ? u'1' : u'0';
        return ticks;
    }
    if (control.objectName().startsWith("nEsercizio_"_L1))
        return static_cast<const toolkit::Label&>(control).caption();
    return QJsonValue::Undefined;
}

QJsonArray lines(const SchedaApribile& card) {
    QJsonArray all;
    for (const auto& e : *card.esercizi)
        all.append(QStringList{QString::number(e->id_fig), e->durata, e->frequenza, e->ampiezza,
                               QString::number(e->recuperoMin), QString::number(e->recuperoSec),
                               QString::number(e->serie), e->modalita, e->peso, e->note,
                               QString::number(e->isLibero)}
                       .join(u'|'));
    return all;
}

} // namespace

QJsonObject seen() {
    if (!mdiScheda::esiste() || !mdiScheda::comune().isVisible() || !mdiScheda::comune().schedaAperta)
        return {};
    const auto& editor = mdiScheda::comune();
    QJsonObject fields;
    for (const toolkit::Form* page : editor.findChildren<toolkit::Form*>()) {
        const QString name = page->objectName();
        if (!page->isLoaded() || (!name.startsWith("SchedaIntestazione"_L1) && name != u"SchedaCorpo"))
            continue;
        for (const QWidget* control : page->findChildren<QWidget*>()) {
            const QJsonValue text = value(*control);
            if (!text.isUndefined())
                fields.insert(name + u'/' + control->objectName(), text);
        }
    }
    const SchedaApribile& card = *editor.schedaAperta;
    // What was typed there and not chosen is no part of the card: it is refused on leaving the field. A
    // frequency of 0 shows as the usual 3 whenever the page loads.
    if (runtime::wholeByte(fields["SchedaIntestazione/FreqAllen"_L1].toString()).value_or(0) == 0)
        fields.remove("SchedaIntestazione/FreqAllen"_L1);
    if (fields["SchedaIntestazione/categoria"_L1] != card.categoria)
        fields.remove("SchedaIntestazione/categoria"_L1);
    return {{"fields"_L1, fields},
            {"lines"_L1, lines(card)},
            {"template"_L1, card.isModello},
            {"note"_L1, card.note},
            {"key"_L1, card.id_scheda}};
}

QStringList lost(const QJsonObject& before, const QJsonObject& now) {
    QStringList all;
    const auto compare = [&all](const QString& name, const QJsonValue& was, const QJsonValue& is) {
        if (was != is)
            all += u"%1 was %2 and is %3"_s.arg(name, was.toVariant().toString(), is.toVariant().toString());
    };
    for (const QString& name : {u"template"_s, u"note"_s, u"key"_s})
        compare(name, before[name], now[name]);
    const QJsonObject fields = before["fields"_L1].toObject();
    for (auto field = fields.begin(); field != fields.end(); ++field)
        compare(field.key(), field.value(), now["fields"_L1].toObject()[field.key()]);
    const QJsonArray was = before["lines"_L1].toArray();
    const QJsonArray is = now["lines"_L1].toArray();
    compare(u"lines"_s, was.size(), is.size());
    for (qsizetype i = 0; i < std::min(was.size(), is.size()); ++i)
        compare(u"line %1"_s.arg(i + 1), was[i], is[i]);
    return all;
}

QString windowOf(const QWidget& control) {
    for (const QWidget* widget = &control; widget != nullptr; widget = widget->parentWidget())
        if (qobject_cast<const toolkit::Form*>(widget) != nullptr ||
            qobject_cast<const QDialog*>(widget) != nullptr)
            return widget->objectName();
    return QString::fromLatin1(control.window()->metaObject()->className());
}

QString nameOf(const QWidget& control) {
    if (!control.objectName().isEmpty() && !control.objectName().startsWith("qt_"_L1))
        return control.objectName();
    const QString own = QString::fromLatin1(control.metaObject()->className());
    return control.parentWidget() == nullptr ? own : nameOf(*control.parentWidget()) + u'.' + own;
}

} // namespace monkey
