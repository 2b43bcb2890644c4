#include "cards/RigaEsercizio.h"

#include "artwork/icons/Icone.h"
#include "cards/Esercizio.h"
#include "cards/SchedaSospesa.h"
#include "cards/ValoriEsercizio.h"
#include "platform/runtime/Conversions.h"
#include "platform/toolkit/Twips.h"

using namespace Qt::StringLiterals;

using toolkit::place;

namespace {

const QString chiaveFigura = u"quiverdeck"_s;
const QString chiaveLibero = u"libero"_s;

/// The picture's place, in twips.
constexpr QSizeF quadroFigura{2265, 2160};

/// What stands at other coordinates in the second row than in the first.
struct Posto {
    double sinistra, eti, numero, inserisci, elimina, tipo, sopra, sopraEti, sopraPulsanti, sopraTipo, figura;
};
constexpr std::array<Posto, 2> posti{Posto{15, 45, 1365, 1620, 1950, 3975, 210, 0, 0, -15, 135},
                                     Posto{30, 60, 1395, 1650, 1980, 3990, 2955, 2745, 2730, 2715, 120}};

QString nome(const char* controllo, int indice) {
    return u"%1_%2"_s.arg(QLatin1String(controllo)).arg(indice);
}

} // namespace

RigaEsercizio::RigaEsercizio(int indice, int righe, QWidget* pagina, sheet::PictureCache& immagini)
    : Frame1(nome("Frame1", indice), pagina), FrameLibero(nome("FrameLibero", indice), pagina),
      Label8(nome("Label8", indice), u"Esercizio n. "_s, pagina),
      nEsercizio(nome("nEsercizio", indice), QString::number(indice + 1), pagina),
      InserisciEsecizio(nome("InserisciEsecizio", indice), QString(), pagina),
      EliminaEsercizio(nome("EliminaEsercizio", indice), QString(), pagina),
      TipoEsercizio(nome("TipoEsercizio", indice), pagina),
      invito(nome("invito", indice), FiguraEsercizio::invito(), &Frame1),
      etiDurata(nome("etiDurata", indice), u"Durata:"_s, &Frame1),
      etiFrequenza(nome("etiFrequenza", indice), u"Frequenza: "_s, &Frame1),
      etiAmpiezza(nome("etiAmpiezza", indice), u"Ampiezza: "_s, &Frame1),
      etiSerie(nome("etiSerie", indice), u"Serie:"_s, &Frame1),
      etiRecupero(nome("etiRecupero", indice), u"Recupero: "_s, &Frame1),
      etiMin(nome("etiMin", indice), u"min"_s, &Frame1), etiSec(nome("etiSec", indice), u"sec"_s, &Frame1),
      etiModalita(nome("etiModalita", indice), u"Modalità:"_s, &Frame1),
      etiPeso(nome("etiPeso", indice), u"Peso:"_s, &Frame1),
      etiNote(nome("etiNote", indice), u"Note: "_s, &Frame1),
      etiDescrizione(nome("etiDescrizione", indice), u"Descrizione:"_s, &FrameLibero),
      figura(nome("figura", indice), &Frame1, immagini, quadroFigura),
      durata(nome("durata", indice), &Frame1), frequenza(nome("frequenza", indice), &Frame1),
      ampiezza(nome("ampiezza", indice), &Frame1), serie(nome("serie", indice), &Frame1),
      recuperoMin(nome("recuperoMin", indice), &Frame1), recuperoSec(nome("recuperoSec", indice), &Frame1),
      modalita(nome("modalita", indice), &Frame1), peso(nome("peso", indice), &Frame1),
      note(nome("note", indice), &Frame1), noteLibere(nome("note", indice + righe), &FrameLibero) {
    durata.addItems(valoriEsercizio::durate());
    frequenza.addItems(valoriEsercizio::frequenze());
    ampiezza.addItems(valoriEsercizio::ampiezze());
    modalita.addItems(valoriEsercizio::modalita());
    // These texts go into SQL as they stand.
    for (toolkit::Combo* elenco : elenchi())
        elenco->guardApostrophes();
    peso.guardApostrophes();
    for (toolkit::TextBox* numero : numeri()) {
        numero->setKeyFilter([](QChar tasto) {
            return tasto == QChar(3) || tasto == QChar(8) || (tasto >= u'0' && tasto <= u'9');
        });
    }
    const QString tip = u"Scegli il tipo di esercizio"_s;
    TipoEsercizio.addTab(chiaveFigura, u"Quiver-Deck"_s, tip);
    TipoEsercizio.addTab(chiaveLibero, u"Libero"_s, tip);
    for (toolkit::Label* etichetta :
         {&Label8, &nEsercizio, &etiDurata, &etiFrequenza, &etiAmpiezza, &etiSerie, &etiRecupero, &etiMin,
          &etiSec, &etiModalita, &etiPeso, &etiNote})
        etichetta->setAlignment(Qt::AlignLeft | Qt::AlignVCenter); // level with the field beside it
    invito.setWordWrap(true);
    invito.setAlignment(Qt::AlignCenter);
    FrameLibero.hide();
    disponi(indice);
    nomina(indice);
}

