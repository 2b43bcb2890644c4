#include "printing/Page.h"

#include "cards/Esercizio.h"
#include "cards/scheda.h"
#include "platform/host/ProgramDirectory.h"
#include "platform/runtime/Conversions.h"
#include "printing/SuperficieScheda.h"
#include "printing/cTime.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int colonne = 2;
constexpr int righeMassime = (sheet::blocchiPerFoglio + 1) / colonne;

/// Left edge of every row but the last, and the gap between the two columns, in cm.
constexpr double margineRighe = 0.9;
constexpr double distanzaColonne = 0.4;

int righe(int esercizi) {
    return (esercizi + 1) / colonne;
}

} // namespace

void Page::setCanvas(sheet::PreviewWindow& window) {
    finestra = &window;
    canvas = &window.canvas();
    impostaCanvas();
    scriviIntestazione();
    scriviEsercizi();
    setPiePagina();
}

sheet::Element& Page::el(const char* name, int index) const {
    return canvas->element(QString::fromLatin1(name), index);
}

double Page::cmToTwip(double cm) {
    return cm * sheet::twipsPerCm;
}

double Page::twipToCm(double twip) {
    return twip / sheet::twipsPerCm;
}

void Page::impostaCanvas() {
    canvas->width = cmToTwip(20);
    canvas->height = cmToTwip(28);
    sheet::Element& heading = el("intestazione");
    heading.text = u"Top"_s;
    heading.left = finestra->width() / 2;
    heading.top = 0;
}

void Page::scriviEsercizi() {
    const int n = esercizi.Count();
    for (int i = 1; i <= n; ++i) {
        const int k = i - 1;
        const std::shared_ptr<Esercizio> esercizio = esercizi.Item(i);
        sheet::ripristinaBlocco(*canvas, k);
        el("nprog", k).text = QString::number(esercizio->nprog);
        if (esercizio->isLibero)
            scriviEsercizioLibero(*esercizio, k);
        else
            scriviEsercizio(*esercizio, k);
    }
    for (int position = n + 1; position <= sheet::blocchiPerFoglio; ++position)
        mostraBlocco(position - 1, false);
    centraOrizzontale();
    centraVerticale();
    posizionaEsercizi();
}

void Page::scriviEsercizioLibero(const Esercizio& esercizio, int index) {
    mostraBlocco(index, false);
    sheet::Element& frame = el("cornice", index);
    sheet::Element& number = el("nprog", index);
    sheet::Element& note = el("note", index);
    number.visible = true;
    frame.visible = true;
    note.visible = true;
    note.text = esercizio.note;
    // The number's width serves as its height here.
    note.top = frame.top + 150 + number.width;
    note.left = frame.left + 150;
    note.height = frame.height - 300;
    note.width = frame.width - 300;
    // The box reaches below the frame; the text does not.
    note.usableHeight = frame.top + frame.height - 90 - note.top;
}

void Page::scriviEsercizio(const Esercizio& esercizio, int index) {
    sheet::Element& picture = el("figura", index);
    canvas->load(picture, host::resolve(host::joined(u"\\"_s + esercizio.getFoto())));
    el("durata", index).text = esercizio.durata;
    el("frequenza", index).text = esercizio.frequenza;
    el("ampiezza", index).text = esercizio.ampiezza;
    el("serie", index).text = QString::number(esercizio.serie);
    cTime recovery;
    recovery.setTime(0, esercizio.recuperoMin, esercizio.recuperoSec);
    el("recupero", index).text = recovery.getTime();

    sheet::Element& mode = el("modalita", index);
    mode.text = u"Modalità: "_s + esercizio.modalita + u' ' + esercizio.peso;
    sheet::Element& note = el("note", index);
    note.top = mode.top + mode.height - 30;
    mode.usableHeight = note.top - mode.top;
    note.left = mode.left;
    note.width = mode.width;
    note.height = 600;
    note.text = u"Note: "_s + esercizio.note;
    mostraBlocco(index, true);
}

