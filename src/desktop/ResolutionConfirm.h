#pragma once

#include "platform/toolkit/Button.h"
#include "platform/toolkit/Form.h"
#include "platform/toolkit/Label.h"
#include "platform/toolkit/Shared.h"

#include <QTimer>

/// Asks for proof that the user can read the new mode. The buttons, and the timer when the time is up, answer
/// in `rispostaRisoluzione`; the close box and Escape leave it as it is.
class ResolutionConfirm : public toolkit::Form, public toolkit::Shared<ResolutionConfirm> {
    Q_OBJECT
public:
    ResolutionConfirm();

    /// Sets and shows the count of seconds.
    void setSecondi(int n);

protected:
    void onLoad() override;
    void onUnload() override;

private:
    void tick();
    void rispondi(qint16 risposta);

    toolkit::Label Label2;
    toolkit::Label Label1;
    toolkit::Label lblSec;
    toolkit::Button OKButton;
    toolkit::Button CancelButton;
    QTimer Timer;
    int secondi = 0;
};
