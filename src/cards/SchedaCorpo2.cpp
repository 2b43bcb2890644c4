#include "cards/SchedaCorpo2.h"

#include "cards/Esercizio.h"
#include "cards/SchedaApribile.h"
#include "cards/ValoriEsercizio.h"
#include "core/f_library.h"
#include "platform/runtime/Conversions.h"
#include "platform/runtime/Error.h"
#include "platform/toolkit/Twips.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;
using toolkit::place;

namespace {

constexpr double larghezza = 6825; // outer size, twips
constexpr double altezza = 4230;
constexpr QSizeF quadroFigura{2415, 2415};

QString testoRecupero(const Esercizio& e) {
    return u"%1:%2"_s.arg(e.recuperoMin).arg(e.recuperoSec, 2, 10, QChar(u'0'));
}

QString numeroAmpiezza(const QString& testo) {
    static const QRegularExpression numero(u"^\\s*[+-]?\\s*\\.?\\s*[0-9]"_s);
    return numero.match(testo).hasMatch() ? runtime::numberText(runtime::leadingNumber(testo)) : testo;
}

} // namespace

SchedaCorpo2::SchedaCorpo2()
    : Form(u"SchedaCorpo2"_s), Frame1(u"Frame1"_s, client()),
      Label8(u"Label8"_s, u"Esercizio n. "_s, client()), nEsercizio(u"nEsercizio"_s, u"1"_s, client()),
      invito(u"invito"_s, FiguraEsercizio::invito(), &Frame1),
      etiDurata(u"etiDurata"_s, u"Durata:"_s, &Frame1),
      etiFrequenza(u"etiFrequenza"_s, u"Frequenza: "_s, &Frame1),
      etiAmpiezza(u"etiAmpiezza"_s, u"Ampiezza: "_s, &Frame1),
      etiRecupero(u"etiRecupero"_s, u"Recupero: "_s, &Frame1),
      etiModalita(u"etiModalita"_s, u"Modalità:"_s, &Frame1), etiPeso(u"etiPeso"_s, u"Peso:"_s, &Frame1),
      etiNote(u"etiNote"_s, u"Note: "_s, &Frame1), figura(u"figura"_s, &Frame1, immagini, quadroFigura),
      durata(u"durata"_s, &Frame1), frequenza(u"frequenza"_s, &Frame1), ampiezza(u"ampiezza"_s, &Frame1),
      recupero(u"recupero"_s, &Frame1), modalita(u"modalita"_s, &Frame1), peso(u"peso"_s, &Frame1),
      note(u"note"_s, &Frame1), cmdPrec(u"cmdPrec"_s, u"<<"_s, client()),
      cmdSucc(u"cmdSucc"_s, u">>"_s, client()) {
    setCaption(u"Esercizio"_s);
    durata.addItems(valoriEsercizio::durate());
    frequenza.addItems(valoriEsercizio::frequenze());
    modalita.addItems(valoriEsercizio::modalita().first(4)); // without "Combinata"
    disponi();
    nomina();
    controlla();
    connect(&figura, &toolkit::PictureBox::dropped, this,
            [this](const QString& testo) { figura.prendi(testo); });
    connect(&cmdPrec, &QPushButton::clicked, this, &SchedaCorpo2::precedente);
    connect(&cmdSucc, &QPushButton::clicked, this, &SchedaCorpo2::successivo);
}

void SchedaCorpo2::disponi() {
    place(Label8, 120, 0, 1455, 255);
    place(nEsercizio, 1440, 0, 1455, 255);
    place(Frame1, 0, 240, 6255, 2775);
    place(figura, 120, 240, quadroFigura.width(), quadroFigura.height());
    place(invito, 240, 1110, 2175, 675);
    invito.setWordWrap(true);
    invito.setAlignment(Qt::AlignCenter);
    const auto didascalia = [](toolkit::Label& etichetta, double sinistra, double sopra) {
        place(etichetta, sinistra, sopra, 915, 255);
        etichetta.setAlignment(Qt::AlignLeft | Qt::AlignVCenter); // level with the field beside it
    };
    constexpr double colonna = 2625;
    didascalia(etiDurata, colonna, 270);
    place(durata, 3480, 240, 735, 315);
    didascalia(etiFrequenza, 4440, 270);
    place(frequenza, 5400, 240, 735, 315);
    didascalia(etiAmpiezza, colonna, 615);
    place(ampiezza, 3480, 600, 2655, 285);
    didascalia(etiRecupero, colonna, 975);
    place(recupero, 3480, 960, 2655, 285);
    didascalia(etiModalita, colonna, 1350);
    place(modalita, 3480, 1320, 2655, 315);
    didascalia(etiPeso, colonna, 1695);
    place(peso, 3480, 1680, 735, 285);
    didascalia(etiNote, colonna, 2055);
    place(note, 3480, 2040, 2655, 615);
    place(cmdPrec, 2280, 3240, 735, 495);
    place(cmdSucc, 3120, 3240, 735, 495);
    const std::array<QWidget*, 9> ordine{&durata, &frequenza, &ampiezza, &recupero, &modalita,
                                         &peso,   &note,      &cmdPrec,  &cmdSucc};
    for (std::size_t i = 1; i < ordine.size(); ++i)
        setTabOrder(ordine.at(i - 1), ordine.at(i));
}