bool Page::mostraNote() const {
    return isLastPage && !el("NoteFinali").text.isEmpty();
}

void Page::centraOrizzontale() {
    margineSinistro = margineRighe;
    const int rest = esercizi.Count() % colonne;
    if (rest == 0)
        return;
    const std::int16_t spare =
        runtime::toInt16((colonne - rest) * (el("cornice").width + cmToTwip(distanzaColonne)));
    margineSinistro = spare / 2.0 / sheet::twipsPerCm + margineRighe;
}

void Page::centraVerticale() {
    margineSuperiore = 3.45;
    distanzaRighe = 0.1;
    const int rows = righe(esercizi.Count());
    const bool withNotes = mostraNote();
    const bool fullWithNotes = righeMassime - rows <= 0 && withNotes;
    if (fullWithNotes)
        return;

    // A quarter of the free space above the grid, half in the gaps, a quarter below; a lone row is centred.
    const double available = cmToTwip(28 - margineSuperiore - (withNotes ? 3.7 : 1.5));
    const double free = available - rows * el("cornice").height;
    margineSuperiore += twipToCm((rows == 1 ? free : free / 2) / 2);
    if (rows <= 1)
        return;
    distanzaRighe += twipToCm((free / 2) / (rows - 1));
}

void Page::posizionaEsercizi() {
    const int n = esercizi.Count();
    const int rows = righe(n);
    const double height = el("cornice").height;
    const double width = el("cornice").width;
    for (int r = 1; r <= rows; ++r) {
        for (int c = 1; c <= colonne; ++c) {
            const int k = (r - 1) * colonne + c;
            if (k > n)
                break;
            const double top = (cmToTwip(distanzaRighe) + height) * (r - 1) + cmToTwip(margineSuperiore);
            const double margin = r < rows ? margineRighe : margineSinistro;
            const double left = (width + cmToTwip(distanzaColonne)) * (c - 1) + cmToTwip(margin);
            spostaBlocco(k - 1, top, left);
        }
    }
}

double Page::distanzaDaCorniceX(const sheet::Element& element) const {
    return element.left - el("cornice", element.index).left;
}

double Page::distanzaDaCorniceY(const sheet::Element& element) const {
    return element.top - el("cornice", element.index).top;
}

void Page::spostaBlocco(int index, double top, double left) {
    for (const QString& name : sheet::elementiDelBlocco()) {
        sheet::Element& element = canvas->element(name, index);
        element.left = distanzaDaCorniceX(element) + left;
    }
    el("cornice", index).left = left;
    for (const QString& name : sheet::elementiDelBlocco()) {
        sheet::Element& element = canvas->element(name, index);
        element.top = distanzaDaCorniceY(element) + top;
    }
    el("cornice", index).top = top;
}

void Page::mostraBlocco(int index, bool visible) {
    el("cornice", index).visible = visible;
    for (const QString& name : sheet::elementiDelBlocco())
        canvas->element(name, index).visible = visible;
}

void Page::setPiePagina() {
    const double h = cmToTwip(28);
    const double middle = canvas->width / 2;

    sheet::Element& rule = el("linea2");
    rule.top = h - 1000;
    rule.left = middle - rule.width / 2 + 100;

    sheet::Element& number = el("piepagina");
    number.top = h - 2 * number.height;
    number.left = middle - number.width / 2;

    sheet::Element& info = el("info");
    info.top = h - 2 * info.height;
    info.left = canvas->width * 2.5 / 4;

    sheet::Element& maker = el("LogoZentara");
    maker.top = h - 2 * maker.height + 165;
    maker.left = info.left + info.width - maker.width + 1100;

    sheet::Element& product = el("logoQD");
    product.top = h - 2 * product.height + 115;
    product.left = cmToTwip(0.9) + 100;

    sheet::Element& notes = el("NoteFinali");
    notes.visible = mostraNote();
    if (isLastPage)
        notes.top = cmToTwip(24.3);
    // The rule above the footer crosses the foot of the box; the text ends above it.
    notes.usableHeight = rule.top - 15 - notes.top;
}
