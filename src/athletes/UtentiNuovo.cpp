#include "athletes/UtentiNuovo.h"

#include "athletes/UtentiSelezione.h"
#include "platform/host/Services.h"
#include "platform/runtime/Conversions.h"
#include "platform/runtime/Dates.h"
#include "platform/toolkit/Twips.h"

using toolkit::place;

UtentiNuovo::UtentiNuovo()
    : Form(QStringLiteral("UtentiNuovo")), Label1(QStringLiteral("Label1"), QStringLiteral("Nome"), client()),
      txtNome(QStringLiteral("txtNome"), client()),
      Label2(QStringLiteral("Label2"), QStringLiteral("Cognome"), client()),
      txtCognome(QStringLiteral("txtCognome"), client()),
      Label3(QStringLiteral("Label3"), QStringLiteral("Data di Nascita"), client()),
      txtDataNascita(QStringLiteral("txtDataNascita"), client()), Frame1(QStringLiteral("Frame1"), client()),
      optM(QStringLiteral("optM"), QStringLiteral("M"), &Frame1),
      optF(QStringLiteral("optF"), QStringLiteral("F"), &Frame1),
      Label4(QStringLiteral("Label4"), QStringLiteral("Note:"), client()),
      txtNote(QStringLiteral("txtNote"), client()),
      CmdSave(QStringLiteral("CmdSave"), QStringLiteral("Salva"), client()),
      cmdAnnulla(QStringLiteral("cmdAnnulla"), QStringLiteral("Annulla"), client()) {
    setCaption(QStringLiteral("UTENTE"));
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
    optM.setAccessibleName(QStringLiteral("Maschio"));
    optF.setAccessibleName(QStringLiteral("Femmina"));
    txtNote.setAccessibleName(QStringLiteral("Note"));
    CmdSave.setToolTip(QStringLiteral("Salva l'utente corrente"));
    cmdAnnulla.setToolTip(QStringLiteral("Annulla l'operazione"));

    connect(&CmdSave, &toolkit::Button::clicked, this, &UtentiNuovo::CmdSave_Click);
    connect(&cmdAnnulla, &toolkit::Button::clicked, this, &UtentiNuovo::cmdAnnulla_Click);
}

utente& UtentiNuovo::ut() {
    if (!ut_) {
        ut_ = std::make_unique<utente>();
    }
    return *ut_;
}

void UtentiNuovo::onActivate() {
    const qint32 chiave = runtime::toInt32(runtime::leadingNumber(Tag));
    if (chiave == 0) {
        return;
    }
    if (!ut().carica(chiave)) {
        return; // told in a box; the fields stay blank
    }
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
        host::message(QStringLiteral("Mancano alcuni dati essenziali!"), host::Icon::Critical);
        return;
    }
    ut().cognome = txtCognome.text();
    ut().nome = txtNome.text();
    ut().dataNascita = txtDataNascita.value();
    ut().note = txtNote.text();
    ut().sesso = optM.value() ? QStringLiteral("M") : QStringLiteral("F");
    ut().save();
    unload();
    if (chiamante == QLatin1String("UtentiSelezione")) {
        UtentiSelezione::comune().FillListAtleti();
    }
}

void UtentiNuovo::cmdAnnulla_Click() {
    onUnload(); // runs again with the unload, which does no harm
    unload();
}

void UtentiNuovo::onUnload() {
    Tag.clear();
    ut_.reset();
}