void SchedaCorpo2::nomina() {
    figura.setAccessibleName(u"Figura dell’esercizio"_s);
    durata.setAccessibleName(u"Durata"_s);
    frequenza.setAccessibleName(u"Frequenza"_s);
    ampiezza.setAccessibleName(u"Ampiezza"_s);
    recupero.setAccessibleName(u"Recupero, minuti e secondi"_s);
    recupero.setToolTip(u"Minuti e secondi, per esempio 1:30"_s);
    modalita.setAccessibleName(u"Modalità"_s);
    peso.setAccessibleName(u"Peso"_s);
    note.setAccessibleName(u"Note"_s);
    const auto pulsante = [](toolkit::Button& b, const QString& nome) {
        b.setAccessibleName(nome);
        b.setToolTip(nome);
    };
    pulsante(cmdPrec, u"Esercizio precedente"_s);
    pulsante(cmdSucc, u"Esercizio successivo"_s);
}

void SchedaCorpo2::controlla() {
    for (toolkit::Combo* elenco : {&durata, &frequenza, &modalita}) {
        validazione.add(elenco, [elenco] { return valoreInLista(*elenco); });
        elenco->guardApostrophes(); // these texts go into SQL as they stand
    }
    for (toolkit::TextBox* campo : {&ampiezza, &peso})
        campo->guardApostrophes();
}

Esercizio& SchedaCorpo2::corrente() {
    return *schedaAperta->esercizi->Item(esercizioCorrente);
}

void SchedaCorpo2::onLoad() {
    if (!schedaAperta)
        runtime::raise(runtime::ObjectNotSet);
    setOuterSize(larghezza, altezza);
    svuotaPagina();
    esercizioCorrente = 1;
    if (schedaAperta->esercizi->Count() > 0)
        mostraEsercizio();
    schedaAperta->esercizi->Add(std::make_shared<Esercizio>());
}

void SchedaCorpo2::svuotaPagina() {
    ampiezza.setText(QString());
    durata.selectIndex(0);
    frequenza.selectIndex(0);
    modalita.selectIndex(1); // the second of the list
    figura.svuota();
}

void SchedaCorpo2::mostraEsercizio() {
    const Esercizio& e = corrente();
    durata.setText(e.durata);
    frequenza.setText(e.frequenza);
    ampiezza.setText(e.ampiezza);
    recupero.setText(testoRecupero(e));
    modalita.setText(e.modalita);
    peso.setText(e.peso);
    note.setText(e.note);
    figura.mostra(e);
}

void SchedaCorpo2::vai(int posizione) {
    esercizioCorrente = runtime::toInt16(posizione);
    nEsercizio.setCaption(QString::number(esercizioCorrente));
}

void SchedaCorpo2::precedente() {
    if (esercizioCorrente <= 1)
        return;
    ScriviDati();
    vai(esercizioCorrente - 1);
    svuotaPagina();
    mostraEsercizio();
}

void SchedaCorpo2::successivo() {
    ScriviDati();
    vai(esercizioCorrente + 1);
    if (esercizioCorrente > schedaAperta->esercizi->Count()) {
        schedaAperta->esercizi->Add(std::make_shared<Esercizio>());
        mostraEsercizio();
        svuotaPagina(); // a blank line shows the defaults
    } else {
        mostraEsercizio();
    }
}

void SchedaCorpo2::ScriviDati() {
    const auto numero = [](const QString& testo) { return runtime::toByte(runtime::leadingNumber(testo)); };
    const quint8 minuti = numero(recupero.text().section(u':', 0, 0));
    const quint8 secondi = numero(recupero.text().section(u':', 1));
    Esercizio& e = corrente();
    figura.scrivi(e);
    e.nprog = esercizioCorrente;
    e.durata = durata.text();
    e.frequenza = frequenza.text();
    e.ampiezza = numeroAmpiezza(ampiezza.text());
    e.recuperoMin = minuti;
    e.recuperoSec = secondi;
    e.modalita = modalita.text();
    e.peso = peso.text();
    e.note = note.text();
}
