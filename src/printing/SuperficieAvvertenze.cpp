#include "printing/SuperficieAvvertenze.h"

#include "platform/host/Application.h"
#include "platform/host/ProgramDirectory.h"
#include "printing/LoghiFissi.h"
#include "printing/Stile.h"

#include <array>

using namespace Qt::StringLiterals;

namespace sheet {

namespace {

constexpr double cmToTwip(double cm) {
    return cm * twipsPerCm;
}

constexpr std::array frames{
    std::pair{"Shape1", QRectF{255, 1725, 5205, 2610}}, std::pair{"Shape2", QRectF{5730, 2580, 4920, 2730}},
    std::pair{"Shape4", QRectF{270, 4695, 5190, 2640}}, std::pair{"Shape5", QRectF{5655, 5610, 4995, 2610}},
    std::pair{"Shape3", QRectF{300, 7680, 5145, 2460}},
};

constexpr std::array pictures{
    QRectF{570, 1710, 1830, 2730},  QRectF{5865, 2565, 1755, 2895}, QRectF{270, 4875, 2235, 2145},
    QRectF{5805, 5820, 2235, 2145}, QRectF{375, 7890, 2235, 2145},
};

struct Explanation {
    QRectF box;
    const char* text = "";
};

// The wording is that of the sheet the gyms know, down to its oddities.
const std::array explanations{
    Explanation{{2520, 1935, 2520, 2505},
                "Non utilizzare la QUIVER DECK in funzione da in piedi con il busto flesso in avanti, con lo "
                "scopo di migliorare la flessibilità articolare. Questa posizione può creare problemi alla "
                "colonna vertebrale. Da puntualizzare il fatto che la vibrazione crea contrazione muscolare "
                "in questa posizione e non i presupposti per un buon allungamento"},
    Explanation{{7830, 2715, 1905, 2685},
                "Non rimanere passivamente in piedi, a ginocchia distese, con la QUIVER DECK funzionante. "
                "Questa posizione può creare problemi alla colonna vertebrale e dare spiacevoli disturbi "
                "generali."},
    Explanation{{2625, 4950, 2490, 2280},
                "Non sedersi passivamente sulla QUIVER DECK funzionante. Questa posizione può creare "
                "problemi alla colonna vertebrale, agli organi interni e dare spiacevoli disturbi generali."},
    Explanation{{8100, 5805, 2340, 2340},
                "Non sedersi sulla QUIVER DECK in funzione, con lo scopo di allenare gli addominali. Questa "
                "posizione può creare problemi agli organi interni e dare spiacevoli disturbi generali. Da "
                "puntualizzare il fatto che la vibrazione non ha alcun effetto diretto sulla muscolatura "
                "addominale in questa posizione"},
    Explanation{{2535, 7785, 3030, 2115},
                "In tutti le posizioni o esercizi che prevedono la posizione in piedi sulla QUIVER DECK, è "
                "sconsigliato dare pressione con il tallone mentre invece è consigliato dare pressione con "
                "l'avampiede. Caricare troppo o tutto il peso del corpo sul tallone, crea un marcato "
                "trasferimento della vibrazione fino alla testa. Questo evento può dare senso di disagio e "
                "spiacevoli disturbi generici."},
};

const std::array warnings{
    "- Non utilizzare mai la QUIVER DECK rimanendo a contatto diretto della pedana con parti "
    "anatomiche nude. Utilizzare sempre il tappetino in dotazione o delle scarpe da ginnastica "
    "con suola ammortizzata. Questa regola non vale quando si usano le fasce in dotazione. ",
    "- Non utilizzare la QUIVER DECK con soggetti che non conoscono perfettamente le posizioni o "
    "gli esercizi; tale regola vale anche per i soggetti che pur conoscendoli, non riescono a "
    "mantenerli correttamente per tutta la durata della serie o dell'allenamento stesso. - Le "
    "vibrazioni che passano per il segmento mano-braccio possono dare problemi più facilmente "
    "(in particolare vertigini e cefalea). ",
    "- Non utilizzare la QUIVER DECK per fare massaggi. In particolare nel caso di cellulite "
    "grave, le vibrazioni possono aumentare il problema sotto vari aspetti. La QUIVER DECK offre "
    "così tanti vantaggi nel trattamento degli inestetismi da soddisfare tutte le esigenze senza "
    "dover tentare un suo utilizzo poco razionale. Anche nel caso si voglia utilizzare la QUIVER "
    "DECK per stimolare il recupero muscolare tramite un aumento della circolazione sanguigna, "
    "il massagio è sconsigliato ed anche in questo caso ci sono tecniche idonee allo scopo e non "
    "dannose. ",
    "- Utilizzare la QUIVER DECK con modalità idonee al soggetto, sempre valutate e consigliate "
    "da un esperto.",
    "- Non utilizzare la QUIVER DECK in condizioni di stanchezza, malnutrizione, scarsa "
    "idratazione e in tutti i casi in cui ci sia repulsione psicologica o fisiologica al metodo. ",
    "- Non utilizzare la QUIVER DECK in presenza di soggetti con controindicazioni.",
};

void addPictures(Surface& surface) {
    for (std::size_t i = 0; i < pictures.size(); ++i) {
        Element& picture = surface.add(pictureBox(u"Image1"_s, int(i), pictures[i]));
        const QString stored = u"\\images\\avvertenze\\posa%1.JPG"_s.arg(i);
        surface.load(picture, host::resolve(host::joined(stored)));
    }
}

void addTexts(Surface& surface) {
    Element title =
        textBox(u"UtenteEti"_s, 0, {3030, 585, 5835, 375}, verdana(18, true), u"ISTRUZIONI D'USO"_s);
    title.alignment = Qt::AlignCenter;
    title.colour = QColor(192, 0, 0);
    surface.add(std::move(title));

    for (std::size_t i = 0; i < explanations.size(); ++i) {
        Element label = textBox(u"Label1"_s, int(i), explanations[i].box, arial(8.25),
                                QString::fromUtf8(explanations[i].text));
        label.colour = QColor(128, 0, 128);
        label.wordWrap = true;
        surface.add(std::move(label));
    }
    // The last explanation's box reaches beyond its frame; its text does not.
    const Element& frame = surface.element(u"Shape3"_s);
    Element& last = surface.element(u"Label1"_s, int(explanations.size()) - 1);
    last.usableWidth = frame.left + frame.width - 75 - last.left;
    last.usableHeight = frame.top + frame.height - 75 - last.top;

    QStringList paragraphs;
    for (const char* paragraph : warnings)
        paragraphs << QString::fromUtf8(paragraph);
    Element warning =
        textBox(u"avvertenze"_s, 0, {1065, 0, 9645, 3345}, verdana(8.25), paragraphs.join(u'\n'));
    warning.colour = QColor(255, 0, 0);
    warning.wordWrap = true;
    surface.add(std::move(warning));

    Element producer =
        textBox(u"info"_s, 0, {0, 0, 2775, 285}, times(9, false, true), u"Printed with: "_s + host::title());
    producer.visible = false;
    surface.add(std::move(producer));
}

/// The constants are this sheet's own; the card's footer has others.
void place(Surface& surface) {
    const double windowWidth = cmToTwip(20);
    const double h = cmToTwip(28);
    Element& info = surface.element(u"info"_s);
    info.top = h - 2 * info.height;
    info.left = windowWidth * 2.85 / 4;

    Element& maker = surface.element(u"LogoZentara"_s);
    maker.top = h - 2 * maker.height + 150;
    maker.left = info.left + info.width - maker.width - 20;

    Element& product = surface.element(u"logoQD"_s);
    product.top = h - 2 * product.height + 115;
    product.left = cmToTwip(0.9) + 100;

    Element& warning = surface.element(u"avvertenze"_s);
    warning.top = h - 1.5 * warning.height;
}

} // namespace

Surface avvertenzeSurface() {
    Surface surface;
    surface.width = cmToTwip(20);
    surface.height = cmToTwip(28);
    // Some pictures are higher than their frames: the frames lie on top and stay whole.
    addPictures(surface);
    for (const auto& [name, box] : frames)
        surface.add(roundedFrame(QString::fromLatin1(name), 0, box));
    addTexts(surface);
    addFixedLogos(surface);
    place(surface);
    return surface;
}

} // namespace sheet
