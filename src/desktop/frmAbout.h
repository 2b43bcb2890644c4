#pragma once

#include "platform/toolkit/Button.h"
#include "platform/toolkit/Form.h"
#include "platform/toolkit/Label.h"
#include "platform/toolkit/LinkLabel.h"
#include "platform/toolkit/PictureBox.h"
#include "platform/toolkit/Shared.h"

/// About the program: version, who made it, licence, links, and the way to the system's information tool.
class frmAbout : public toolkit::Form, public toolkit::Shared<frmAbout> {
    Q_OBJECT
public:
    frmAbout();

    /// Where a link leads.
    static QString paginaWeb();
    static QString posta();

protected:
    void onLoad() override;

private:
    toolkit::PictureBox Image1;
    toolkit::PictureBox Image2;
    toolkit::Label lblTitle;
    toolkit::Label lblVersion;
    toolkit::Label lblDescription;
    toolkit::LinkLabel lblLink;
    toolkit::LinkLabel lblLinkEmailAuthor;
    toolkit::Label lblDisclaimer;
    toolkit::Button cmdOK;
    toolkit::Button cmdSysInfo;
};
