#pragma once

#include "platform/toolkit/Combo.h"
#include "platform/toolkit/Form.h"
#include "platform/toolkit/ImageList.h"
#include "platform/toolkit/Label.h"
#include "platform/toolkit/ReportList.h"
#include "platform/toolkit/Shared.h"
#include "platform/toolkit/Toolbar.h"

/// Lists the templates of a category, to choose one for an athlete or to manage them. Modal; the answer lies
/// in `idModelloSelezionato`: -1 means cancelled, a key a template.
class SchedeMODELLOSelezione : public toolkit::Form, public toolkit::Shared<SchedeMODELLOSelezione> {
    Q_OBJECT
public:
    SchedeMODELLOSelezione();

protected:
    void onLoad() override;

private:
    /// Choosing for an athlete leaves out what makes and changes templates; managing leaves out the choice.
    void impostaPulsanti();
    /// Reads all templates anew and lists those of the category shown.
    void fillList();
    void Toolbar_ButtonClick(const QString& key);
    void seleziona();
    void annulla();
    void nuova();
    void elimina();
    /// The key of the selected template; error 91 if none is selected.
    qint32 selezionato() const;

    toolkit::Label Label1;
    toolkit::Combo categoria;
    toolkit::ReportList LW;
    toolkit::Toolbar Toolbar;
    toolkit::ImageList ImageList1;
};
