#pragma once

#include "cards/FiguraEsercizio.h"
#include "platform/toolkit/Button.h"
#include "platform/toolkit/Combo.h"
#include "platform/toolkit/Frame.h"
#include "platform/toolkit/Label.h"
#include "platform/toolkit/TabStrip.h"
#include "platform/toolkit/TextArea.h"
#include "platform/toolkit/TextBox.h"

#include <array>

class Esercizio;
struct TestiRiga;

/// The controls of one row of the exercise page, and the two ways between them and an exercise. The names of
/// the controls carry the row's index, as `durata_0`; the free text is `note_` with the index plus the rows.
class RigaEsercizio {
public:
    /// `indice` from 0 out of `righe`; the pictures come through `immagini`, which outlives the row.
    RigaEsercizio(int indice, int righe, QWidget* pagina, sheet::PictureCache& immagini);
    RigaEsercizio(const RigaEsercizio&) = delete;
    RigaEsercizio& operator=(const RigaEsercizio&) = delete;

    /// Record to controls. A figure that is missing shows the record's box; its picture, error 53.
    void mostra(const Esercizio& e);
    /// Controls to record; loads the figure's picture again. Error 6 for a number beyond 8 bits.
    void scrivi(Esercizio& e);
    /// Gives empty controls their defaults.
    void normalizza();
    /// Shows the frame of the selected tab.
    void mostraTipo();
    /// What the controls show now, and the way back.
    TestiRiga testi() const;
    void riprendi(const TestiRiga& testi);

    bool isLibero() const;
    std::array<toolkit::Combo*, 4> elenchi() { return {&durata, &frequenza, &ampiezza, &modalita}; }
    std::array<toolkit::TextBox*, 3> numeri() { return {&recuperoMin, &recuperoSec, &serie}; }
    /// The controls that take the focus, in reading order.
    std::array<QWidget*, 13> ordine();

    // Above the frames
    toolkit::Frame Frame1, FrameLibero;
    toolkit::Label Label8, nEsercizio;
    toolkit::Button InserisciEsecizio, EliminaEsercizio;
    toolkit::TabStrip TipoEsercizio;

private:
    // Captions lie under the fields, as they are wider than the room beside them.
    toolkit::Label invito, etiDurata, etiFrequenza, etiAmpiezza, etiSerie, etiRecupero, etiMin, etiSec,
        etiModalita, etiPeso, etiNote, etiDescrizione;

public:
    // In Frame1
    FiguraEsercizio figura;
    toolkit::Combo durata, frequenza, ampiezza;
    toolkit::TextBox serie, recuperoMin, recuperoSec;
    toolkit::Combo modalita;
    toolkit::TextBox peso;
    toolkit::TextArea note;
    // In FrameLibero
    toolkit::TextArea noteLibere;

private:
    void disponi(int indice);
    void nomina(int indice);
};
