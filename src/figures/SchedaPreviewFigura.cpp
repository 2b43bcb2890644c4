#include "figures/SchedaPreviewFigura.h"

#include "artwork/icons/Icone.h"
#include "cards/mdiScheda.h"
#include "platform/toolkit/Fonts.h"
#include "platform/toolkit/Twips.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr float fattoreZoom = 1.2F;
/// Where the desktop stops a window, in pixels: a title with its close box, and more than any screen.
constexpr int latoMinimo = 112;
constexpr int latoMassimo = 16384;

float entroILimiti(float twips) {
    return std::clamp(twips, static_cast<float>(toolkit::toTwips(latoMinimo)),
                      static_cast<float>(toolkit::toTwips(latoMassimo)));
}

} // namespace

SchedaPreviewFigura::SchedaPreviewFigura()
    : Form(u"SchedaPreviewFigura"_s),
      Label1(u"Label1"_s, u"Fare click su un'immagine per visualizzare l'anteprima"_s, client()),
      Image1(u"Image1"_s, client()), ZoomPiu(u"ZoomPiu"_s, u"+"_s, client()),
      ZoomMeno(u"ZoomMeno"_s, u"-"_s, client()), cmdClose(u"cmdClose"_s, {}, client()) {
    setCaption(u"Preview"_s);
    setParentForm(mdiScheda::comune());
    setInnerSize(5760, 5775);

    Label1.setFont(toolkit::font(u"Verdana"_s, 8.25));
    Label1.setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    Label1.setWordWrap(true);
    toolkit::place(Label1, 675, 2385, 4470, 480);
    toolkit::place(Image1, 0, 0, 5775, 5775);
    const auto pulsante = [](toolkit::Button& b, const QString& descrizione, double left) {
        b.setAccessibleName(descrizione);
        b.setToolTip(descrizione);
        toolkit::place(b, left, 15, 480, 255);
    };
    pulsante(ZoomPiu, u"Ingrandisce la finestra"_s, 4335);
    pulsante(ZoomMeno, u"Riduce la finestra"_s, 4815);
    pulsante(cmdClose, u"Chiude l’anteprima"_s, 5295);
    cmdClose.setPicture(artwork::icona(objectName(), u"cmdClose"_s));

    connect(&ZoomPiu, &toolkit::Button::clicked, this, [this] { zoom(true); });
    connect(&ZoomMeno, &toolkit::Button::clicked, this, [this] { zoom(false); });
    connect(&cmdClose, &toolkit::Button::clicked, this, [this] { hide(); });
}

void SchedaPreviewFigura::onLoad() {
    setOuterSize(5850, 6150);
}

bool SchedaPreviewFigura::onQueryUnload() {
    return mdiScheda::comune().puoiChiudere;
}

void SchedaPreviewFigura::LoadImage(const QString& sFileName) {
    if (sFileName.isEmpty())
        Image1.clear();
    else
        Image1.load(sFileName);
}

void SchedaPreviewFigura::zoom(bool ingrandisci) {
    const auto lato = [ingrandisci](double twips) {
        const auto ora = static_cast<float>(twips);
        return entroILimiti(ingrandisci ? ora * fattoreZoom : ora / fattoreZoom);
    };
    const float altezza = lato(outerHeight());
    setOuterSize(lato(outerWidth()), altezza);
}
