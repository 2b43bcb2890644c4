#include "desktop/ResolutionConfirm.h"

#include "core/variabiliGlobali.h"
#include "platform/toolkit/Fonts.h"
#include "platform/toolkit/Twips.h"

using namespace Qt::StringLiterals;

using toolkit::place;

namespace {

constexpr int secondiIniziali = 16;
constexpr int intervallo = 1000; // milliseconds

} // namespace

ResolutionConfirm::ResolutionConfirm()
    : Form(u"ResolutionConfirm"_s),
      Label2(u"Label2"_s,
             u"Se riuscite a leggere queste scritte il cambio risoluzione è andato a buon fine. "
             "Premere OK prima che scada il tempo"_s,
             client()),
      Label1(u"Label1"_s, u"Secondi rimasti ... "_s, client()), lblSec(u"lblSec"_s, {}, client()),
      OKButton(u"OKButton"_s, u"OK"_s, client()), CancelButton(u"CancelButton"_s, u"Annulla"_s, client()) {
    setCaption(u"Conferma Cambio Risoluzione"_s);
    setInnerSize(5700, 1980);

    Label2.setFont(toolkit::font(u"Verdana"_s, 9.75));
    Label2.setWordWrap(true);
    place(Label2, 240, 225, 5220, 780);
    place(Label1, 240, 1500, 1290, 225);
    lblSec.setFont(toolkit::font(u"MS Sans Serif"_s, 8.25, true));
    place(lblSec, 1560, 1500, 450, 225);

    place(OKButton, 2910, 1410, 1215, 375);
    place(CancelButton, 4245, 1410, 1215, 375);
    connect(&OKButton, &toolkit::Button::clicked, this, [this] { rispondi(1); });
    connect(&CancelButton, &toolkit::Button::clicked, this, [this] { rispondi(2); });

    Timer.setObjectName(u"Timer"_s);
    Timer.setParent(this);
    Timer.setInterval(intervallo);
    connect(&Timer, &QTimer::timeout, this, &ResolutionConfirm::tick);
}

void ResolutionConfirm::onLoad() {
    setSecondi(secondiIniziali);
    Timer.start();
}

void ResolutionConfirm::onUnload() {
    Timer.stop();
}

void ResolutionConfirm::setSecondi(int n) {
    secondi = n;
    lblSec.setCaption(QString::number(n));
}

void ResolutionConfirm::tick() {
    if (secondi > 0)
        setSecondi(secondi - 1);
    else
        rispondi(2); // the seventeenth tick: a little more than the promised time, as it shall be
}

void ResolutionConfirm::rispondi(qint16 risposta) {
    variabiliGlobali::rispostaRisoluzione = risposta;
    unload();
}
