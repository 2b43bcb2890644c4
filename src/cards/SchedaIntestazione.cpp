#include "cards/SchedaIntestazione.h"

#include "artwork/icons/Icone.h"
#include "athletes/utente.h"
#include "cards/GGAllenHELPER.h"
#include "cards/mdiScheda.h"
#include "cards/scheda.h"
#include "core/f_library.h"
#include "platform/runtime/Conversions.h"
#include "platform/runtime/Dates.h"
#include "platform/runtime/Error.h"
#include "platform/toolkit/Focus.h"
#include "platform/toolkit/Fonts.h"
#include "platform/toolkit/Twips.h"
#include "templates/Categorie.h"

#include <array>
#include <initializer_list>
#include <utility>

using namespace Qt::StringLiterals;

using toolkit::place;

namespace {

constexpr double larghezza = 6300; // outer size, twips
constexpr double altezza = 3505;

/// A new card runs for three weeks and three sessions a week.
constexpr int giorniDiPeriodo = 21;
const QString frequenzaUsuale = u"3"_s;

/// Nine days fill the list; pixels.
constexpr QSize altezzaGiorno{100, 15};

} // namespace

SchedaIntestazione::SchedaIntestazione()
    : Form(u"SchedaIntestazione"_s), Frame1(u"Frame1"_s, client()),
      atleta(u"atleta"_s, u"Atleta:"_s, &Frame1), intestazione(u"intestazione"_s, u"Scheda:"_s, &Frame1),
      etiCategoria(u"etiCategoria"_s, u"Categoria:"_s, &Frame1),
      etiObiettivo(u"etiObiettivo"_s, u"Obiettivo:"_s, &Frame1),
      etiIstruttore(u"etiIstruttore"_s, u"Istruttore:"_s, &Frame1), etiDal(u"etiDal"_s, u"Dal:"_s, &Frame1),
      etiAl(u"etiAl"_s, u"Al:"_s, &Frame1),
      etiFreqAllen(u"etiFreqAllen"_s, u"Frequenza allenamento settimanale:"_s, &Frame1),
      etiGGAllen(u"etiGGAllen"_s, u"Giorni di allenamento:"_s, &Frame1),
      etiNote(u"etiNote"_s, u"Note Finali:"_s, &Frame1), utente(u"utente"_s, QString(), &Frame1),
      categoria(u"categoria"_s, &Frame1), Obiettivo(u"Obiettivo"_s, &Frame1),
      Istruttore(u"Istruttore"_s, &Frame1), dal(u"dal"_s, &Frame1), al(u"al"_s, &Frame1),
      FreqAllen(u"FreqAllen"_s, &Frame1), Text1(u"Text1"_s, &Frame1),
      apriGGAllen(u"apriGGAllen"_s, QString(), &Frame1), note(u"note"_s, &Frame1),
      GGAllen(u"GGAllen"_s, &Frame1) {
    setCaption(u"Scheda"_s);
    setParentForm(mdiScheda::comune());
    disponi();
    prepara();
    ordina();
    collega();
    controlla();
}

void SchedaIntestazione::disponi() {
    place(Frame1, 60, 0, 6075, 3000);
    place(atleta, 120, 165, 855, 255);
    place(utente, 1260, 210, 2760, 255);
    place(intestazione, 120, 480, 1095, 255);
    place(etiCategoria, 240, 870, 960, 255);
    place(categoria, 1215, 840, 2820, 315);
    place(etiObiettivo, 240, 1170, 960, 255);
    place(Obiettivo, 1215, 1155, 2820, 285);
    place(etiIstruttore, 240, 1455, 960, 255);
    place(Istruttore, 1215, 1440, 2820, 285);
    place(etiDal, 4155, 885, 345, 255);
    place(dal, 4515, 855, 1290, 315);
    place(etiAl, 4155, 1200, 345, 255);
    place(al, 4515, 1170, 1290, 315);
    place(etiFreqAllen, 240, 1770, 3060, 255);
    place(FreqAllen, 3315, 1740, 720, 315);
    place(etiGGAllen, 240, 2085, 1905, 255);
    place(Text1, 2160, 2070, 1605, 285);
    place(apriGGAllen, 3765, 2085, 270, 255);
    place(etiNote, 240, 2370, 1125, 255);
    place(note, 1380, 2355, 4440, 585);
    place(GGAllen, 2160, 15, 1845, 2085);
}

