#include "cards/salvaComeModello.h"
#include "cards/scheda.h"
#include "platform/host/ProgramDirectory.h"
#include "support/ScriptedBoxes.h"
#include "templates/SchedaModello.h"

#include <QCoreApplication>

#include <cstdlib>
#include <random>

using namespace Qt::StringLiterals;

namespace {

/// Writes, rewrites or deletes a card, or copies a template one way or the other as the editor does.
void act(std::mt19937& random) {
    const auto upTo = [&random](unsigned count) { return static_cast<int>(random() % count); };
    const auto word = [&random] { return u"parola %1"_s.arg(random()); };
    const auto anyOf = [&](const QString& key, const QString& table) { // 0 if the store holds none
        const auto rows = db::comune().getRs(
            u"SELECT %1 FROM %2 ORDER BY %1 * %3 % 101 LIMIT 1"_s.arg(key, table).arg(upTo(100)));
        return rows.RecordCount() == 0 ? 0 : rows(key).toInt32();
    };
    scheda card;
    const qint32 key = anyOf(u"id_scheda"_s, u"schede"_s);
    const int what = upTo(key == 0 ? 2 : 5);
    if (what == 2) {
        card.Elimina(key);
        return;
    }
    SchedaModello model;
    if (what == 0) {
        model.carica(anyOf(u"id_Scheda"_s, u"schedeModello"_s));
        model.caricaEsercizi();
        model.travasaTo(card, false);
    } else if (what > 2) {
        card.carica(key);
        card.caricaEsercizi();
    }
    card.id_utente = 1;
    card.categoria = u"Forza"_s;
    card.PeriodoDal = u"01/02/2026"_s;
    card.note = word();
    if (what == 4) { // the template is stored empty first
        model.descrizione = word();
        model.categoria = card.categoria;
        model.save();
        salvaComeModello(card, model);
        return;
    }
    if (card.esercizi->Count() > 0)
        card.EliminaEsercizio(static_cast<qint16>(1 + upTo(static_cast<unsigned>(card.esercizi->Count()))));
    for (int lines = 1 + upTo(4); lines > 0; --lines) {
        auto line = std::make_shared<Esercizio>();
        line->id_fig = 1 + upTo(4);
        line->serie = static_cast<quint8>(upTo(100));
        line->note = word();
        card.esercizi->Add(line);
    }
    card.save();
}

} // namespace

/// records_driver FOLDER SEED: acts in that program's folder until it is killed. A message box ends it:
/// nothing may fail.
int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    ScriptedBoxes boxes;
    boxes.onUnexpected = [](const QString& text) {
        qCritical("%s", qPrintable(text)), std::_Exit(EXIT_FAILURE);
    };
    host::setProgramDirectory(arguments.value(1));
    db::comune().dbName = u"splash.ps"_s;
    std::mt19937 random(arguments.value(2).toUInt());
    for (int acts = 0; acts < 1000; ++acts) // some more than it lives for
        act(random);
}