void RigaEsercizio::disponi(int indice) {
    const Posto& p = posti.at(static_cast<std::size_t>(indice));
    place(Label8, p.eti, p.sopraEti, 1455, 255);
    place(nEsercizio, p.numero, p.sopraEti, indice == 0 ? 345 : 255, 255);
    place(InserisciEsecizio, p.inserisci, p.sopraPulsanti, 330, 285);
    place(EliminaEsercizio, p.elimina, p.sopraPulsanti, 330, 285);
    place(TipoEsercizio, p.tipo, p.sopraTipo, 1965, 315);
    place(Frame1, p.sinistra, p.sopra, 5925, 2520);
    place(FrameLibero, p.sinistra, p.sopra, 5925, 2520);

    place(figura, p.figura, 240, quadroFigura.width(), quadroFigura.height());
    place(invito, 150, 1095, 2190, 675);
    constexpr double prima = 2580; // the two columns of captions
    constexpr double seconda = 4185;
    const auto didascalia = [](toolkit::Label& etichetta, double sinistra, double sopra) {
        place(etichetta, sinistra, sopra, 975, 255);
    };
    didascalia(etiDurata, prima, 255);
    place(durata, 3360, 225, 735, 315);
    didascalia(etiFrequenza, seconda, 255);
    place(frequenza, 5115, 225, 735, 315);
    didascalia(etiAmpiezza, prima, 570);
    place(ampiezza, 3360, 540, 735, 315);
    didascalia(etiSerie, seconda, 570);
    place(serie, 5115, 555, 720, 285);
    didascalia(etiRecupero, prima, 885);
    place(recuperoMin, 3360, 870, 390, 285);
    place(etiMin, 3795, 885, 240, 255);
    place(recuperoSec, 4050, 870, 390, 285);
    place(etiSec, 4455, 885, 240, 255);
    didascalia(etiModalita, prima, 1200);
    place(modalita, 3360, 1170, 2490, 315);
    didascalia(etiPeso, prima, 1515);
    place(peso, 3360, 1500, 735, 285);
    didascalia(etiNote, prima, 1830);
    place(note, 3360, 1815, 2505, 615);

    place(etiDescrizione, 60, 165, 1815, 255);
    place(noteLibere, 90, 405, 5760, 1995);
}

void RigaEsercizio::nomina(int indice) {
    const auto pulsante = [](toolkit::Button& b, const QString& tip, const QString& chiave) {
        b.setToolTip(tip);
        b.setAccessibleName(tip);
        b.setPicture(artwork::icona(u"SchedaCorpo"_s, chiave));
    };
    pulsante(InserisciEsecizio, u"Inserisce un esercizio in questo punto"_s, u"InserisciEsecizio"_s);
    pulsante(EliminaEsercizio, u"Elimina l'esercizio"_s, u"EliminaEsercizio"_s);
    const QString riga = u", riga %1"_s.arg(indice + 1);
    TipoEsercizio.setAccessibleName(u"Tipo di esercizio"_s + riga);
    figura.setAccessibleName(u"Figura dell’esercizio"_s + riga);
    durata.setAccessibleName(u"Durata"_s + riga);
    frequenza.setAccessibleName(u"Frequenza"_s + riga);
    ampiezza.setAccessibleName(u"Ampiezza"_s + riga);
    serie.setAccessibleName(u"Serie"_s + riga);
    recuperoMin.setAccessibleName(u"Minuti di recupero"_s + riga);
    recuperoSec.setAccessibleName(u"Secondi di recupero"_s + riga);
    modalita.setAccessibleName(u"Modalità"_s + riga);
    peso.setAccessibleName(u"Peso"_s + riga);
    note.setAccessibleName(u"Note"_s + riga);
    noteLibere.setAccessibleName(u"Descrizione"_s + riga);
}

