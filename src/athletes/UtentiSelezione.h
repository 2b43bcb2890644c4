#pragma once

#include "athletes/utente.h"
#include "platform/runtime/Collection.h"
#include "platform/toolkit/Form.h"
#include "platform/toolkit/ImageList.h"
#include "platform/toolkit/Label.h"
#include "platform/toolkit/ReportList.h"
#include "platform/toolkit/Shared.h"
#include "platform/toolkit/TextBox.h"
#include "platform/toolkit/Toolbar.h"

#include <memory>

/// The list of all athletes. `Tag` holds the mode, written before the window is shown modally: "SELEZIONA"
/// picks an athlete for a card, "MODIFICA" manages them. The answer is `idUtenteSelezionato`, written by
/// choosing alone.
class UtentiSelezione : public toolkit::Form, public toolkit::Shared<UtentiSelezione> {
    Q_OBJECT
public:
    UtentiSelezione();

    /// Fills the list anew. The order is the store's until the user sorts; the athlete selected before stays
    /// selected.
    void FillListAtleti();

protected:
    void onLoad() override;

private:
    static std::shared_ptr<runtime::Collection<utente>> caricaUtenti();

    void Toolbar_ButtonClick(const QString& key);
    void LW_DblClick();
    // Without a selected athlete these two raise 91; deleting tells of it in a box.
    void selezionaUtente();
    void modificaUtente();
    void nuovoUtente();
    void eliminaUtente();
    /// Opens the athlete's form on that key, "0" for a new athlete.
    void apriUtente(const QString& chiave);

    toolkit::Toolbar Toolbar;
    toolkit::ImageList ImageList1;
    toolkit::Label Label1;
    toolkit::TextBox Ricerca;
    toolkit::ReportList LW;
};
