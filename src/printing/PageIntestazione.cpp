// The header of a sheet: athlete, instructor, period, frequency, days and the gym's logo.

#include "athletes/utente.h"
#include "cards/GGAllenHELPER.h"
#include "cards/scheda.h"
#include "desktop/palestra.h"
#include "figures/RidimensionatoreImmagini.h"
#include "printing/ElementBox.h"
#include "printing/Page.h"
#include "printing/percorsoLogo.h"

#include <array>

using namespace Qt::StringLiterals;

namespace {

struct Row {
    const char* value;
    const char* label; ///< nullptr: the value stands at the left edge.
};

constexpr std::array rows{Row{"utente", "UtenteEti"}, Row{"Istruttore", "istruttoreEti"},
                          Row{"Periodo", "periodoEti"}, Row{"FreqAllen", nullptr},
                          Row{"GGAllen", "GGAllenEti"}};

} // namespace

void Page::scriviIntestazione() {
    scriviTestiIntestazione();
    collocaIntestazione();
    nascondiRigheIntestazione();
    caricaLogo();
}

void Page::scriviTestiIntestazione() {
    el("utente").text = scheda->cognomeUtente + u' ' + scheda->nomeUtente;
    el("Istruttore").text = scheda->Istruttore;
    el("FreqAllen").text = u"Frequenza di allenamento: %1 giorni la settimana"_s.arg(int(scheda->FreqAllen));
    el("GGAllen").text = GGAllenHELPER::descrizioneGGAllen(scheda->GGAllen);
    el("Periodo").text = scheda->PeriodoDal + u" - "_s + scheda->PeriodoAl;
    el("NoteFinali").text = scheda->note;
}

void Page::collocaIntestazione() {
    const double x = cmToTwip(1);
    double y = cmToTwip(0.5);
    for (const Row& row : rows) {
        sheet::Element& value = el(row.value);
        value.left = x;
        value.top = y;
        value.visible = true;
        if (row.label) {
            sheet::Element& label = el(row.label);
            label.left = x;
            label.top = y;
            label.visible = true;
            value.left = x + label.width;
        }
        y += value.height;
    }
    // Deliberately 100 twips right of the centre.
    sheet::Element& rule = el("linea");
    rule.top = y + 20;
    rule.left = 100 + (canvas->width / 2 - rule.width / 2);
}

/// A hidden row keeps its place: the header's height never changes.
void Page::nascondiRigheIntestazione() {
    const QString days = el("GGAllen").text;
    const bool daily = days == QLatin1String("GIORNALIERO");
    const bool none = days == QLatin1String("NESSUNO");
    if (days.isEmpty() || daily || none) {
        el("GGAllen").visible = false;
        el("GGAllenEti").visible = false;
    }
    if (none)
        el("FreqAllen").visible = false;
    if (daily)
        el("FreqAllen").text = u"Frequenza di allenamento: ad ogni seduta"_s;
}

void Page::caricaLogo() {
    constexpr double largestSide = 2300;
    sheet::Element& logo = el("logoPalestra");
    logo.visible = false;
    palestra gym;
    gym.carica();
    if (gym.logo.isEmpty())
        return;

    const QString file = percorsoLogo(gym.logo);
    const QSizeF own = QSizeF(sheet::Picture::ownSize(file)) * sheet::twipsPerPixel;
    // Back to the picture's own size and to its home place, at every load.
    logo.left = cmToTwip(15);
    logo.top = cmToTwip(0.3);
    logo.width = own.width();
    logo.height = own.height();

    sheet::ElementBox box(logo);
    RidimensionatoreImmagini resizer;
    resizer.MAX = largestSide;
    resizer.setImage(box);
    resizer.ridimensiona();
    canvas->load(logo, file);
}
