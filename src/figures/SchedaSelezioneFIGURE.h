#pragma once

#include "figures/BodyMap.h"
#include "figures/GestoreListaFolder.h"
#include "figures/GestoreListaIMG.h"
#include "platform/toolkit/Button.h"
#include "platform/toolkit/Form.h"
#include "platform/toolkit/ImageTree.h"
#include "platform/toolkit/Label.h"
#include "platform/toolkit/Shared.h"
#include "platform/toolkit/TabStrip.h"

#include <QFrame>
#include <array>

/// The palette from which the instructor drags figures onto the card: by the tree of muscle groups or by the
/// muscle map. A page of the card editor, open as long as the editor is.
class SchedaSelezioneFIGURE : public toolkit::Form, public toolkit::Shared<SchedaSelezioneFIGURE> {
    Q_OBJECT
public:
    SchedaSelezioneFIGURE();

protected:
    void onLoad() override;
    bool onQueryUnload() override;

private:
    void TabStrip1_Click();
    void aggiornaDaCartella();
    void BodyMap1_Change(const QString& id_muscolo);
    void twImage_NodeClick(const QString& chiave);
    /// The text that a drag from the thumbnails carries: the figure's key. Empty, behind a box, on an error.
    QString twImage_StartDrag() const;
    void cmdZoom_Click();
    /// Hides the thumbnails, refills them and shows them again; the focus stays where it is.
    void riempiImmagini();

    toolkit::TabStrip TabStrip1;
    std::array<QFrame, 2> Frame1; ///< of the tabs 1 and 2
    toolkit::ImageTree twFolder;
    toolkit::Label Label1;
    BodyMap BodyMap1;
    toolkit::ImageTree twImage;
    toolkit::Button cmdZoom;

    GestoreListaIMG gestoreImmagini;
    GestoreListaFolder gestoreCartelle;
    QString nodoTrascinato;  ///< key of the node under the mouse at the last press, empty for none
    QString ultimaSelezione; ///< what the thumbnails were last filled for: a group's name or a code
    qint16 tabCorrente = 0;  ///< the tab now shown, 1 or 2
};
