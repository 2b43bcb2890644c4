#pragma once

#include "platform/toolkit/Form.h"
#include "platform/toolkit/Frame.h"
#include "platform/toolkit/Label.h"
#include "platform/toolkit/PictureBox.h"
#include "platform/toolkit/ProgressBar.h"
#include "platform/toolkit/Shared.h"

/// The window shown while the program starts: title, version and how far the figures are loaded.
/// A key, or a click on its face, unloads it.
class frmSplash : public toolkit::Form, public toolkit::Shared<frmSplash> {
    Q_OBJECT
public:
    frmSplash();

    /// The bar's maximum. It starts at 1, so that n steps need n + 1. Error 380 below 1.
    void barSetMax(qint16 MAX);
    /// Back to 1.
    void barReset();
    /// One step on; error 380 beyond the maximum.
    void barStep();

protected:
    void onLoad() override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    toolkit::Frame Frame1;
    toolkit::PictureBox LogoQDK;
    toolkit::PictureBox imgLogo;
    toolkit::Label lblProductName;
    toolkit::Label lblVersion;
    toolkit::Label lblWarning;
    toolkit::Label lblCopyright;
    toolkit::Label Label1;
    toolkit::ProgressBar bar;
};
