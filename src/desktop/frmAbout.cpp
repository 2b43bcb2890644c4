#include "desktop/frmAbout.h"

#include "artwork/logos/Loghi.h"
#include "desktop/InformazioniSistema.h"
#include "platform/host/Application.h"
#include "platform/toolkit/Fonts.h"
#include "platform/toolkit/Twips.h"

#include <sqlite3.h>

using toolkit::place;

frmAbout::frmAbout()
    : Form(QStringLiteral("frmAbout")), Image1(QStringLiteral("Image1"), client()),
      Image2(QStringLiteral("Image2"), client()), lblTitle(QStringLiteral("lblTitle"), {}, client()),
      lblVersion(QStringLiteral("lblVersion"), {}, client()),
      lblDescription(QStringLiteral("lblDescription"), {}, client()),
      lblLink(QStringLiteral("lblLink"), QStringLiteral("www.example.org/quiverdeck"), QUrl(paginaWeb()),
              client()),
      lblLinkEmailAuthor(QStringLiteral("lblLinkEmailAuthor"), QStringLiteral("quiverdeck@example.org"),
                         QUrl(posta()), client()),
      lblDisclaimer(QStringLiteral("lblDisclaimer"), {}, client()),
      cmdOK(QStringLiteral("cmdOK"), QStringLiteral("OK"), client()),
      cmdSysInfo(QStringLiteral("cmdSysInfo"), QStringLiteral("&System Info..."), client()) {
    setCaption(QStringLiteral("Informazioni sul programma"));
    setInnerSize(5835, 4620);

    place(Image1, 180, 180, 1800, 540);
    Image1.setImage(artwork::logo(artwork::Logo::QuiverDeck, {480, 144}));
    place(Image2, 3900, 180, 1755, 540);
    Image2.setImage(artwork::logo(artwork::Logo::Zentara, {468, 144}));
    lblTitle.setFont(toolkit::font(QStringLiteral("Arial"), 14, true));
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
    return QStringLiteral("https://www.example.org/quiverdeck");
}

QString frmAbout::posta() {
    return QStringLiteral("mailto:quiverdeck@example.org");
}

void frmAbout::onLoad() {
    setCaption(QStringLiteral("Informazioni su ") + host::title());
    lblVersion.setCaption(QStringLiteral("Versione ") + host::versionText());
    lblTitle.setCaption(host::title());
    lblDisclaimer.setCaption(QStringLiteral(
        "ATTENZIONE: questo programma è fornito così com’è, senza garanzie di alcun tipo. Gli autori "
        "non rispondono di danni che derivino dal suo uso. Le schede non sostituiscono il parere del "
        "medico: l’istruttore valuta se un esercizio è adatto all’atleta."));
    lblDescription.setCaption(QStringLiteral("Schede di allenamento per la pedana vibrante.\n"
                                             "Realizzato dagli autori di Quiverdeck\n"
                                             "per gli istruttori e per i loro atleti.\n"
                                             "Licenza MIT – Qt %1, SQLite %2")
                                  .arg(QLatin1String(qVersion()), QLatin1String(sqlite3_libversion())));
}
