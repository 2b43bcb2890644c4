#include "desktop/zTESTDragAndDrop.h"

#include "figures/figura.h"
#include "platform/runtime/Conversions.h"
#include "platform/toolkit/Twips.h"

using namespace Qt::StringLiterals;

zTESTDragAndDrop::zTESTDragAndDrop()
    : Form(u"zTESTDragAndDrop"_s), ImageList1({60, 60}), twImage(u"twImage"_s, client()),
      figura_(u"figura"_s, client()), lblTesto(u"lblTesto"_s, u"Trascinare qui una figura"_s, client()) {
    setCaption(u"Prova di trascinamento"_s);
    setInnerSize(6300, 4200);
    toolkit::place(twImage, 120, 120, 2700, 3960);
    twImage.setAccessibleName(u"Figure"_s);
    toolkit::place(figura_, 3060, 120, 3000, 3000);
    figura_.setFrameStyle(QFrame::StyledPanel | QFrame::Plain);
    figura_.setDropTarget(true);
    toolkit::place(lblTesto, 3060, 3240, 3000, 255);
    connect(&figura_, &toolkit::PictureBox::dropped, this, &zTESTDragAndDrop::riceve);
}

void zTESTDragAndDrop::onLoad() {
    constexpr int quante = 5;
    twImage.setImageList(&ImageList1);
    twImage.setDragSource([this] { return twImage.selectedKey(); });
    store::Recordset riga = db::comune().getRs(u"SELECT id_fig FROM figure ORDER BY numero"_s);
    for (int i = 0; i < quante && !riga.EOF_(); ++i, riga.MoveNext()) {
        const qint32 chiave = riga(u"id_fig").toInt32();
        figura una;
        una.carica(chiave);
        ImageList1.add(QString::number(chiave), una.figura_());
        twImage.addNode(QString::number(chiave), u"[%1]"_s.arg(chiave), QString::number(chiave));
    }
}

void zTESTDragAndDrop::riceve(const QString& testo) {
    lblTesto.setCaption(testo);
    figura una;
    if (una.carica(runtime::toInt32(runtime::leadingNumber(testo))))
        figura_.load(una.figura_());
}
