#include "desktop/zfrmTestDB.h"

#include "cards/SchedaApribile.h"
#include "cards/SchedaCorpo2.h"
#include "desktop/frmDisplay.h"
#include "desktop/testClassi.h"
#include "desktop/zTESTDragAndDrop.h"
#include "desktop/zTestTreeViewImage.h"
#include "platform/toolkit/Twips.h"

using namespace Qt::StringLiterals;

zfrmTestDB::zfrmTestDB()
    : Form(u"zfrmTestDB"_s), cmdConteggi(u"cmdConteggi"_s, u"Righe delle tabelle"_s, client()),
      cmdDragAndDrop(u"cmdDragAndDrop"_s, u"Trascinamento"_s, client()),
      cmdTreeViewImage(u"cmdTreeViewImage"_s, u"Albero di immagini"_s, client()),
      cmdSchedaCorpo2(u"cmdSchedaCorpo2"_s, u"Pagina compatta"_s, client()) {
    setCaption(u"Tests"_s);
    setInnerSize(3600, 2370);
    toolkit::place(cmdConteggi, 300, 300, 3000, 375);
    toolkit::place(cmdDragAndDrop, 300, 765, 3000, 375);
    toolkit::place(cmdTreeViewImage, 300, 1230, 3000, 375);
    toolkit::place(cmdSchedaCorpo2, 300, 1695, 3000, 375);
    connect(&cmdConteggi, &QPushButton::clicked, this, [] {
        frmDisplay::comune().stampa(testClassi::conteggi());
        frmDisplay::comune().showModal();
    });
    connect(&cmdDragAndDrop, &QPushButton::clicked, this, [] { zTESTDragAndDrop::comune().showModal(); });
    connect(&cmdTreeViewImage, &QPushButton::clicked, this, [] { zTestTreeViewImage::comune().showModal(); });
    connect(&cmdSchedaCorpo2, &QPushButton::clicked, this, [] {
        SchedaCorpo2::comune().schedaAperta = testClassi::schedaDiProva();
        SchedaCorpo2::comune().showModal();
    });
}
