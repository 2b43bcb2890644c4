#include "desktop/frmPersonalizza.h"

#include "desktop/copiaLogo.h"
#include "platform/host/ProgramDirectory.h"
#include "platform/host/Services.h"
#include "platform/runtime/Error.h"
#include "platform/toolkit/Fonts.h"
#include "platform/toolkit/Hourglass.h"
#include "platform/toolkit/Twips.h"
#include "printing/percorsoLogo.h"

#include <QKeyEvent>

using namespace Qt::StringLiterals;
using toolkit::place;

namespace {

constexpr double latoLogo = 3000; // twips, as all that follows
constexpr double logoLeft = 1650;
constexpr double logoTop = 1110;
constexpr double pannelloLeft = 210;
constexpr double pannelloVia = -20000; // where the panels of the other tabs stand

} // namespace

frmPersonalizza::frmPersonalizza()
    : Form(u"frmPersonalizza"_s), tbsOptions(u"tbsOptions"_s, client()),
      picOptions{std::make_unique<toolkit::Frame>(u"picOptions_0"_s, client()),
                 std::make_unique<toolkit::Frame>(u"picOptions_1"_s, client()),
                 std::make_unique<toolkit::Frame>(u"picOptions_2"_s, client()),
                 std::make_unique<toolkit::Frame>(u"picOptions_3"_s, client())},
      Label1(u"Label1"_s, u"Nome Palestra: "_s, picOptions[0].get()), nome(u"nome"_s, picOptions[0].get()),
      Label4(u"Label4"_s, u"Responsabile: "_s, picOptions[0].get()),
      responsabile(u"responsabile"_s, picOptions[0].get()),
      Label2(u"Label2"_s, u"Logo: "_s, picOptions[0].get()), logo(u"logo"_s, picOptions[0].get()),
      noImage(u"noImage"_s, u"Nessuna immagine caricata"_s, picOptions[0].get()),
      cmdApriIMG(u"cmdApriIMG"_s, u"Seleziona Immagine"_s, picOptions[0].get()),
      cmdOK(u"cmdOK"_s, u"OK"_s, client()), cmdCancel(u"cmdCancel"_s, u"Annulla"_s, client()),
      cmdApply(u"cmdApply"_s, u"Applica"_s, client()) {
    setCaption(u"Personalizza"_s);
    setInnerSize(7230, 5625);

    place(tbsOptions, pannelloLeft, 150, 6810, 345);
    tbsOptions.addTab(u"palestra"_s, u"Palestra "_s, u"Personalizzazioni della palestra"_s);
    tbsOptions.setAccessibleName(caption());
    for (auto& pannello : picOptions) {
        place(*pannello, pannelloVia, 480, 6810, 4410);
        pannello->setBorder(false);
        pannello->setEnabled(false);
    }

    place(Label1, 180, 240, 1440, 255);
    place(nome, logoLeft, 210, 4950, 300);
    nome.setAccessibleName(Label1.caption());
    place(Label4, 180, 690, 1440, 255);
    place(responsabile, logoLeft, 660, 4950, 300);
    responsabile.setAccessibleName(Label4.caption());
    place(Label2, 180, 1140, 1440, 255);
    place(logo, logoLeft, logoTop, latoLogo, latoLogo);
    logo.setFrameStyle(QFrame::StyledPanel | QFrame::Plain);
    place(noImage, logoLeft + 60, logoTop + 1350, latoLogo - 120, 300);
    noImage.setFont(toolkit::font(u"Arial"_s, 8.25, true));
    noImage.setAlignment(Qt::AlignCenter);
    place(cmdApriIMG, 4800, logoTop, 1800, 375);

    place(cmdOK, 3240, 5085, 1185, 375);
    place(cmdCancel, 4530, 5085, 1185, 375);
    place(cmdApply, 5820, 5085, 1185, 375);

    connect(&tbsOptions, &toolkit::TabStrip::clicked, this, &frmPersonalizza::tbsOptions_Click);
    connect(&cmdApriIMG, &QPushButton::clicked, this, &frmPersonalizza::cmdApriIMG_Click);
    connect(&cmdOK, &QPushButton::clicked, this, [this] {
        salva();
        unload();
    });
    connect(&cmdCancel, &QPushButton::clicked, this, [this] { unload(); });
    connect(&cmdApply, &QPushButton::clicked, this, &frmPersonalizza::salva);
    tbsOptions_Click();
}

void frmPersonalizza::onLoad() {
    centre();
    ridimensionatore = std::make_unique<RidimensionatoreImmagini>();
    ridimensionatore->setImage(logo);
    palestra_ = std::make_unique<palestra>();
    const toolkit::Hourglass attesa;
    palestra_->carica();
    nome.setText(palestra_->nome);
    responsabile.setText(palestra_->responsabile);
    if (!palestra_->logo.isEmpty()) {
        // Moved along with the program's folder: the present place is shown, and stored from now on.
        const QString trovato = percorsoLogo(palestra_->logo);
        mostraLogo(trovato == host::resolve(palestra_->logo) ? palestra_->logo : trovato);
    }
}

void frmPersonalizza::onUnload() {
    palestra_.reset();
    ridimensionatore.reset();
}

void frmPersonalizza::mostraLogo(const QString& percorso) {
    logo.setVisible(false);
    logo.load(percorso);
    logo.Tag = percorso;
    // From the picture's own size and the home place, whatever logo was shown before.
    place(logo, logoLeft, logoTop, logo.pictureSize().width(), logo.pictureSize().height());
    ridimensionatore->ridimensiona();
    noImage.setVisible(false);
}

void frmPersonalizza::cmdApriIMG_Click() {
    const QString scelto = host::fileDialogs().openFile(u"File Immagine|*.JPG;*.BMP;*.GIF"_s, {});
    if (scelto.isEmpty())
        return;
    try {
        const toolkit::Hourglass attesa;
        mostraLogo(copiaLogo(scelto));
    } catch (const runtime::Error& errore) {
        host::message(errore.description() + u"\n\nIl logo non è stato cambiato."_s, host::Icon::Critical);
    }
}

void frmPersonalizza::salva() {
    const toolkit::Hourglass attesa;
    palestra_->nome = nome.text();
    palestra_->responsabile = responsabile.text();
    palestra_->logo = logo.Tag;
    palestra_->save();
}

void frmPersonalizza::tbsOptions_Click() {
    for (int pagina = 0; pagina < pagine; ++pagina) {
        toolkit::Frame& pannello = *picOptions.at(static_cast<std::size_t>(pagina));
        const bool scelta = pagina + 1 == tbsOptions.selectedIndex();
        pannello.move(toolkit::toPixels(scelta ? pannelloLeft : pannelloVia), pannello.y());
        pannello.setEnabled(scelta);
    }
}

void frmPersonalizza::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Tab && event->modifiers() == Qt::ControlModifier) {
        tbsOptions.select(tbsOptions.selectedIndex() % tbsOptions.count() + 1);
        return;
    }
    Form::keyPressEvent(event);
}
