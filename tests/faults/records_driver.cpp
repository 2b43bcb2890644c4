#include "cards/salvaComeModello.h"
#include "cards/scheda.h"
#include "platform/host/ProgramDirectory.h"
#include "platform/host/Services.h"
#include "templates/SchedaModello.h"

#include <QCoreApplication>

#include <sqlite3.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <random>

using namespace Qt::StringLiterals;

// records_driver FOLDER SEED: writes cards, deletes lines and cards and copies templates in that program's
// folder, without an end. Its standard output says "+SQL" as a statement begins to change the store and "-"
// once it has returned, each line in one write. A message box ends it: nothing may fail.

namespace {

void say(const QByteArray& line) {
    if (::write(STDOUT_FILENO, line.constData(), static_cast<std::size_t>(line.size())) != line.size())
        std::_Exit(EXIT_FAILURE); // nobody listens any more
}

int listen(unsigned event, void* /*context*/, void* statement, void* text) {
    auto* const prepared = static_cast<sqlite3_stmt*>(statement);
    const QByteArray sql = sqlite3_sql(prepared);
    if (sqlite3_stmt_readonly(prepared) != 0 || sql.startsWith("PRAGMA"))
        return 0;
    if (event == SQLITE_TRACE_PROFILE)
        say("-\n");
    else if (!QByteArray(static_cast<const char*>(text)).startsWith("--")) // a trigger tells of itself so
        say('+' + sql + '\n');
    return 0;
}

/// Every store that is opened is listened to.
int attach(sqlite3* store, char** /*error*/, const struct sqlite3_api_routines* /*routines*/) {
    return sqlite3_trace_v2(store, SQLITE_TRACE_STMT | SQLITE_TRACE_PROFILE, &listen, nullptr);
}

class NoBoxes : public host::Boxes {
public:
    host::Answer show(host::Icon /*icon*/, const QString& text, host::Buttons /*buttons*/) override {
        say("!" + text.toUtf8() + '\n');
        std::_Exit(EXIT_FAILURE);
    }
};

/// Writes, rewrites and deletes cards, and copies templates both ways as the editor does.
class Acts {
public:
    explicit Acts(unsigned seed) : random_(seed) {}

    void next() {
        const int act = upTo(5);
        scheda card;
        const qint32 key = anyOf(u"id_scheda"_s, u"schede"_s);
        if (key == 0 || act < 2) {
            if (act == 0) {
                SchedaModello from;
                from.carica(anyOf(u"id_Scheda"_s, u"schedeModello"_s));
                from.caricaEsercizi();
                from.travasaTo(card, false);
            }
            card.id_utente = 1;
            card.categoria = u"Forza"_s;
            card.PeriodoDal = u"01/02/2026"_s;
            rewrite(card);
        } else if (act == 2) {
            card.Elimina(key);
        } else if (card.carica(key)) {
            card.caricaEsercizi();
            act == 3 ? rewrite(card) : copyToTemplate(card);
        }
    }

private:
    int upTo(int count) { return static_cast<int>(random_() % static_cast<unsigned>(count)); }
    QString word() { return u"parola %1"_s.arg(random_()); }

    /// One of the keys that the store holds; 0 if there is none.
    qint32 anyOf(const QString& key, const QString& table) {
        store::Recordset rows = db::comune().getRs(u"SELECT "_s + key + u" FROM "_s + table);
        if (rows.RecordCount() == 0)
            return 0;
        for (int steps = upTo(rows.RecordCount()); steps > 0; --steps)
            rows.MoveNext();
        return rows(key).toInt32();
    }

    void rewrite(scheda& card) {
        if (card.esercizi->Count() > 0)
            card.EliminaEsercizio(static_cast<qint16>(1 + upTo(card.esercizi->Count())));
        for (int lines = 1 + upTo(4); lines > 0; --lines) {
            auto line = std::make_shared<Esercizio>();
            line->id_fig = 1 + upTo(4);
            line->serie = static_cast<quint8>(upTo(100));
            line->note = word();
            card.esercizi->Add(line);
        }
        card.note = word();
        card.save();
    }

    /// The template is stored empty first.
    void copyToTemplate(scheda& card) {
        SchedaModello fresh;
        fresh.descrizione = word();
        fresh.categoria = card.categoria;
        fresh.save();
        salvaComeModello(card, fresh);
    }

    std::mt19937 random_;
};

} // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 3) {
        std::fputs("records_driver FOLDER SEED\n", stderr);
        return EXIT_FAILURE;
    }
    sqlite3_auto_extension(reinterpret_cast<void (*)()>(&attach));
    NoBoxes boxes;
    host::setBoxes(&boxes);
    host::setProgramDirectory(arguments[1]);
    db::comune().dbName = u"splash.ps"_s;
    for (Acts acts(arguments[2].toUInt());;)
        acts.next();
}