std::array<QWidget*, 13> RigaEsercizio::ordine() {
    return {&InserisciEsecizio, &EliminaEsercizio, &TipoEsercizio, &durata, &frequenza, &ampiezza,  &serie,
            &recuperoMin,       &recuperoSec,      &modalita,      &peso,   &note,      &noteLibere};
}

bool RigaEsercizio::isLibero() const {
    return TipoEsercizio.selectedKey() == chiaveLibero;
}

void RigaEsercizio::mostraTipo() {
    Frame1.setVisible(!isLibero());
    FrameLibero.setVisible(isLibero());
}

void RigaEsercizio::mostra(const Esercizio& e) {
    durata.setText(e.durata);
    frequenza.setText(e.frequenza);
    ampiezza.setText(e.ampiezza);
    recuperoMin.setText(QString::number(e.recuperoMin));
    recuperoSec.setText(QString::number(e.recuperoSec));
    modalita.setText(e.modalita);
    serie.setText(QString::number(e.serie));
    peso.setText(e.peso);
    note.setText(e.note);
    noteLibere.setText(e.note);
    figura.mostra(e);
}

void RigaEsercizio::scrivi(Esercizio& e) {
    e.durata = durata.text();
    e.frequenza = frequenza.text();
    e.ampiezza = ampiezza.text();
    e.recuperoMin = runtime::toByte(runtime::leadingNumber(recuperoMin.text()));
    e.recuperoSec = runtime::toByte(runtime::leadingNumber(recuperoSec.text()));
    e.modalita = modalita.text();
    e.serie = runtime::toByte(runtime::leadingNumber(serie.text()));
    e.peso = peso.text();
    e.note = note.text();
    e.isLibero = isLibero();
    if (e.isLibero)
        e.note = noteLibere.text();
    figura.scrivi(e);
}

TestiRiga RigaEsercizio::testi() const {
    return {.isLibero = isLibero(),
            .figura = figura.Tag,
            .durata = durata.text(),
            .frequenza = frequenza.text(),
            .ampiezza = ampiezza.text(),
            .recuperoMin = recuperoMin.text(),
            .recuperoSec = recuperoSec.text(),
            .serie = serie.text(),
            .modalita = modalita.text(),
            .peso = peso.text(),
            .note = note.text(),
            .noteLibere = noteLibere.text()};
}

void RigaEsercizio::riprendi(const TestiRiga& testi) {
    TipoEsercizio.select(testi.isLibero ? 2 : 1);
    durata.setText(testi.durata);
    frequenza.setText(testi.frequenza);
    ampiezza.setText(testi.ampiezza);
    recuperoMin.setText(testi.recuperoMin);
    recuperoSec.setText(testi.recuperoSec);
    serie.setText(testi.serie);
    modalita.setText(testi.modalita);
    peso.setText(testi.peso);
    note.setText(testi.note);
    noteLibere.setText(testi.noteLibere);
    if (testi.figura.isEmpty())
        figura.svuota();
    else if (testi.figura != figura.Tag)
        figura.prendi(testi.figura);
}

void RigaEsercizio::normalizza() {
    for (toolkit::Combo* elenco : elenchi())
        if (elenco->text().isEmpty())
            elenco->selectIndex(0);
    for (toolkit::TextBox* numero : numeri())
        if (numero->text().isEmpty())
            numero->setText(u"0"_s);
    if (figura.Tag.isEmpty())
        figura.svuota();
}
