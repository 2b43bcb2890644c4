#pragma once

#include "desktop/palestra.h"
#include "figures/RidimensionatoreImmagini.h"
#include "platform/toolkit/Button.h"
#include "platform/toolkit/Form.h"
#include "platform/toolkit/Frame.h"
#include "platform/toolkit/Label.h"
#include "platform/toolkit/PictureBox.h"
#include "platform/toolkit/Shared.h"
#include "platform/toolkit/TabStrip.h"
#include "platform/toolkit/TextBox.h"

#include <array>
#include <memory>

/// The gym's profile: its name, its manager and the logo that is printed on every sheet.
class frmPersonalizza : public toolkit::Form, public toolkit::Shared<frmPersonalizza> {
    Q_OBJECT
public:
    frmPersonalizza();

protected:
    /// Raises what loading the stored logo raises, if its file is gone.
    void onLoad() override;
    void onUnload() override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    static constexpr int pagine = 4; ///< panels; all but the first stay empty

    void tbsOptions_Click();
    void cmdApriIMG_Click();
    /// Shows the picture of `percorso`, which becomes the one to store.
    void mostraLogo(const QString& percorso);
    void salva();

    toolkit::TabStrip tbsOptions;
    std::array<std::unique_ptr<toolkit::Frame>, pagine> picOptions;
    toolkit::Label Label1;
    toolkit::TextBox nome;
    toolkit::Label Label4;
    toolkit::TextBox responsabile;
    toolkit::Label Label2;
    toolkit::PictureBox logo;
    toolkit::Label noImage;
    toolkit::Button cmdApriIMG;
    toolkit::Button cmdOK;
    toolkit::Button cmdCancel;
    toolkit::Button cmdApply;

    std::unique_ptr<palestra> palestra_;
    std::unique_ptr<RidimensionatoreImmagini> ridimensionatore;
};
