#include "desktop/zTestTreeViewImage.h"

#include "figures/GestoreListaFolder.h"
#include "platform/host/ProgramDirectory.h"
#include "platform/toolkit/Twips.h"

using namespace Qt::StringLiterals;

zTestTreeViewImage::zTestTreeViewImage()
    : Form(u"zTestTreeViewImage"_s), ImageList1({25, 25}), tw(u"tw"_s, client()),
      lblChiave(u"lblChiave"_s, u"Nessuna scelta"_s, client()) {
    setCaption(u"Prova dell’albero di immagini"_s);
    setInnerSize(4200, 5100);
    toolkit::place(tw, 120, 120, 3960, 4485);
    tw.setAccessibleName(u"Gruppi muscolari"_s);
    toolkit::place(lblChiave, 120, 4725, 3960, 255);
    connect(&tw, &toolkit::ImageTree::nodeClick, this,
            [this](const QString& chiave) { lblChiave.setCaption(chiave); });
}

void zTestTreeViewImage::onLoad() {
    ImageList1.add(u"Cartella"_s, host::joined(u"\\images\\FolderXP.JPG"_s));
    GestoreListaFolder gestore;
    gestore.tw = &tw;
    gestore.init(ImageList1);
    gestore.fillList();
}
