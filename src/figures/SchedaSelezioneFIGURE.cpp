#include "figures/SchedaSelezioneFIGURE.h"

#include "artwork/icons/Icone.h"
#include "cards/mdiScheda.h"
#include "figures/SchedaPreviewFigura.h"
#include "platform/host/Services.h"
#include "platform/runtime/Conversions.h"
#include "platform/runtime/Error.h"
#include "platform/toolkit/Fonts.h"
#include "platform/toolkit/Twips.h"

using namespace Qt::StringLiterals;

namespace {

constexpr qint16 tabElenco = 1;
constexpr qint16 tabMappa = 2;
/// Codes of muscle groups have at most this many characters, which tells them from the key "root".
constexpr int lunghezzaCodice = 3;

} // namespace

SchedaSelezioneFIGURE::SchedaSelezioneFIGURE()
    : Form(u"SchedaSelezioneFIGURE"_s),
      TabStrip1(u"TabStrip1"_s, client(), toolkit::TabStrip::Direction::Upright), Frame1{QFrame(client()),
                                                                                         QFrame(client())},
      twFolder(u"twFolder"_s, &Frame1[0]),
      Label1(u"Label1"_s, u"Fare click sul gruppo muscolare di interesse"_s, &Frame1[1]),
      BodyMap1(u"BodyMap1"_s, &Frame1[1]), twImage(u"twImage"_s, client()),
      cmdZoom(u"cmdZoom"_s, u"Zoom Immagine"_s, client()) {
    setCaption(u"Selezione Esercizi"_s);
    setParentForm(mdiScheda::comune());
    setInnerSize(6840, 7260);

    TabStrip1.setAccessibleName(u"Modo di ricerca"_s);
    TabStrip1.addTab(u"elenco"_s, u"Elenco Completo"_s);
    TabStrip1.addTab(u"gruppo"_s, u"Per Gruppo Muscolare"_s);
    toolkit::place(TabStrip1, -15, 0, 375, 7215);

    Frame1[0].setObjectName(u"Frame1_1"_s);
    toolkit::place(Frame1[0], 360, 0, 6405, 7215);
    Frame1[0].hide();
    Frame1[1].setObjectName(u"Frame1_2"_s);
    toolkit::place(Frame1[1], 360, 0, 6390, 7200);

    twFolder.setAccessibleName(u"Gruppi muscolari"_s);
    toolkit::place(twFolder, 105, 240, 2970, 6450);
    Label1.setFont(toolkit::font(u"Verdana"_s, 7.5)); // two lines in its height
    Label1.setWordWrap(true);
    toolkit::place(Label1, 30, 240, 3135, 375);
    toolkit::place(BodyMap1, 165, 705, 2835, 3015);
    twImage.setDragSource([this] { return twImage_StartDrag(); });
    twImage.setAccessibleName(u"Figure"_s);
    toolkit::place(twImage, 3495, 240, 3180, 6870);
    cmdZoom.setPicture(artwork::icona(objectName(), u"cmdZoom"_s));
    toolkit::place(cmdZoom, 465, 6690, 2955, 480);
    twImage.raise(); // in front of both frames: seen on both tabs

    setTabOrder(&TabStrip1, &twFolder);
    setTabOrder(&twFolder, &twImage);
    setTabOrder(&twImage, &cmdZoom);

    connect(&TabStrip1, &toolkit::TabStrip::clicked, this, &SchedaSelezioneFIGURE::TabStrip1_Click);
    connect(&twFolder, &toolkit::ImageTree::nodeClick, this, &SchedaSelezioneFIGURE::aggiornaDaCartella);
    connect(&BodyMap1, &BodyMap::Change, this, &SchedaSelezioneFIGURE::BodyMap1_Change);
    connect(&twImage, &toolkit::ImageTree::nodePressed, this,
            [this](const QString& chiave) { nodoTrascinato = chiave; });
    connect(&twImage, &toolkit::ImageTree::nodeClick, this, &SchedaSelezioneFIGURE::twImage_NodeClick);
    connect(&cmdZoom, &toolkit::Button::clicked, this, &SchedaSelezioneFIGURE::cmdZoom_Click);
}

