#pragma once

#include "platform/toolkit/Form.h"
#include "platform/toolkit/Label.h"
#include "platform/toolkit/Shared.h"

/// The progress window of long fills. The caller shows it, sets `Totale`, calls `update` once for each item
/// and ends with `Chiudi`. Fractions are 32-bit floats throughout.
class Tool_BarProg : public toolkit::Form, public toolkit::Shared<Tool_BarProg> {
    Q_OBJECT
public:
    Tool_BarProg();

    /// The number of steps.
    float Totale = 0;

    /// The window's caption.
    void setTitolo(const QString& s);
    /// Step `nPasso` is done; 0 means the one after the last, and the caller gets that number back. A step
    /// beyond `Totale` changes nothing. The window is drawn at most once a percent.
    void update(float& nPasso);
    void Chiudi();

protected:
    void onLoad() override;
    /// Waits, a moment at most, until the window really is on the screen: a fill is over so soon that nothing
    /// but an empty frame would be seen.
    void onActivate() override;

private:
    void ridisegna();

    QWidget retStatus; ///< the filled rectangle, below the text
    toolkit::Label Status;
    float fatto = 0;
    float percentuale = 0;
    float ultimoPasso = 0;
};
