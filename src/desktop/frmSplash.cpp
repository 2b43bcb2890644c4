#include "desktop/frmSplash.h"

#include "artwork/logos/Loghi.h"
#include "desktop/Ridisegno.h"
#include "platform/host/Application.h"
#include "platform/toolkit/Fonts.h"
#include "platform/toolkit/Twips.h"

#include <QKeyEvent>

using namespace Qt::StringLiterals;

using toolkit::place;

namespace {

void colour(QLabel& label, const QColor& text) {
    QPalette colours = label.palette();
    colours.setColor(QPalette::Text, text); // on the face's own ground labels take this role
    label.setPalette(colours);
}

} // namespace

frmSplash::frmSplash()
    : Form(u"frmSplash"_s), Frame1(u"Frame1"_s, client()), LogoQDK(u"LogoQDK"_s, &Frame1),
      imgLogo(u"imgLogo"_s, &Frame1), lblProductName(u"lblProductName"_s, {}, &Frame1),
      lblVersion(u"lblVersion"_s, {}, &Frame1),
      lblWarning(u"lblWarning"_s,
                 u"Questo programma è protetto dalle leggi sul diritto d’autore; la copia è libera alle "
                 "condizioni della sua licenza."_s,
                 &Frame1),
      lblCopyright(u"lblCopyright"_s, u"© Gli autori di Quiverdeck"_s, &Frame1),
      Label1(u"Label1"_s, u"Attendere prego, caricamento in corso:"_s, &Frame1), bar(u"bar"_s, &Frame1) {
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

    lblProductName.setFont(toolkit::font(u"Arial"_s, 24, true));
    place(lblProductName, 1350, 1125, 4800, 570);
    lblVersion.setFont(toolkit::font(u"Arial"_s, 9.75));
    colour(lblVersion, QColor(0x80, 0x80, 0xFF));
    place(lblVersion, 1350, 1755, 3825, 240);
    lblWarning.setFont(toolkit::font(u"Arial"_s, 8.25));
    lblWarning.hide();
    place(lblWarning, 105, 2730, 6630, 465);
    lblCopyright.setFont(toolkit::font(u"Arial"_s, 8.25));
    place(lblCopyright, 3765, 2805, 2415, 255);
    Label1.setFont(toolkit::font(u"Verdana"_s, 8.25));
    place(Label1, 165, 3330, 3465, 225);

    bar.setValue(1);
    bar.setMin(1);
    place(bar, 3675, 3345, 2640, 240);
}

void frmSplash::onLoad() {
    lblVersion.setCaption(u"Versione "_s + host::versionText());
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
