#pragma once

#include "platform/toolkit/Form.h"
#include "platform/toolkit/Shared.h"
#include "platform/toolkit/TextArea.h"

/// A plain scrolling text.
class frmDisplay : public toolkit::Form, public toolkit::Shared<frmDisplay> {
    Q_OBJECT
public:
    frmDisplay();

    /// Appends a line break and `s`.
    void stampa(const QString& s);

protected:
    void onResize() override;

private:
    toolkit::TextArea txtDisplay;
};