void SchedaIntestazione::prepara() {
    atleta.setFont(toolkit::font(u"MS Sans Serif"_s, 8.25, true));
    intestazione.setFont(atleta.font());
    for (toolkit::Label* etichetta : {&utente, &intestazione, &etiCategoria, &etiObiettivo, &etiIstruttore,
                                      &etiDal, &etiAl, &etiFreqAllen, &etiGGAllen, &etiNote})
        etichetta->setAlignment(Qt::AlignLeft | Qt::AlignVCenter); // level with the field beside it
    atleta.setAlignment(Qt::AlignLeft | Qt::AlignBottom);
    utente.setMargin(2);
    utente.setBackgroundRole(QPalette::Base);
    utente.setAutoFillBackground(true);
    Obiettivo.guardApostrophes();
    Istruttore.guardApostrophes();
    for (int volte = 1; volte <= 7; ++volte)
        FreqAllen.addItem(QString::number(volte));
    Text1.setText(u"Selezionare i giorni..."_s);
    Text1.setReadOnly(true);
    QFont stretto = Text1.font(); // the text is as wide as its box
    stretto.setStretch(95);
    Text1.setFont(stretto);
    Text1.setFocusPolicy(Qt::NoFocus);
    apriGGAllen.setPicture(artwork::icona(objectName(), apriGGAllen.objectName()));
    apriGGAllen.setToolTip(u"Giorni di allenamento"_s);
    for (const char* giorno : {"Giornaliero", "Nessuno", "Lunedi", "Martedi", "Mercoledi", "Giovedi",
                               "Venerdi", "Sabato", "Domenica"})
        GGAllen.addItem(QLatin1String(giorno));
    QPalette grigio = GGAllen.palette();
    grigio.setColor(QPalette::Base, grigio.color(QPalette::Button));
    GGAllen.setPalette(grigio);
    GGAllen.setGridSize(altezzaGiorno);
    GGAllen.hide();
}

void SchedaIntestazione::ordina() {
    const std::array<std::pair<QWidget*, const char*>, 9> campi{
        {{&categoria, "Categoria"},
         {&Obiettivo, "Obiettivo"},
         {&Istruttore, "Istruttore"},
         {&dal, "Dal"},
         {&al, "Al"},
         {&FreqAllen, "Frequenza allenamento settimanale"},
         {&apriGGAllen, "Giorni di allenamento"},
         {&GGAllen, "Elenco dei giorni di allenamento"},
         {&note, "Note finali"}}};
    QWidget* precedente = nullptr;
    for (const auto& [campo, nome] : campi) {
        campo->setAccessibleName(QLatin1String(nome));
        if (precedente != nullptr)
            setTabOrder(precedente, campo);
        precedente = campo;
    }
}

void SchedaIntestazione::collega() {
    connect(&Istruttore, &toolkit::TextBox::changed, this, [this] {
        aperta().Istruttore = Istruttore.text();
        aperta().isSaved = false;
    });
    connect(&Obiettivo, &toolkit::TextBox::changed, this, [this] {
        aperta().Obiettivo = Obiettivo.text();
        aperta().isSaved = false;
    });
    connect(&note, &toolkit::TextArea::changed, this, [this] {
        aperta().note = note.text();
        aperta().isSaved = false;
    });
    connect(&FreqAllen, &toolkit::Combo::changed, this, &SchedaIntestazione::scriviFrequenza);
    connect(&FreqAllen, &toolkit::Combo::clicked, this, &SchedaIntestazione::scriviFrequenza);
    connect(&categoria, &toolkit::Combo::clicked, this, &SchedaIntestazione::scriviCategoria);
    connect(&dal, &toolkit::DatePicker::changed, this, &SchedaIntestazione::scriviDal);
    connect(&al, &toolkit::DatePicker::changed, this, &SchedaIntestazione::scriviAl);
    connect(&GGAllen, &toolkit::CheckListBox::itemClick, this, [this] {
        aperta().GGAllen = GGAllenHELPER::leggiGGAllen(GGAllen);
        aperta().isSaved = false;
    });
    connect(&apriGGAllen, &QPushButton::clicked, this, &SchedaIntestazione::apriChiudiGiorni);

    // `al` and `FreqAllen` leave the list of days open.
    for (QWidget* campo : std::initializer_list<QWidget*>{&categoria, &Istruttore, &Obiettivo, &note, &dal})
        toolkit::onFocus(*campo, [this] { nascondiTutto(); });
}

