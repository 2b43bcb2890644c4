#pragma once

#include "athletes/utente.h"
#include "platform/toolkit/Button.h"
#include "platform/toolkit/DatePicker.h"
#include "platform/toolkit/Form.h"
#include "platform/toolkit/Frame.h"
#include "platform/toolkit/Label.h"
#include "platform/toolkit/OptionButton.h"
#include "platform/toolkit/Shared.h"
#include "platform/toolkit/TextArea.h"
#include "platform/toolkit/TextBox.h"

#include <memory>

/// Enters a new athlete or changes one, modally. `Tag` holds the athlete's key as text, "0" for a new one;
/// both it and `chiamante` are written before the form is shown.
class UtentiNuovo : public toolkit::Form, public toolkit::Shared<UtentiNuovo> {
    Q_OBJECT
public:
    UtentiNuovo();

    /// Name of the form that opened this one; the athlete list is filled anew after a save.
    QString chiamante;

protected:
    /// Reads the fields anew, each time the form comes back from another window.
    void onActivate() override;
    void onUnload() override;

private:
    void CmdSave_Click();
    void cmdAnnulla_Click();
    utente& ut();

    toolkit::Label Label1;
    toolkit::TextBox txtNome;
    toolkit::Label Label2;
    toolkit::TextBox txtCognome;
    toolkit::Label Label3;
    toolkit::DatePicker txtDataNascita;
    toolkit::Frame Frame1;
    toolkit::OptionButton optM;
    toolkit::OptionButton optF;
    toolkit::Label Label4;
    toolkit::TextArea txtNote;
    toolkit::Button CmdSave;
    toolkit::Button cmdAnnulla;
    std::unique_ptr<utente> ut_; ///< made when first needed
};
