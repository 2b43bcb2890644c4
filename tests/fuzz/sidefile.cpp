#include "cards/FileSospeso.h"
#include "cards/GGAllenHELPER.h"
#include "cards/SchedaSospesa.h"
#include "cards/scheda.h"
#include "fuzz/Fuzz.h"
#include "platform/runtime/Dates.h"
#include "support/Errors.h"
#include "support/FakeControls.h"

#include <QTemporaryDir>

using namespace Qt::StringLiterals;

/// What is accepted must open: the windows raise at a date or at training days that are none, and the page
/// reads the lines that it stands on.
void fuzz::sidefile(const QByteArray& input) {
    static const QTemporaryDir folder;
    const FileSospeso file(folder.filePath(u"splash.ps.aperta"_s));
    require(file.scrivi(input) && file.leggi() == input, "the file gives back its bytes");

    const auto read = SchedaSospesa::leggi(input);
    if (!read)
        return;
    const auto again = SchedaSospesa::leggi(SchedaSospesa::file(read->stato(), read->ora));
    require(again && again->stato() == read->stato() && again->ora == read->ora,
            "what is accepted writes back to the same state");
    const int lines = read->scheda->esercizi->Count();
    require(lines <= 32767 && read->eliminati.size() <= 32767, "the lines can be counted in 16 bits");
    if (const auto* card = dynamic_cast<const scheda*>(read->scheda.get())) {
        FakeCheckList list(9);
        require(errorOf([&] {
                    GGAllenHELPER::scriviGGAllen(card->GGAllen, list);
                    runtime::textToDate(card->PeriodoDal);
                    return runtime::textToDate(card->PeriodoAl);
                }) == 0,
                "days and period can be shown");
    }
    if (read->pagina) {
        const auto rows = static_cast<qint64>(read->pagina->righe.size());
        require(rows > 0 && (read->pagina->posizione - 1) * rows <= lines &&
                    read->pagina->massimo * rows < lines + 2 * rows,
                "the page stands in the list or on the screen behind it");
    }
}
