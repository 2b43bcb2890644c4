#pragma once

#include "platform/toolkit/Button.h"
#include "platform/toolkit/CheckListBox.h"
#include "platform/toolkit/Combo.h"
#include "platform/toolkit/DatePicker.h"
#include "platform/toolkit/Form.h"
#include "platform/toolkit/Frame.h"
#include "platform/toolkit/Label.h"
#include "platform/toolkit/Shared.h"
#include "platform/toolkit/TextArea.h"
#include "platform/toolkit/TextBox.h"
#include "platform/toolkit/Validation.h"

class scheda;

/// The header page of the card editor: athlete, category, goal, instructor, period, frequency, training days
/// and closing notes. Each control writes to the open card at the moment it changes, and loading counts as
/// such a change: a card that shows is marked unsaved.
class SchedaIntestazione : public toolkit::Form, public toolkit::Shared<SchedaIntestazione> {
    Q_OBJECT
public:
    SchedaIntestazione();

    /// Closes the list of training days.
    void nascondiTutto();

protected:
    void onLoad() override;
    bool onQueryUnload() override;

private:
    /// The open card; error 91 if the editor holds none.
    static ::scheda& aperta();
    void disponi();
    void prepara();
    void ordina();
    void collega();
    void controlla();
    void caricaPeriodo();
    void caricaFrequenza();

    void scriviDal();
    void scriviAl();
    void scriviFrequenza();
    void scriviCategoria();
    void apriChiudiGiorni();

    toolkit::Frame Frame1;
    toolkit::Label atleta, intestazione, etiCategoria, etiObiettivo, etiIstruttore, etiDal, etiAl,
        etiFreqAllen, etiGGAllen, etiNote;
    toolkit::Label utente;
    toolkit::Combo categoria;
    toolkit::TextBox Obiettivo, Istruttore;
    toolkit::DatePicker dal, al;
    toolkit::Combo FreqAllen;
    toolkit::TextBox Text1;
    toolkit::Button apriGGAllen;
    toolkit::TextArea note;
    toolkit::CheckListBox GGAllen;
    toolkit::Validation validazione{this};
};