void SchedaSelezioneFIGURE::onLoad() {
    setOuterSize(6930, 7735);
    gestoreCartelle.tw = &twFolder;
    gestoreCartelle.init(mdiScheda::comune().ImageList1);
    gestoreCartelle.fillList();
    gestoreImmagini.tw = &twImage;
    gestoreImmagini.init(mdiScheda::comune().ImageList2);
    tabCorrente = tabMappa;
    TabStrip1.select(tabMappa); // runs TabStrip1_Click, which finds nothing to do
    BodyMap1.onLoad();
    BodyMap1_Change(u"PET"_s);
}

bool SchedaSelezioneFIGURE::onQueryUnload() {
    ultimaSelezione.clear(); // after a refused close the marked group can be listed again
    return mdiScheda::comune().puoiChiudere;
}

void SchedaSelezioneFIGURE::TabStrip1_Click() {
    const auto scelto = static_cast<qint16>(TabStrip1.selectedIndex());
    if (scelto == tabCorrente || tabCorrente == 0)
        return;
    Frame1[static_cast<std::size_t>(scelto - 1)].show();
    Frame1[static_cast<std::size_t>(tabCorrente - 1)].hide();
    tabCorrente = scelto;
    twImage.hide();
    twImage.clear();
    twImage.show();
    if (scelto == tabElenco) {
        twFolder.setFocus();
        aggiornaDaCartella();
    } else {
        ultimaSelezione.clear();
        BodyMap1.onLoad();
    }
}

void SchedaSelezioneFIGURE::aggiornaDaCartella() {
    const QString chiave = twFolder.selectedKey();
    const QString testo = twFolder.nodeText(chiave);
    if (testo != ultimaSelezione) {
        gestoreImmagini.muscolo = chiave.length() > lunghezzaCodice ? u"*"_s : chiave;
        gestoreImmagini.gruppo = testo;
        riempiImmagini();
    }
    ultimaSelezione = testo;
}

void SchedaSelezioneFIGURE::BodyMap1_Change(const QString& id_muscolo) {
    if (id_muscolo != ultimaSelezione) {
        BodyMap1.changeMuscle(id_muscolo);
        gestoreImmagini.gruppo.clear();
        gestoreImmagini.muscolo = id_muscolo;
        riempiImmagini();
    }
    ultimaSelezione = id_muscolo;
}

void SchedaSelezioneFIGURE::riempiImmagini() {
    const bool aveaFuoco = twImage.hasFocus();
    twImage.hide();
    gestoreImmagini.aggiorna();
    twImage.show();
    if (aveaFuoco)
        twImage.setFocus();
}

void SchedaSelezioneFIGURE::twImage_NodeClick(const QString& chiave) {
    const QString immagine = twImage.nodeImage(chiave);
    if (immagine != u"Cartella"_s && SchedaPreviewFigura::esiste() &&
        SchedaPreviewFigura::comune().isVisible())
        SchedaPreviewFigura::comune().LoadImage(immagine);
}

QString SchedaSelezioneFIGURE::twImage_StartDrag() const {
    // No file is read here: "file not found", the one error after which a drag is tried anew, cannot arise.
    try {
        if (!twImage.contains(nodoTrascinato))
            runtime::raise(runtime::ObjectNotSet);
        return QString::number(runtime::toInt32(runtime::leadingNumber(twImage.nodeTag(nodoTrascinato))));
    } catch (const runtime::Error& errore) {
        host::message(errore.description());
        return {};
    }
}

void SchedaSelezioneFIGURE::cmdZoom_Click() {
    if (!twImage.hasSelection())
        return;
    SchedaPreviewFigura& anteprima = SchedaPreviewFigura::comune();
    anteprima.LoadImage(twImage.selectedKey());
    anteprima.show();
}
