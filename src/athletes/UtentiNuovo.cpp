#include "athletes/UtentiNuovo.h"

#include "athletes/UtentiSelezione.h"
#include "platform/host/Services.h"
#include "platform/runtime/Conversions.h"
#include "platform/runtime/Dates.h"
#include "platform/toolkit/Twips.h"

using namespace Qt::StringLiterals;

using toolkit::place;

UtentiNuovo::UtentiNuovo()
    : Form(u"UtentiNuovo"_s), Label1(u"Label1"_s, u"Nome"_s, client()), txtNome(u"txtNome"_s, client()),
      Label2(u"Label2"_s, u"Cognome"_s, client()), txtCognome(u"txtCognome"_s, client()),
      Label3(u"Label3"_s, u"Data di Nascita"_s, client()), txtDataNascita(u"txtDataNascita"_s, client()),
      Frame1(u"Frame1"_s, client()), optM(u"optM"_s, u"M"_s, &Frame1), optF(u"optF"_s, u"F"_s, &Frame1),
      Label4(u"Label4"_s, u"Note:"_s, client()), txtNote(u"txtNote"_s, client()),
      CmdSave(u"CmdSave"_s, u"Salva"_s, client()), cmdAnnulla(u"cmdAnnulla"_s, u"Annulla"_s, client()) {
    setCaption(u"UTENTE"_s);
    setInnerSize(6600, 4650);

    // Captions in one column, fields in another, both on one grid.
    constexpr double captions = 240;
    constexpr double fields = 1740;
    place(Label1, captions, 285, 1440, 225);
    place(txtNome, fields, 240, 4620, 315);
    place(Label2, captions, 735, 1440, 225);
    place(txtCognome, fields, 690, 4620, 315);
    place(Label3, captions, 1185, 1440, 225);
    place(txtDataNascita, fields, 1140, 1650, 315);
    place(Frame1, 3630, 1140, 1410, 315);
    place(optM, 0, 0, 600, 315);
    place(optF, 720, 0, 600, 315);
    place(Label4, captions, 1635, 1440, 225);
    place(txtNote, fields, 1590, 4620, 2175);
    place(CmdSave, 3810, 4035, 1215, 375);
    place(cmdAnnulla, 5145, 4035, 1215, 375);

    Frame1.setBorder(false);
    txtNome.setAccessibleName(Label1.caption());
    txtCognome.setAccessibleName(Label2.caption());
    txtDataNascita.setAccessibleName(Label3.caption());
    optM.setAccessibleName(u"Maschio"_s);
    optF.setAccessibleName(u"Femmina"_s);
    txtNote.setAccessibleName(u"Note"_s);
    CmdSave.setToolTip(u"Salva l'utente corrente"_s);
    cmdAnnulla.setToolTip(u"Annulla l'operazione"_s);

    connect(&CmdSave, &toolkit::Button::clicked, this, &UtentiNuovo::CmdSave_Click);
    connect(&cmdAnnulla, &toolkit::Button::clicked, this, &UtentiNuovo::cmdAnnulla_Click);
}

utente& UtentiNuovo::ut() {
    if (!ut_)
        ut_ = std::make_unique<utente>();
    return *ut_;
}

void UtentiNuovo::onActivate() {
    const qint32 chiave = runtime::toInt32(runtime::leadingNumber(Tag));
    if (chiave == 0)
        return;
    if (!ut().carica(chiave))
        return; // told in a box; the fields stay blank
    txtNome.setText(ut().nome);
    txtCognome.setText(ut().cognome);
    txtDataNascita.setValue(ut().dataNascita);
    txtNote.setText(ut().note);
    optM.setValue(ut().sesso == QLatin1String("M"));
    optF.setValue(!optM.value());
}

void UtentiNuovo::CmdSave_Click() {
    if (txtCognome.text().isEmpty() || txtNome.text().isEmpty() ||
        runtime::dateText(txtDataNascita.value()).isEmpty()) {
        host::message(u"Mancano alcuni dati essenziali!"_s, host::Icon::Critical);
        return;
    }
    ut().cognome = txtCognome.text();
    ut().nome = txtNome.text();
    ut().dataNascita = txtDataNascita.value();
    ut().note = txtNote.text();
    ut().sesso = optM.value() ? u"M"_s : u"F"_s;
    ut().save();
    unload();
    if (chiamante == QLatin1String("UtentiSelezione"))
        UtentiSelezione::comune().FillListAtleti();
}

void UtentiNuovo::cmdAnnulla_Click() {
    onUnload(); // runs again with the unload, which does no harm
    unload();
}

void UtentiNuovo::onUnload() {
    Tag.clear();
    ut_.reset();
}
