// The card editor: a key until it shows, the side file behind it, and a change of the figure filter.

#include "Bare.h"
#include "Desk.h"
#include "Table.h"
#include "World.h"

#include "cards/Esercizio.h"
#include "cards/RipresaScheda.h"
#include "cards/SchedaApribile.h"
#include "cards/SchedaCorpo.h"
#include "cards/mdiScheda.h"
#include "core/variabiliGlobali.h"
#include "figures/SchedaSelezioneFIGURE.h"
#include "figures/TreeViewHelper.h"
#include "platform/toolkit/ImageTree.h"
#include "platform/toolkit/TabStrip.h"

#include <QFile>
#include <QPlainTextEdit>
#include <QTest>
#include <QTreeWidget>

#include <fcntl.h>
#include <map>
#include <memory>
#include <stdexcept>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace std::string_literals;

namespace {

constexpr int manyFigures = 1000;
constexpr int cardSizes[] = {10, 40, 100, 1000};
constexpr int treeSizes[] = {100, 300, 1000, 3000};

bench::World& world() {
    static bench::World one({.figures = manyFigures});
    return one;
}

/// Opens the editor on a card of that many lines, unless it is the one that stands open.
SchedaCorpo& page(int lines) {
    static std::map<int, int> keys;
    static int open = 0;
    if (open != lines) {
        world().use();
        int& key = keys[lines];
        if (key == 0)
            key = world().card(lines);
        mdiScheda& editor = mdiScheda::comune();
        if (open != 0) {
            editor.puoiChiudere = true;
            editor.unload();
            bench::Desk::settle();
        }
        variabiliGlobali::idUtenteSelezionato = 1;
        variabiliGlobali::idSchedaSelezionata = key;
        editor.mostra();
        open = lines;
    }
    bench::Desk::settle();
    return SchedaCorpo::comune();
}

/// The observer that keeps the open card in its side file, as in the running program.
class SideFile {
public:
    SideFile() {
        toolkit::Application::setEventObserver([this](bool /*fatal*/) { file_.dopoEvento(); });
    }
    ~SideFile() { toolkit::Application::setEventObserver({}); }
    SideFile(const SideFile&) = delete;
    SideFile& operator=(const SideFile&) = delete;

private:
    RipresaScheda file_;
};

/// A letter, then its removal: each is one iteration.
void type(benchmark::State& state, QWidget& field, Qt::Key letter) {
    bool typed = false;
    while (state.KeepRunning()) {
        QTest::keyClick(&field, typed ? Qt::Key_Backspace : letter);
        bench::Desk::settle();
        typed = !typed;
    }
    if (typed)
        QTest::keyClick(&field, Qt::Key_Backspace);
}

bench::Measure typing(int lines, const QString& field, Qt::Key letter, bool sideFile = true) {
    return [=](benchmark::State& state) {
        QWidget& widget = *page(lines).findChild<QWidget*>(field);
        const auto file = sideFile ? std::make_unique<SideFile>() : nullptr;
        type(state, widget, letter);
    };
}

/// The same key in a field that nothing stands behind.
void typeBare(benchmark::State& state) {
    QWidget window;
    QPlainTextEdit field(&window);
    window.show();
    bench::Desk::settle();
    type(state, field, Qt::Key_A);
}

void addKeys() {
    bench::add({"a letter in the notes, 40 exercises, until shown", "<= 16 ms",
                typing(40, u"note_0"_s, Qt::Key_A), typeBare});
    bench::add({"a digit in the recovery, 40 exercises, until shown", "<= 16 ms",
                typing(40, u"recuperoMin_0"_s, Qt::Key_1), typeBare});
    bench::add({"a letter in the notes, 1,000 exercises, until shown", "",
                typing(1000, u"note_0"_s, Qt::Key_A), typeBare});
    bench::add({"the letter with the side file (raw: without), 40", "", typing(40, u"note_0"_s, Qt::Key_A),
                typing(40, u"note_0"_s, Qt::Key_A, false)});
}

/// A change of the open card each time, then what follows each event.
void writeSideFile(benchmark::State& state, int lines, bool changed) {
    page(lines);
    RipresaScheda file;
    Esercizio& line = *mdiScheda::comune().schedaAperta->esercizi->Item(lines / 2 + 1);
    const QString notes = line.note;
    file.dopoEvento();
    bool odd = false;
    while (state.KeepRunning()) {
        if (changed) {
            odd = !odd;
            line.note = odd ? notes + u'.' : notes;
        }
        file.dopoEvento();
    }
    line.note = notes;
}

/// As many bytes written to a new file that takes the name of the old one.
void writeBytes(benchmark::State& state, int lines) {
    page(lines);
    RipresaScheda().dopoEvento();
    const QByteArray name = QFile::encodeName(world().store()) + ".aperta";
    QFile written(QFile::decodeName(name));
    if (!written.open(QIODevice::ReadOnly))
        throw std::runtime_error("no side file");
    const QByteArray bytes = written.readAll();
    const QByteArray fresh = name + ".raw";
    const QByteArray target = name + ".raw2";
    while (state.KeepRunning()) {
        const int file =
            ::open(fresh.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, S_IRUSR | S_IWUSR);
        const bool whole =
            ::write(file, bytes.constData(), static_cast<std::size_t>(bytes.size())) == bytes.size();
        if (::close(file) != 0 || !whole || ::rename(fresh.constData(), target.constData()) != 0)
            throw std::runtime_error("cannot write");
    }
}

void addSideFile() {
    for (const int lines : cardSizes)
        bench::add({"side file of a changed card, " + std::to_string(lines) + " exercises", "",
                    [lines](benchmark::State& state) { writeSideFile(state, lines, true); },
                    [lines](benchmark::State& state) { writeBytes(state, lines); }, lines});
    for (const int lines : cardSizes)
        bench::add({"side file, nothing changed, " + std::to_string(lines) + " exercises",
                    "",
                    [lines](benchmark::State& state) { writeSideFile(state, lines, false); },
                    {},
                    lines});
}

/// The selection window on its list of groups.
SchedaSelezioneFIGURE& selection() {
    page(cardSizes[0]);
    auto& window = SchedaSelezioneFIGURE::comune();
    window.findChild<toolkit::TabStrip*>(u"TabStrip1"_s)->select(1);
    bench::Desk::settle();
    return window;
}

void choose(toolkit::ImageTree& groups, const QString& key) {
    groups.select(key);
    Q_EMIT groups.nodeClick(key);
    bench::Desk::settle();
}

/// Changes to one group and to another in turn, untimed unless it is `timed`.
void changeFilter(benchmark::State& state, bool toAll) {
    auto& groups = *selection().findChild<toolkit::ImageTree*>(u"twFolder"_s);
    const QString all = groups.nodeKey(1);
    const QString group = groups.nodeKey(3);
    const QString other = groups.nodeKey(4);
    while (state.KeepRunning()) {
        state.PauseTiming();
        choose(groups, other);
        state.ResumeTiming();
        choose(groups, toAll ? all : group);
    }
}

/// The rows read and a plain tree filled with as many lines of text.
void fillBare(benchmark::State& state, bool all) {
    const bench::Bare store(world().store());
    QTreeWidget tree;
    tree.setUniformRowHeights(true);
    tree.show();
    bench::Desk::settle();
    while (state.KeepRunning()) {
        tree.hide();
        tree.clear();
        int rows = store.read(all ? "SELECT * FROM figure WHERE ID_MAC = 'QUIVR' ORDER BY NUMERO"
                                  : "SELECT * FROM vw_figure_muscoli WHERE ID_MAC = 'QUIVR' ORDER BY NUMERO");
        store.read("SELECT  * FROM muscoli ORDER BY NOME");
        for (rows = all ? rows : rows / 20; rows > 0; --rows)
            tree.addTopLevelItem(new QTreeWidgetItem({u"[%1]"_s.arg(rows)}));
        tree.show();
        bench::Desk::settle();
    }
}

/// A fill's look-ups for an existing key: one for each node, over the nodes that stand already.
void lookUp(benchmark::State& state, int nodes) {
    std::vector<QString> keys;
    keys.reserve(static_cast<std::size_t>(nodes));
    for (int i = 0; i < nodes; ++i)
        keys.push_back(u"%1\\images\\banco\\%2.jpg"_s.arg(world().folder()).arg(i, 4, 10, QChar(u'0')));
    while (state.KeepRunning()) {
        toolkit::ImageTree tree(u"albero"_s, nullptr);
        for (const QString& key : keys)
            if (!TreeViewHelper::esisteChiave(tree, key))
                tree.addNode(key, u"[1]"_s, key);
    }
}

void addFilter() {
    bench::add({"figure filter to all of 1,000", "<= 100 ms",
                [](benchmark::State& state) { changeFilter(state, true); },
                [](benchmark::State& state) { fillBare(state, true); }});
    bench::add({"figure filter to one group of 1,000", "<= 100 ms",
                [](benchmark::State& state) { changeFilter(state, false); },
                [](benchmark::State& state) { fillBare(state, false); }});
    for (const int nodes : treeSizes)
        bench::add({"thumbnails added, each looked up first, " + std::to_string(nodes),
                    "quadratic",
                    [nodes](benchmark::State& state) { lookUp(state, nodes); },
                    {},
                    nodes});
}

} // namespace

int main(int argc, char** argv) {
    const bench::Desk desk;
    world().use();
    mdiScheda::comune().load();
    addKeys();
    addSideFile();
    addFilter();
    return bench::run(argc, argv);
}
