#pragma once

#include "cards/FiguraEsercizio.h"
#include "platform/toolkit/Button.h"
#include "platform/toolkit/Combo.h"
#include "platform/toolkit/Form.h"
#include "platform/toolkit/Frame.h"
#include "platform/toolkit/Label.h"
#include "platform/toolkit/Shared.h"
#include "platform/toolkit/TextArea.h"
#include "platform/toolkit/TextBox.h"
#include "platform/toolkit/Validation.h"
#include "printing/PictureCache.h"

#include <memory>

class Esercizio;
class SchedaApribile;

/// A compact exercise page: one exercise at a time, with two buttons that walk along the exercises of a
/// record. The editor does not use it; the developer's try-outs open it on a scratch card. It edits in memory
/// only, and knows neither series nor free exercises: what it does not show stays as it is in the record.
class SchedaCorpo2 : public toolkit::Form, public toolkit::Shared<SchedaCorpo2> {
    Q_OBJECT
public:
    SchedaCorpo2();

    /// The record to walk along; set it before the page loads (error 91 else). The load adds a blank line.
    std::shared_ptr<SchedaApribile> schedaAperta;

    /// Writes the page into its exercise, or raises before it writes anything but the figure's key: error 6
    /// for minutes or seconds that do not fit 8 bits, 53 for a missing picture.
    ///
    /// `recupero` is "min:sec". Each side of the first colon counts with its leading number, 0 if it has
    /// none; a text without a colon is minutes. Seconds beyond 59 are taken as they are.
    ///
    /// `ampiezza` takes the leading number of the text, so "4 mm" is stored as "4". A text that begins with
    /// no number is stored whole: it is one of the letters of the two-row page, which walking by must not
    /// lose.
    void ScriviDati();

protected:
    void onLoad() override;

private:
    void disponi();
    void nomina();
    void controlla();
    Esercizio& corrente();

    void svuotaPagina();
    void mostraEsercizio();
    void vai(int posizione);
    void precedente();
    void successivo();

    qint16 esercizioCorrente = 1; ///< position, from 1, of the exercise shown

    sheet::PictureCache immagini;
    toolkit::Frame Frame1;
    toolkit::Label Label8, nEsercizio;
    toolkit::Label invito, etiDurata, etiFrequenza, etiAmpiezza, etiRecupero, etiModalita, etiPeso, etiNote;
    FiguraEsercizio figura;
    toolkit::Combo durata, frequenza;
    toolkit::TextBox ampiezza, recupero;
    toolkit::Combo modalita;
    toolkit::TextBox peso;
    toolkit::TextArea note;
    toolkit::Button cmdPrec, cmdSucc;
    toolkit::Validation validazione{this};
};
