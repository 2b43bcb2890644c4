#pragma once

#include "platform/toolkit/ImageList.h"
#include "platform/toolkit/ParentForm.h"
#include "platform/toolkit/Shared.h"
#include "platform/toolkit/StatusBar.h"
#include "platform/toolkit/Toolbar.h"

#include <memory>

class ContatoreTempi;
class SchedaApribile;
class utente;

/// The window in which a card or a template is edited. It holds the open record, lays out the pages, carries
/// toolbar and status bar, and decides what happens on save, print and close.
///
/// It lives as long as the program: loaded hidden at start, when it reads every thumbnail; closing it unloads
/// its pages, hides it and shows the main window.
class mdiScheda : public toolkit::ParentForm, public toolkit::Shared<mdiScheda> {
    Q_OBJECT
public:
    mdiScheda();
    ~mdiScheda() override;

    /// Opens the editor on what the globals say: a stored card, a new one, a template, or a new card from a
    /// template.
    void mostra();
    /// Opens the editor on a record as it stands, for the athlete that the globals say.
    void riapri(const std::shared_ptr<SchedaApribile>& scheda);

    std::shared_ptr<SchedaApribile> schedaAperta; ///< null before the first `mostra`
    std::shared_ptr<::utente> utente;             ///< the athlete of the card
    std::shared_ptr<ContatoreTempi> contaTempi;   ///< a new one for each `mostra`
    bool puoiChiudere = false;                    ///< while false every page refuses to unload

    toolkit::ImageList ImageList1; ///< the folder icon, "Cartella", 25 pixels square
    toolkit::ImageList ImageList2; ///< the figures under their full paths, 150 pixels square

protected:
    void onLoad() override;
    bool onQueryUnload() override;

private:
    void caricaImmagini();
    void prepara();
    void creaScheda();
    void conta();
    void presenta();
    void disponiPagine();
    void premuto(const QString& chiave);
    void salva();
    void stampa();
    void salvaSuModello();
    void apriModello(const std::shared_ptr<class SchedaModello>& modello);
    void fine();
    void abbandona();

    toolkit::ImageList ImageListToolBar;
    toolkit::Toolbar ToolbarSchede;
    toolkit::StatusBar StatusBar1;
};
