#include "figures/Figure.h"

#include "core/ModuloBase.h"

using namespace Qt::StringLiterals;

namespace {

const QString quivr = u"QUIVR"_s;
const QString glidr = u"GLIDR"_s;

} // namespace

Figure::Figure()
    : figureQD(std::make_shared<Raccolta>()), figureGL(std::make_shared<Raccolta>()),
      muscoli(std::make_shared<runtime::Collection<muscolo>>()), archivio_(ModuloBase::nomeArchivio()) {}

bool Figure::caricata(const QString& ID_MAC) const {
    return archivio_.Dlookup(u"Caricata"_s, u"Macchinari"_s, u"ID_MAC ='"_s + ID_MAC + u'\'').toBoolean();
}

void Figure::init(bool distinct) {
    isQDLoaded = caricata(quivr);
    isGLLoaded = caricata(glidr);
    if (isQDLoaded)
        caricaFigure(*figureQD, quivr, distinct);
    if (isGLLoaded)
        caricaFigure(*figureGL, glidr, distinct);
    caricaMuscoli();
}

void Figure::caricaFigure(Raccolta& figure, const QString& ID_MAC, bool distinct) {
    const QString origine = distinct ? u"figure"_s : u"vw_figure_muscoli"_s;
    store::Recordset righe = archivio_.getRs(u"SELECT * FROM "_s + origine + u" WHERE ID_MAC = '"_s + ID_MAC +
                                             u"' ORDER BY NUMERO"_s);
    for (; !righe.EOF_(); righe.MoveNext()) {
        auto una = std::make_shared<figura>();
        una->leggi(righe, distinct);
        figure.Add(una);
    }
}

void Figure::caricaMuscoli() {
    store::Recordset righe = archivio_.getRs(u"SELECT  * FROM muscoli ORDER BY NOME"_s);
    for (; !righe.EOF_(); righe.MoveNext()) {
        auto uno = std::make_shared<muscolo>();
        uno->id_muscolo = righe(u"id_muscolo").toText();
        uno->nome = righe(u"nome").toText();
        uno->nomeMuscolo = righe(u"nomeMuscolo").toText();
        muscoli->Add(uno);
    }
}
