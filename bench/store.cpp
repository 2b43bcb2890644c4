// Lists and cards against the bare store: the same statements, each prepared from its text.

#include "Bare.h"
#include "Desk.h"
#include "Table.h"
#include "World.h"

#include "athletes/UtentiSelezione.h"
#include "cards/SchedeSelezione.h"
#include "cards/scheda.h"
#include "templates/RaccoglitoreModelli.h"

#include <map>
#include <memory>

using namespace std::string_literals;

namespace {

const std::string lists[] = {"100", "1,000", "10,000"};
constexpr int sizes[] = {100, 1000, 10000};
constexpr int cardSizes[] = {10, 100, 1000};
constexpr int savings = 3; // each statement waits for the disk

/// One folder for each size, made when first asked for.
bench::World& world(int size) {
    static std::map<int, std::unique_ptr<bench::World>> worlds;
    auto& one = worlds[size];
    if (!one)
        one = std::make_unique<bench::World>(
            bench::Size{.athletes = size, .cards = size, .templates = size, .figures = 10});
    one->use();
    return *one;
}

/// The keys that `keys` gives, then one query for each.
bench::Measure loop(int size, const std::string& keys, const std::string& one) {
    return [=](benchmark::State& state) {
        const bench::Bare store(world(size).store());
        while (state.KeepRunning())
            for (const int key : store.keys(keys))
                store.read(one + std::to_string(key));
    };
}

void addLists() {
    for (int i = 0; i < 3; ++i) {
        const int size = sizes[i];
        bench::add({"list of "s + lists[i] + " athletes, shown", size == 10000 ? "<= 3 x" : "",
                    [size](benchmark::State& state) {
                        world(size);
                        auto& window = UtentiSelezione::comune();
                        window.show();
                        while (state.KeepRunning()) {
                            window.FillListAtleti();
                            bench::Desk::settle();
                        }
                    },
                    loop(size, "SELECT id_utente FROM UTENTI", "SELECT * From UTENTI WHERE id_utente = "),
                    size});
    }
    for (int i = 0; i < 3; ++i) {
        const int size = sizes[i];
        bench::add({"list of "s + lists[i] + " cards, shown", "",
                    [size](benchmark::State& state) {
                        world(size);
                        auto& window = SchedeSelezione::comune();
                        window.idUtenteLista = 1;
                        window.show();
                        while (state.KeepRunning()) {
                            window.fillList();
                            bench::Desk::settle();
                        }
                    },
                    loop(size, "SELECT id_scheda FROM schede WHERE id_utente = 1",
                         "SELECT * From vw_schedacompleta WHERE id_scheda = "),
                    size});
    }
    for (int i = 0; i < 3; ++i) {
        const int size = sizes[i];
        bench::add({lists[i] + " templates loaded", "",
                    [size](benchmark::State& state) {
                        world(size);
                        while (state.KeepRunning()) {
                            RaccoglitoreModelli all;
                            all.caricaSchede();
                        }
                    },
                    loop(size, "SELECT id_scheda FROM schedeModello",
                         "SELECT * From vw_schedaModellocompleta WHERE id_scheda = "),
                    size});
    }
}

/// A world of its own, in which the card of that many lines is the one that `key` names.
struct Card {
    explicit Card(int lines) : world({.figures = 10}), key(world.card(lines)) {}
    bench::World world;
    int key;
};

Card& card(int lines) {
    static std::map<int, std::unique_ptr<Card>> cards;
    auto& one = cards[lines];
    if (!one)
        one = std::make_unique<Card>(lines);
    one->world.use();
    return *one;
}

void openOurs(benchmark::State& state, int lines) {
    const Card& stored = card(lines);
    while (state.KeepRunning()) {
        scheda open;
        open.carica(stored.key);
        open.caricaEsercizi();
    }
}

void openRaw(benchmark::State& state, int lines) {
    const Card& stored = card(lines);
    const bench::Bare store(stored.world.store());
    const std::string key = std::to_string(stored.key);
    while (state.KeepRunning()) {
        store.read("SELECT * From vw_schedacompleta WHERE id_scheda = " + key);
        for (const int line :
             store.keys("SELECT ct FROM Esercizi WHERE id_scheda = " + key + " ORDER BY Nprog ASC"))
            store.read("SELECT * From Esercizi WHERE ct = " + std::to_string(line));
    }
}

void saveOurs(benchmark::State& state, int lines) {
    const Card& stored = card(lines);
    scheda open;
    open.carica(stored.key);
    open.caricaEsercizi();
    while (state.KeepRunning())
        open.save();
}

void saveRaw(benchmark::State& state, int lines) {
    const Card& stored = card(lines);
    const bench::Bare store(stored.world.store());
    const std::string key = std::to_string(stored.key);
    const auto rows = store.keys("SELECT ct FROM Esercizi WHERE id_scheda = " + key + " ORDER BY Nprog ASC");
    while (state.KeepRunning()) {
        store.read("SELECT id_cat FROM categorie WHERE nome = 'Forza'");
        store.run("UPDATE schede SET id_utente= '1',istruttore = 'Anna Bianchi',periododal = '2026-11-02',"
                  "periodoal = '2026-11-30',id_cat=1 ,obiettivo='Forza',freqAllen=2,GGAllen='001010100',"
                  "[note]='Bere molto' WHERE id_scheda=" +
                  key);
        int place = 0;
        for (const int row : rows)
            store.run("UPDATE Esercizi SET NProg = " + std::to_string(++place) + ",ID_Scheda = " + key +
                      ",ID_Fig = 1,Durata = '45s',Frequenza = '40Hz',Ampiezza = 'H',RecuperoMin = 1,"
                      "RecuperoSec = 20,Serie = 3,Modalita = 'Combinata',peso = '5 kg',isLibero = FALSE,"
                      "[Note]='Tenere la schiena diritta e non bloccare le ginocchia, riga 1' WHERE ct=" +
                      std::to_string(row));
    }
}

void addCards() {
    for (const int lines : cardSizes)
        bench::add({"card of " + std::to_string(lines) + " exercises opened", "",
                    [lines](benchmark::State& state) { openOurs(state, lines); },
                    [lines](benchmark::State& state) { openRaw(state, lines); }, lines});
    for (const int lines : cardSizes)
        bench::add({"card of " + std::to_string(lines) + " exercises saved (wall)", "",
                    [lines](benchmark::State& state) { saveOurs(state, lines); },
                    [lines](benchmark::State& state) { saveRaw(state, lines); }, lines, bench::Clock::Wall,
                    savings});
}

} // namespace

int main(int argc, char** argv) {
    const bench::Desk desk;
    addLists();
    addCards();
    return bench::run(argc, argv);
}
