#include "templates/SchedeMODELLONuova.h"

#include "cards/mdiScheda.h"
#include "core/variabiliGlobali.h"
#include "platform/host/Services.h"
#include "platform/toolkit/Fonts.h"
#include "platform/toolkit/Twips.h"
#include "templates/Categorie.h"
#include "templates/SchedaModello.h"

#include <QKeyEvent>

using namespace Qt::StringLiterals;

SchedeMODELLONuova::SchedeMODELLONuova()
    : Form(u"SchedeMODELLONuova"_s), Label1(u"Label1"_s, u"Categoria: "_s, client()),
      Label2(u"Label2"_s, u"Descrizione"_s, client()),
      categoria(u"categoria"_s, client(), toolkit::Combo::Kind::Fixed),
      descrizione(u"descrizione"_s, client()), cmdOk(u"cmdOk"_s, u"Ok"_s, client()) {
    setCaption(u"Nuova Scheda Modello"_s);
    setInnerSize(4005, 1815);
    const QFont verdana = toolkit::font(u"Verdana"_s, 8.25);
    for (QWidget* controllo :
         {static_cast<QWidget*>(&Label1), static_cast<QWidget*>(&Label2), static_cast<QWidget*>(&categoria),
          static_cast<QWidget*>(&descrizione), static_cast<QWidget*>(&cmdOk)})
        controllo->setFont(verdana);
    toolkit::place(Label1, 120, 120, 1800, 255);
    QFont stretto = verdana;
    stretto.setStretch(88); // the longest of the supplied names shows whole
    categoria.setFont(stretto);
    categoria.setAccessibleName(u"Categoria"_s);
    toolkit::place(categoria, 1440, 120, 2535, 315);
    toolkit::place(Label2, 120, 600, 1320, 255);
    descrizione.setAccessibleName(u"Descrizione"_s);
    descrizione.installEventFilter(this);
    toolkit::place(descrizione, 1440, 600, 2535, 855);
    toolkit::place(cmdOk, 0, 1560, 3975, 255);
    setTabOrder(&categoria, &descrizione);
    setTabOrder(&descrizione, &cmdOk);
    connect(&cmdOk, &toolkit::Button::clicked, this, &SchedeMODELLONuova::cmdOk_Click);
}

void SchedeMODELLONuova::onLoad() {
    Categorie().fillcategorie(categoria);
    if (!variabiliGlobali::nomeModelloSelezionato.isEmpty())
        categoria.setText(variabiliGlobali::nomeModelloSelezionato);
    else
        categoria.selectIndex(Categorie::iniziale);
}

bool SchedeMODELLONuova::eventFilter(QObject* watched, QEvent* event) {
    if (watched == &descrizione && event->type() == QEvent::KeyPress) {
        const int tasto = static_cast<QKeyEvent*>(event)->key();
        if (tasto == Qt::Key_Return || tasto == Qt::Key_Enter) {
            cmdOk_Click();
            return true;
        }
    }
    return Form::eventFilter(watched, event);
}

void SchedeMODELLONuova::cmdOk_Click() {
    if (descrizione.text().isEmpty() || categoria.text().isEmpty()) {
        host::message(u"Inserire tutti i dati"_s, host::Icon::Critical);
        return;
    }
    SchedaModello modello;
    modello.categoria = categoria.text();
    modello.descrizione = descrizione.text();
    variabiliGlobali::idModelloSelezionato = modello.save();
    unload();
    mdiScheda::comune().show(); // its window alone: what it opens is told later
}
