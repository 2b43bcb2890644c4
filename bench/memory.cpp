// Memory of one run: the editor opened on a card, edited and left, again and again. A number as the argument
// ends it after so many times, for a leak checker.

#include "Desk.h"
#include "Table.h"
#include "World.h"

#include "cards/SchedaCorpo.h"
#include "cards/mdiScheda.h"
#include "core/variabiliGlobali.h"

#include <QAbstractButton>
#include <QFile>
#include <QPixmapCache>
#include <QTest>

#include <array>
#include <malloc.h>
#include <string>

using namespace Qt::StringLiterals;
using namespace std::string_literals;

namespace {

constexpr int lines = 40;

double resident() {
    QFile status(u"/proc/self/status"_s);
    if (status.open(QIODevice::ReadOnly))
        for (const QByteArray& line : status.readAll().split('\n'))
            if (line.startsWith("VmRSS:"))
                return line.simplified().split(' ').at(1).toDouble() / 1024;
    return 0;
}

/// What the program has asked for and not given back, but for the toolkit's cache of pixmaps, which fills up
/// to its limit of 10 MiB and stays there; MiB.
double inUse() {
    QPixmapCache::clear();
    const auto info = mallinfo2();
    return double(info.uordblks + info.hblkhd) / (1024 * 1024);
}

void openAndClose(int card) {
    variabiliGlobali::idUtenteSelezionato = 1;
    variabiliGlobali::idSchedaSelezionata = card;
    mdiScheda::comune().mostra();
    bench::Desk::settle();
    QTest::keyClick(SchedaCorpo::comune().findChild<QWidget*>(u"note_0"_s), Qt::Key_A);
    bench::Desk::settle();
    mdiScheda::comune().findChild<QAbstractButton*>(u"fine"_s)->click(); // the question is answered with No
    bench::Desk::settle();
}

} // namespace

int main(int argc, char** argv) {
    const int last = argc > 1 ? std::stoi(argv[1]) : 200;
    const bench::Desk desk;
    const bench::World world({});
    world.use();
    const int card = world.card(lines);
    mdiScheda::comune().load();
    double before = 0;
    double heapBefore = 0;
    int done = 0;
    for (const int times : std::array{last / 10, last / 2, last}) {
        for (; done < times; ++done)
            openAndClose(card);
        if (before == 0) {
            before = resident();
            heapBefore = inUse();
        }
        std::string figure = "after the editor was open ";
        figure += std::to_string(times);
        figure += " times (raw: " + std::to_string(last / 10);
        figure += ')';
        bench::print("resident " + figure, resident(), before, "MiB", "flat");
        bench::print("heap in use, pixmap cache left out, " + figure, inUse(), heapBefore, "MiB", "flat");
    }
}
