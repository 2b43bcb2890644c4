#include "figures/GestoreListaFolder.h"

#include "figures/Figure.h"
#include "platform/toolkit/ImageTree.h"

using namespace Qt::StringLiterals;

void GestoreListaFolder::init(const toolkit::ImageList& img) {
    tw->clear();
    tw->setFrameShape(QFrame::StyledPanel);
    tw->setImageList(&img);
}

void GestoreListaFolder::fillList() {
    Figure catalogo;
    catalogo.init(false);
    const QString cartella = u"Cartella"_s;
    const QString radice = u"root"_s;
    tw->addNode(radice, u"Elenco Completo"_s, cartella);
    tw->ensureVisible(radice);
    tw->select(radice);
    QString precedente;
    for (const auto& gruppo : *catalogo.muscoli) {
        // Only neighbours are compared: the groups come sorted by name.
        if (gruppo->nome != precedente) {
            tw->addNode(gruppo->id_muscolo, gruppo->nome, cartella, radice);
            tw->ensureVisible(gruppo->id_muscolo);
        }
        precedente = gruppo->nome;
    }
}
