#include "templates/SchedaIntestazioneMODELLO.h"

#include "cards/mdiScheda.h"
#include "platform/runtime/Error.h"
#include "platform/toolkit/Fonts.h"
#include "platform/toolkit/Twips.h"
#include "templates/Categorie.h"
#include "templates/SchedaModello.h"

using namespace Qt::StringLiterals;

SchedaIntestazioneMODELLO::SchedaIntestazioneMODELLO()
    : Form(u"SchedaIntestazioneMODELLO"_s), Frame1(u"Frame1"_s, client()),
      Label3(u"Label3"_s, u"Scheda Modello:"_s, &Frame1), Label7(u"Label7"_s, u"Categoria:"_s, &Frame1),
      Label1(u"Label1"_s, u"Descrizione:"_s, &Frame1), Label4(u"Label4"_s, u"Note Finali:"_s, &Frame1),
      categoria(u"categoria"_s, &Frame1, toolkit::Combo::Kind::Fixed), descrizione(u"descrizione"_s, &Frame1),
      note(u"note"_s, &Frame1) {
    setCaption(u"Scheda"_s);
    setParentForm(mdiScheda::comune());
    setInnerSize(4860, 2325);
    Frame1.setBorder(false); // it reaches beyond the page at the left and below
    toolkit::place(Frame1, -30, 0, 4815, 2340);
    const QFont verdana = toolkit::font(u"Verdana"_s, 8.25);
    Frame1.setFont(verdana);
    Label3.setFont(toolkit::font(u"Verdana"_s, 9.75, true));
    toolkit::place(Label3, 105, 210, 2130, 255);
    toolkit::place(Label7, 360, 555, 975, 255);
    categoria.setAccessibleName(u"Categoria"_s);
    toolkit::place(categoria, 1560, 555, 3180, 315);
    toolkit::place(Label1, 360, 915, 975, 270);
    descrizione.setAccessibleName(u"Descrizione"_s);
    descrizione.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    toolkit::place(descrizione, 1560, 915, 3165, 525);
    toolkit::place(Label4, 360, 1485, 975, 270);
    note.setAccessibleName(u"Note finali"_s);
    toolkit::place(note, 1560, 1485, 3180, 795);
    setTabOrder(&categoria, &descrizione);
    setTabOrder(&descrizione, &note);

    connect(&categoria, &toolkit::Combo::clicked, this, [this] {
        aperta().categoria = categoria.text();
        aperta().isSaved = false;
    });
    connect(&descrizione, &toolkit::TextArea::changed, this, [this] {
        aperta().descrizione = descrizione.text();
        aperta().isSaved = false;
    });
    connect(&note, &toolkit::TextArea::changed, this, [this] {
        aperta().note = note.text();
        aperta().isSaved = false;
    });
}

SchedaModello& SchedaIntestazioneMODELLO::aperta() {
    auto* modello = dynamic_cast<SchedaModello*>(mdiScheda::comune().schedaAperta.get());
    if (modello == nullptr)
        runtime::raise(runtime::ObjectNotSet);
    return *modello;
}

void SchedaIntestazioneMODELLO::onLoad() {
    setOuterSize(4950, 2700);
    Categorie().fillcategorie(categoria);
    const SchedaModello& modello = aperta();
    if (!modello.categoria.isEmpty())
        categoria.setText(modello.categoria);
    descrizione.setText(modello.descrizione);
    note.setText(modello.note);
    if (categoria.text().isEmpty())
        categoria.selectIndex(Categorie::iniziale);
}

bool SchedaIntestazioneMODELLO::onQueryUnload() {
    return mdiScheda::comune().puoiChiudere;
}
