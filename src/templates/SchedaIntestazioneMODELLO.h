#pragma once

#include "platform/toolkit/Combo.h"
#include "platform/toolkit/Form.h"
#include "platform/toolkit/Frame.h"
#include "platform/toolkit/Label.h"
#include "platform/toolkit/Shared.h"
#include "platform/toolkit/TextArea.h"

class SchedaModello;

/// The header page of the card editor when a template is open: category, description and closing notes. Each
/// change goes to the template at once and marks it unsaved.
class SchedaIntestazioneMODELLO : public toolkit::Form, public toolkit::Shared<SchedaIntestazioneMODELLO> {
    Q_OBJECT
public:
    SchedaIntestazioneMODELLO();

protected:
    void onLoad() override;
    bool onQueryUnload() override;

private:
    /// The template open in the editor; error 91 if there is none.
    static SchedaModello& aperta();

    toolkit::Frame Frame1;
    toolkit::Label Label3;
    toolkit::Label Label7;
    toolkit::Label Label1;
    toolkit::Label Label4;
    toolkit::Combo categoria;
    toolkit::TextArea descrizione;
    toolkit::TextArea note;
};
