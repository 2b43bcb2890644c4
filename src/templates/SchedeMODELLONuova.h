#pragma once

#include "platform/toolkit/Button.h"
#include "platform/toolkit/Combo.h"
#include "platform/toolkit/Form.h"
#include "platform/toolkit/Label.h"
#include "platform/toolkit/Shared.h"
#include "platform/toolkit/TextArea.h"

/// Asks for category and description of a new template and stores it without lines. Modal; the new key lies
/// in `idModelloSelezionato` afterwards, which a dismissed window leaves as it was. `nomeModelloSelezionato`,
/// set before, proposes the category.
class SchedeMODELLONuova : public toolkit::Form, public toolkit::Shared<SchedeMODELLONuova> {
    Q_OBJECT
public:
    SchedeMODELLONuova();

protected:
    void onLoad() override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void cmdOk_Click();

    toolkit::Label Label1;
    toolkit::Label Label2;
    toolkit::Combo categoria;
    toolkit::TextArea descrizione;
    toolkit::Button cmdOk;
};
