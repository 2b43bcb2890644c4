#include "desktop/Tool_BarProg.h"

#include "desktop/Ridisegno.h"
#include "platform/runtime/Conversions.h"
#include "platform/toolkit/Exposure.h"
#include "platform/toolkit/Fonts.h"
#include "platform/toolkit/Twips.h"

#include <QCoreApplication>
#include <QEventLoop>

#include <cmath>

using namespace Qt::StringLiterals;

using toolkit::place;

namespace {

constexpr double sinistra = 120;
constexpr double alto = 120;
constexpr double larghezza = 3975;
constexpr double altezza = 360;
constexpr int attesaMassima = 200; // milliseconds

} // namespace

Tool_BarProg::Tool_BarProg()
    : Form(u"Tool_BarProg"_s), retStatus(client()), Status(u"Status"_s, {}, client()) {
    setCaption(u"  Attendere prego..."_s);
    setInnerSize(4230, 600);

    retStatus.setObjectName(u"retStatus"_s);
    retStatus.setAutoFillBackground(true);
    QPalette colours = retStatus.palette();
    colours.setColor(QPalette::Window, QColor(0x80, 0x80, 0xFF));
    retStatus.setPalette(colours);
    place(retStatus, 180, 270, 15, 180);

    Status.setFont(toolkit::font(u"Verdana"_s, 9.75, true));
    Status.setAlignment(Qt::AlignCenter);
    Status.setCaption(u"0 %"_s);
    place(Status, sinistra, alto, larghezza, altezza);
}

void Tool_BarProg::onLoad() {
    percentuale = 0;
    ultimoPasso = 0;
    setPointer(Pointer::Hourglass);
    place(retStatus, sinistra, alto, 0, altezza);
    Status.setCaption(u"0%"_s);
    setTitolo(u"Elaborazione in corso..."_s);
    ridisegna();
}

void Tool_BarProg::onActivate() {
    toolkit::waitForExposure(*this, attesaMassima);
}

void Tool_BarProg::setTitolo(const QString& s) {
    setCaption(s);
}

void Tool_BarProg::update(float& nPasso) {
    if (nPasso == 0)
        nPasso = ultimoPasso + 1;
    fatto = nPasso / Totale;
    if (!(nPasso <= Totale))
        return;
    const float p = std::floor(fatto * 100);
    if (p != percentuale) {
        place(retStatus, sinistra, alto, runtime::toInt32(larghezza * double(fatto)), altezza);
        // A zero has no digits here: the mark stands alone.
        Status.setCaption((p == 0 ? QString() : runtime::numberText(double(p))) + QLatin1Char('%'));
        ridisegna();
        percentuale = p;
    }
    ultimoPasso = nPasso;
}

void Tool_BarProg::Chiudi() {
    setPointer(Pointer::Default);
    unload();
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents); // it leaves the screen now
}

void Tool_BarProg::ridisegna() {
    desktop::ridisegna(*this);
}