void SchedaIntestazione::controlla() {
    for (toolkit::Combo* elenco : {&categoria, &FreqAllen})
        validazione.add(elenco, [elenco] { return valoreInLista(*elenco); });
}

::scheda& SchedaIntestazione::aperta() {
    auto* scheda = dynamic_cast<::scheda*>(mdiScheda::comune().schedaAperta.get());
    if (scheda == nullptr)
        runtime::raise(runtime::ObjectNotSet);
    return *scheda;
}

void SchedaIntestazione::onLoad() {
    setOuterSize(larghezza, altezza);
    const ::utente& atletaAperto = *mdiScheda::comune().utente;
    utente.setCaption(atletaAperto.cognome + u' ' + atletaAperto.nome);
    Categorie().fillcategorie(categoria);
    Istruttore.setText(aperta().Istruttore);
    categoria.setText(aperta().categoria);
    caricaPeriodo();
    Obiettivo.setText(aperta().Obiettivo);
    caricaFrequenza();
    GGAllenHELPER::scriviGGAllen(aperta().GGAllen, GGAllen);
    note.setText(aperta().note);
    if (categoria.text().isEmpty())
        categoria.selectIndex(Categorie::iniziale);
}

void SchedaIntestazione::caricaPeriodo() {
    const QDate oggi = runtime::today();
    if (!aperta().PeriodoDal.isEmpty()) {
        dal.setValue(runtime::textToDate(aperta().PeriodoDal));
    } else {
        dal.setValue(oggi);
        scriviDal(); // a picker that showed today already tells of no change
    }
    if (!aperta().PeriodoAl.isEmpty()) {
        al.setValue(runtime::textToDate(aperta().PeriodoAl));
    } else {
        al.setValue(oggi.addDays(giorniDiPeriodo));
        scriviAl();
    }
}

void SchedaIntestazione::caricaFrequenza() {
    FreqAllen.setText(QString::number(aperta().FreqAllen));
    if (runtime::strictNumber(FreqAllen.text()) == 0)
        FreqAllen.setText(frequenzaUsuale);
}

bool SchedaIntestazione::onQueryUnload() {
    return mdiScheda::comune().puoiChiudere;
}

void SchedaIntestazione::nascondiTutto() {
    GGAllen.hide();
}

void SchedaIntestazione::apriChiudiGiorni() {
    if (GGAllen.isVisible()) {
        GGAllen.hide();
    } else {
        GGAllen.show();
        GGAllen.raise();
    }
}

void SchedaIntestazione::scriviDal() {
    aperta().PeriodoDal = runtime::dateText(dal.value());
    aperta().isSaved = false;
}

void SchedaIntestazione::scriviAl() {
    aperta().PeriodoAl = runtime::dateText(al.value());
    aperta().isSaved = false;
}

/// A text that is no whole number from 0 to 255 leaves the record's value; the check refuses it on leaving.
void SchedaIntestazione::scriviFrequenza() {
    if (const auto volte = runtime::wholeByte(FreqAllen.text()))
        aperta().FreqAllen = *volte;
    aperta().isSaved = false;
}

void SchedaIntestazione::scriviCategoria() {
    aperta().categoria = categoria.text();
    aperta().isSaved = false;
}
