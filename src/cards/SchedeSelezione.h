#pragma once

#include "platform/toolkit/Form.h"
#include "platform/toolkit/ImageList.h"
#include "platform/toolkit/Label.h"
#include "platform/toolkit/ReportList.h"
#include "platform/toolkit/Shared.h"
#include "platform/toolkit/Toolbar.h"

/// The stored cards of one athlete, modal: opens one, deletes one, or shows one in the print preview. The
/// answer is `idSchedaSelezionata`.
class SchedeSelezione : public toolkit::Form, public toolkit::Shared<SchedeSelezione> {
    Q_OBJECT
public:
    SchedeSelezione();

    /// The athlete whose cards are listed; written before `fillList`.
    qint32 idUtenteLista = 0;

    /// Fills the list anew. The first call loads the window, which fills the list by itself and tells in a
    /// box if there are no cards.
    void fillList();

protected:
    void onLoad() override;

private:
    void Toolbar_ButtonClick(const QString& key);
    // Without a highlighted card these two raise 91; deleting tells of it in a box.
    void seleziona();
    void stampa();
    void elimina();

    toolkit::Toolbar Toolbar;
    toolkit::ImageList ImageList1;
    toolkit::Label Label1;
    toolkit::Label utente_; ///< named "utente"
    toolkit::ReportList LW;
};
