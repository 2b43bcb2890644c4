#include "cards/SchedaCorpo.h"

#include "cards/Esercizio.h"
#include "cards/SchedaApribile.h"
#include "cards/mdiScheda.h"
#include "core/f_library.h"
#include "platform/host/Services.h"
#include "platform/runtime/Conversions.h"
#include "platform/runtime/Error.h"
#include "platform/toolkit/Twips.h"
#include "printing/ContatoreTempi.h"

#include <QScopedValueRollback>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr double larghezza = 6300; // outer size, twips
constexpr double altezza = 6000;
constexpr double massimoSecondi = 59;
constexpr double massimoSerie = 99;

bool rifiuta(const QString& testo) {
    host::message(testo, host::Icon::Critical);
    return false;
}

} // namespace

SchedaCorpo::SchedaCorpo()
    : Form(u"SchedaCorpo"_s), riga{{{0, righe, client(), immagini}, {1, righe, client(), immagini}}},
      VS(u"VS"_s, client()), Command1(u"Command1"_s, u"SOLO PER TECNICO"_s, client()) {
    setCaption(u"Esercizi"_s);
    setParentForm(mdiScheda::comune());
    disponi();
    for (int i = 0; i < righe; ++i) {
        collega(i);
        controlla(i);
    }
    connect(&VS, &toolkit::ScrollBar::changed, this, &SchedaCorpo::scorri);
    connect(&Command1, &QPushButton::clicked, this, &SchedaCorpo::copiaPrimo);
}

void SchedaCorpo::disponi() {
    toolkit::place(VS, 5985, 0, 240, 5475);
    VS.setMin(1);
    VS.setMax(2);
    VS.setAccessibleName(u"Scorre gli esercizi"_s);
    toolkit::place(Command1, 2835, 5265, 3120, 195);
    Command1.hide();
    QWidget* precedente = nullptr;
    for (RigaEsercizio& r : riga) {
        for (QWidget* controllo : r.ordine()) {
            if (precedente != nullptr)
                setTabOrder(precedente, controllo);
            precedente = controllo;
        }
    }
    VS.setFocusPolicy(Qt::TabFocus); // within reach of the keyboard; a click leaves the focus where it is
    setTabOrder(precedente, &VS);
}

void SchedaCorpo::collega(int i) {
    RigaEsercizio& r = riga.at(static_cast<std::size_t>(i));
    connect(&r.InserisciEsecizio, &QPushButton::clicked, this, [this, i] { inserisci(i); });
    connect(&r.EliminaEsercizio, &QPushButton::clicked, this, [this, i] { elimina(i); });
    connect(&r.TipoEsercizio, &toolkit::TabStrip::clicked, this, [&r] { r.mostraTipo(); });
    connect(&r.figura, &toolkit::PictureBox::dropped, this,
            [&r](const QString& testo) { r.figura.prendi(testo); });
    connect(&r.durata, &toolkit::Combo::clicked, this, &SchedaCorpo::riconta);
    connect(&r.recuperoMin, &toolkit::TextBox::changed, this, &SchedaCorpo::riconta);
    connect(&r.recuperoSec, &toolkit::TextBox::changed, this, &SchedaCorpo::riconta);
    connect(&r.serie, &toolkit::TextBox::changed, this, [this, i] { ricontaSerie(i); });
    for (toolkit::Combo* elenco : {&r.frequenza, &r.ampiezza, &r.modalita})
        connect(elenco, &toolkit::Combo::clicked, this, &SchedaCorpo::segnaModifica);
    connect(&r.peso, &toolkit::TextBox::changed, this, &SchedaCorpo::segnaModifica);
    connect(&r.note, &toolkit::TextArea::changed, this, &SchedaCorpo::segnaModifica);
    connect(&r.noteLibere, &toolkit::TextArea::changed, this, &SchedaCorpo::segnaModifica);
    for (toolkit::TextBox* numero : r.numeri())
        connect(numero, &toolkit::TextBox::gotFocus, this, [numero] { selezionaTesto(*numero); });
}

void SchedaCorpo::controlla(int i) {
    RigaEsercizio& r = riga.at(static_cast<std::size_t>(i));
    for (toolkit::Combo* elenco : r.elenchi())
        validazione.add(elenco, [elenco] { return valoreInLista(*elenco); });
    validazione.add(&r.recuperoSec, [&r] {
        return runtime::strictNumber(r.recuperoSec.text()) <= massimoSecondi ||
               rifiuta(u"Inserire un numero tra 0 e 59"_s);
    });
    validazione.add(&r.serie, [&r] {
        return runtime::leadingNumber(r.serie.text()) <= massimoSerie || rifiuta(u"Valore troppo grande!"_s);
    });
}

SchedaApribile& SchedaCorpo::aperta() {
    const auto& scheda = mdiScheda::comune().schedaAperta;
    if (!scheda)
        runtime::raise(runtime::ObjectNotSet);
    return *scheda;
}

void SchedaCorpo::onLoad() {
    setOuterSize(larghezza, altezza);
    nRighe = righe;
    normalizzaCampi();
    primoEsercizio = 1;
    if (aperta().esercizi->Count() > 0)
        mostraEsercizi();
    aggiungiEserciziVuoti();
}

bool SchedaCorpo::onQueryUnload() {
    ScriviDati();
    return mdiScheda::comune().puoiChiudere;
}

