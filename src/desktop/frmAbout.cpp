#include "desktop/frmAbout.h"

#include "artwork/logos/Loghi.h"
#include "desktop/InformazioniSistema.h"
#include "platform/host/Application.h"
#include "platform/toolkit/Fonts.h"
#include "platform/toolkit/Twips.h"

#include <sqlite3.h>

using namespace Qt::StringLiterals;

using toolkit::place;

frmAbout::frmAbout()
    : Form(u"frmAbout"_s), Image1(u"Image1"_s, client()), Image2(u"Image2"_s, client()),
      lblTitle(u"lblTitle"_s, {}, client()), lblVersion(u"lblVersion"_s, {}, client()),
      lblDescription(u"lblDescription"_s, {}, client()),
      lblLink(u"lblLink"_s, u"www.example.org/quiverdeck"_s, QUrl(paginaWeb()), client()),
      lblLinkEmailAuthor(u"lblLinkEmailAuthor"_s, u"quiverdeck@example.org"_s, QUrl(posta()), client()),
      lblDisclaimer(u"lblDisclaimer"_s, {}, client()), cmdOK(u"cmdOK"_s, u"OK"_s, client()),
      cmdSysInfo(u"cmdSysInfo"_s, u"&System Info..."_s, client()) {
    setCaption(u"Informazioni sul programma"_s);
    setInnerSize(5835, 4620);

    place(Image1, 180, 180, 1800, 540);
    Image1.setImage(artwork::logo(artwork::Logo::QuiverDeck, {480, 144}));
    place(Image2, 3900, 180, 1755, 540);
    Image2.setImage(artwork::logo(artwork::Logo::Zentara, {468, 144}));
    lblTitle.setFont(toolkit::font(u"Arial"_s, 14, true));
    place(lblTitle, 180, 885, 5475, 330);
    place(lblVersion, 180, 1260, 5475, 225);
    lblDescription.setWordWrap(true);
    place(lblDescription, 180, 1575, 5475, 840);
    place(lblLink, 180, 2685, 4200, 225);
    place(lblLinkEmailAuthor, 180, 3135, 4200, 225);
    lblDisclaimer.setWordWrap(true);
    place(lblDisclaimer, 180, 3645, 5475, 885);

    place(cmdOK, 4530, 2625, 1125, 345);
    place(cmdSysInfo, 4545, 3075, 1110, 345);
    connect(&cmdOK, &toolkit::Button::clicked, this, [this] { unload(); });
    connect(&cmdSysInfo, &toolkit::Button::clicked, this, [] { InformazioniSistema::StartSysInfo(); });
    cmdOK.setFocus(); // the links stand before it
}

QString frmAbout::paginaWeb() {
    return u"https://www.example.org/quiverdeck"_s;
}

QString frmAbout::posta() {
    return u"mailto:quiverdeck@example.org"_s;
}

void frmAbout::onLoad() {
    setCaption(u"Informazioni su "_s + host::title());
    lblVersion.setCaption(u"Versione "_s + host::versionText());
    lblTitle.setCaption(host::title());
    lblDisclaimer.setCaption(
        u"ATTENZIONE: questo programma è fornito così com’è, senza garanzie di alcun tipo. Gli autori "
        "non rispondono di danni che derivino dal suo uso. Le schede non sostituiscono il parere del "
        "medico: l’istruttore valuta se un esercizio è adatto all’atleta."_s);
    lblDescription.setCaption(u"Schede di allenamento per la pedana vibrante.\n"
                              "Realizzato dagli autori di Quiverdeck\n"
                              "per gli istruttori e per i loro atleti.\n"
                              "Licenza MIT – Qt %1, SQLite %2"_s.arg(QLatin1String(qVersion()),
                                                                     QLatin1String(sqlite3_libversion())));
}
