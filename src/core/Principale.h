#pragma once

#include "core/MenuPrincipale.h"
#include "platform/toolkit/Button.h"
#include "platform/toolkit/Form.h"
#include "platform/toolkit/ImageList.h"
#include "platform/toolkit/PictureBox.h"
#include "platform/toolkit/Shared.h"
#include "platform/toolkit/Toolbar.h"

/// The main window: menu, toolbar and the product's logo. Each command opens a modal dialog; those that lead
/// to a card hide the window and hand over to the card editor, which shows it again.
class Principale : public toolkit::Form, public toolkit::Shared<Principale> {
    Q_OBJECT
public:
    Principale();

    void nascondi();
    /// Without waiting.
    void mostra();

protected:
    void onLoad() override;
    void onResize() override;
    void onUnload() override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void comando(const QString& nome);
    void Toolbar1_ButtonClick(const QString& key);

    void mnuUtentiGestione();
    void mnuSchedeNuova();
    void mnuSchedeApri();
    void mnuSchedeDaModello();
    void mnuSchedeGestioneModello();
    void mnuHelpHelp();
    void mnuHelpManuale();

    static void azzeraScelte();
    /// Has an athlete chosen; true if one is in force afterwards, just chosen or from before.
    static bool selezionaUtente();
    void apriScheda();

    MenuPrincipale menu;
    toolkit::Toolbar Toolbar1;
    toolkit::ImageList ImageList1;
    toolkit::ImageList ImageList_OwnerMenu; ///< 16 units, keyed
    toolkit::PictureBox logoQD;
    toolkit::Button test;
};
