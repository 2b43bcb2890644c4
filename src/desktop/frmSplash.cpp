#include "desktop/frmSplash.h"

#include "artwork/logos/Loghi.h"
#include "desktop/Ridisegno.h"
#include "platform/host/Application.h"
#include "platform/toolkit/Fonts.h"
#include "platform/toolkit/Twips.h"

#include <QKeyEvent>

using toolkit::place;

namespace {

void colour(QLabel& label, const QColor& text) {
    QPalette colours = label.palette();
    colours.setColor(QPalette::Text, text); // on the face's own ground labels take this role
    label.setPalette(colours);
}

} // namespace

frmSplash::frmSplash()
    : Form(QStringLiteral("frmSplash")), Frame1(QStringLiteral("Frame1"), client()),
      LogoQDK(QStringLiteral("LogoQDK"), &Frame1), imgLogo(QStringLiteral("imgLogo"), &Frame1),
      lblProductName(QStringLiteral("lblProductName"), {}, &Frame1),
      lblVersion(QStringLiteral("lblVersion"), {}, &Frame1),
      lblWarning(QStringLiteral("lblWarning"),
                 QStringLiteral(
                     "Questo programma è protetto dalle leggi sul diritto d’autore; la copia è libera alle "
                     "condizioni della sua licenza."),
                 &Frame1),
      lblCopyright(QStringLiteral("lblCopyright"), QStringLiteral("© Gli autori di Quiverdeck"), &Frame1),
      Label1(QStringLiteral("Label1"), QStringLiteral("Attendere prego, caricamento in corso:"), &Frame1),
      bar(QStringLiteral("bar"), &Frame1) {
    setBorderless();
    setInnerSize(6705, 3900);

    Frame1.setAutoFillBackground(true);
    Frame1.setBackgroundRole(QPalette::Base);
    connect(&Frame1, &toolkit::Frame::clicked, this, [this] { unload(); });
    place(Frame1, 30, -15, 6600, 3870);

    place(LogoQDK, 300, 345, 1800, 540);
    LogoQDK.setImage(artwork::logo(artwork::Logo::QuiverDeck, {480, 144}));
    place(imgLogo, 4545, 345, 1755, 540);
    imgLogo.setImage(artwork::logo(artwork::Logo::Zentara, {468, 144}));

    lblProductName.setFont(toolkit::font(QStringLiteral("Arial"), 24, true));
    place(lblProductName, 1350, 1125, 4800, 570);
    lblVersion.setFont(toolkit::font(QStringLiteral("Arial"), 9.75));
    colour(lblVersion, QColor(0x80, 0x80, 0xFF));
    place(lblVersion, 1350, 1755, 3825, 240);
    lblWarning.setFont(toolkit::font(QStringLiteral("Arial"), 8.25));
    lblWarning.hide();
    place(lblWarning, 105, 2730, 6630, 465);
    lblCopyright.setFont(toolkit::font(QStringLiteral("Arial"), 8.25));
    place(lblCopyright, 3765, 2805, 2415, 255);
    Label1.setFont(toolkit::font(QStringLiteral("Verdana"), 8.25));
    place(Label1, 165, 3330, 3465, 225);

    bar.setValue(1);
    bar.setMin(1);
    place(bar, 3675, 3345, 2640, 240);
}

void frmSplash::onLoad() {
    lblVersion.setCaption(QStringLiteral("Versione ") + host::versionText());
    lblProductName.setCaption(host::title());
}

void frmSplash::barSetMax(qint16 MAX) {
    bar.setMax(MAX);
}

void frmSplash::barReset() {
    bar.setMin(1);
    bar.setValue(1);
    desktop::ridisegna(*this);
}

void frmSplash::barStep() {
    bar.setValue(bar.value() + 1);
    desktop::ridisegna(bar);
}

void frmSplash::keyPressEvent(QKeyEvent* event) {
    event->accept();
    unload();
}