void SchedaCorpo::mostraEsercizi() {
    const SchedaApribile& scheda = aperta();
    for (int i = 0; i < nRighe; ++i) {
        const int posizione = primoEsercizio + i;
        if (posizione > scheda.esercizi->Count())
            return; // the rows left keep what they show
        const auto e = scheda.esercizi->Item(posizione);
        RigaEsercizio& r = riga.at(static_cast<std::size_t>(i));
        r.TipoEsercizio.select(e->isLibero ? 2 : 1);
        const QScopedValueRollback<bool> caricamento(inCaricamento, true);
        r.mostra(*e);
    }
}

void SchedaCorpo::normalizzaCampi() {
    const QScopedValueRollback<bool> caricamento(inCaricamento, true);
    VS.setMin(1);
    for (RigaEsercizio& r : riga)
        r.normalizza();
}

void SchedaCorpo::aggiungiEserciziVuoti() {
    SchedaApribile& scheda = aperta();
    int mancanti = scheda.esercizi->Count() % nRighe;
    if (mancanti == 0)
        mancanti = nRighe;
    for (; mancanti > 0; --mancanti)
        scheda.esercizi->Add(std::make_shared<Esercizio>());
}

void SchedaCorpo::ScriviDati() {
    const SchedaApribile& scheda = aperta();
    for (int i = 0; i < nRighe; ++i)
        riga.at(static_cast<std::size_t>(i)).scrivi(*scheda.esercizi->Item(primoEsercizio + i));
}

PaginaEsercizi SchedaCorpo::pagina() const {
    // Where the rows stand, not the bar: it is one ahead when a row's number refused to be written.
    PaginaEsercizi stato{.posizione = (primoEsercizio + 1) / nRighe, .massimo = VS.maximum(), .righe = {}};
    for (const RigaEsercizio& r : riga)
        stato.righe.push_back(r.testi());
    return stato;
}

void SchedaCorpo::riprendi(const std::vector<Esercizio>& lette, const std::optional<PaginaEsercizi>& stava) {
    SchedaApribile& scheda = aperta();
    if (stava) {
        VS.setMax(stava->massimo);
        VS.setValue(stava->posizione); // the page moves there, and writes on its way
        VS.setMax(stava->massimo);
    }
    // The page has added empty lines to a list that had them already.
    while (scheda.esercizi->Count() > std::max(static_cast<int>(lette.size()), primoEsercizio + nRighe - 1))
        scheda.esercizi->Remove(scheda.esercizi->Count());
    for (std::size_t i = 0; i < lette.size(); ++i)
        *scheda.esercizi->Item(static_cast<int>(i) + 1) = lette[i];
    mostraEsercizi();
    normalizzaCampi();
    for (std::size_t i = 0; stava && i < std::min(riga.size(), stava->righe.size()); ++i) {
        const QScopedValueRollback<bool> caricamento(inCaricamento, true);
        riga[i].riprendi(stava->righe[i]);
    }
}

void SchedaCorpo::selezionaTesto(toolkit::TextBox& campo) {
    campo.select(0, static_cast<int>(campo.text().size()));
}

void SchedaCorpo::inserisci(int i) {
    ScriviDati();
    SchedaApribile& scheda = aperta();
    scheda.esercizi->Add(std::make_shared<Esercizio>(), primoEsercizio + i);
    scheda.esercizi->Add(std::make_shared<Esercizio>());
    scheda.rinumeraEsercizi();
    limitaVS();
    mostraEsercizi();
    normalizzaCampi();
}

void SchedaCorpo::elimina(int i) {
    ScriviDati();
    SchedaApribile& scheda = aperta();
    scheda.EliminaEsercizio(runtime::toInt16(primoEsercizio + i));
    scheda.esercizi->Add(std::make_shared<Esercizio>());
    mostraEsercizi();
    normalizzaCampi();
}

void SchedaCorpo::scorri() {
    if (!inCaricamento)
        ScriviDati();
    primoEsercizio = runtime::toInt16(VS.value() * nRighe - 1);
    if (inCaricamento)
        return;
    if (primoEsercizio > aperta().esercizi->Count())
        aggiungiEserciziVuoti();
    mostraEsercizi();
    normalizzaCampi();
    for (int i = 0; i < nRighe; ++i)
        riga.at(static_cast<std::size_t>(i)).nEsercizio.setCaption(QString::number(primoEsercizio + i));
    limitaVS();
}

/// One screen beyond the list: going there makes a new empty one.
void SchedaCorpo::limitaVS() {
    VS.setMax(arrotondaSu(static_cast<double>(aperta().esercizi->Count()) / nRighe) + 1);
    VS.update();
}

void SchedaCorpo::riconta() {
    if (inCaricamento)
        return;
    ScriviDati();
    mdiScheda::comune().contaTempi->contaEstampa();
    segnaModifica();
}

void SchedaCorpo::ricontaSerie(int i) {
    if (runtime::leadingNumber(riga.at(static_cast<std::size_t>(i)).serie.text()) <= massimoSerie)
        riconta();
}

void SchedaCorpo::segnaModifica() {
    aperta().isSaved = false;
}

void SchedaCorpo::copiaPrimo() {
    const SchedaApribile& scheda = aperta();
    const auto primo = scheda.esercizi->Item(1);
    for (const auto& e : *scheda.esercizi) {
        e->durata = primo->durata;
        e->frequenza = primo->frequenza;
        e->recuperoMin = primo->recuperoMin;
        e->recuperoSec = primo->recuperoSec;
        e->ampiezza = primo->ampiezza;
        e->modalita = primo->modalita;
        e->serie = primo->serie;
    }
    mostraEsercizi();
}
