#include "figures/GestoreListaIMG.h"

#include "desktop/Tool_BarProg.h"
#include "figures/Figure.h"
#include "figures/TreeViewHelper.h"
#include "platform/host/Services.h"
#include "platform/toolkit/ImageTree.h"

using namespace Qt::StringLiterals;

namespace {

/// From this many figures of the machine on, matching or not, a fill shows its progress.
constexpr int figureConProgresso = 11;
constexpr int cifreFloat = 7;

/// The plain decimal text of a 32-bit number: "12", "12.5".
QString testoNumero(float numero) {
    return QString::number(static_cast<double>(numero), 'g', cifreFloat);
}

} // namespace

void GestoreListaIMG::init(const toolkit::ImageList& img) {
    tw->setFrameShape(QFrame::StyledPanel);
    tw->setImageList(&img);
}

void GestoreListaIMG::aggiorna() {
    if (gruppo.isEmpty() && muscolo.isEmpty())
        host::message(u"Selezionare un gruppo muscolare!"_s, host::Icon::Critical);
    else
        elenca();
    if (tw->nodeCount() > 0)
        tw->select(tw->nodeKey(1));
}

void GestoreListaIMG::elenca() {
    const bool tutto = muscolo == u"*"_s;
    Figure catalogo;
    catalogo.init(tutto);
    const int quante = catalogo.figureQD->Count();
    const bool conProgresso = quante >= figureConProgresso;
    if (conProgresso) {
        Tool_BarProg::comune().show();
        Tool_BarProg::comune().setTitolo(u"Caricamento immagini in corso"_s);
        Tool_BarProg::comune().Totale = static_cast<float>(quante);
    }
    tw->clear();
    for (const auto& una : *catalogo.figureQD) {
        if (una->id_muscolo == muscolo || tutto || una->nomeMuscolo == gruppo)
            aggiungiNodo(una->figura_(), una->numero, una->id_fig);
        if (conProgresso) {
            float passo = 0;
            Tool_BarProg::comune().update(passo);
        }
    }
    if (conProgresso)
        Tool_BarProg::comune().Chiudi();
}

void GestoreListaIMG::aggiungiNodo(const QString& link, float numero, qint32 id_fig) {
    if (TreeViewHelper::esisteChiave(*tw, link))
        return; // given twice for one group, or one file for two figures: the first one stays
    tw->addNode(link, u"[%1]"_s.arg(testoNumero(numero)), link);
    tw->setNodeTag(link, QString::number(id_fig));
    tw->ensureVisible(link);
    tw->viewport()->update(); // a hidden tree has nothing to draw
}
