#pragma once

#include "cards/Esercizio.h"
#include "cards/scheda.h"
#include "platform/runtime/Collection.h"
#include "printing/PreviewWindow.h"

#include <cstdint>
#include <memory>

/// One sheet of a card: fills the fixed elements of the preview's surface, hides those not needed and moves
/// the rest. Composing rewrites the whole surface, so the order in which sheets are visited does not matter.
/// Nothing is caught: a missing picture (FileNotFound) or an overflow reaches the caller.
class Page {
public:
    std::int32_t id_scheda = 0;
    std::shared_ptr<::scheda> scheda;         ///< Shared by all sheets of the job; only read.
    runtime::Collection<Esercizio> esercizi;  ///< 1 to 10, in card order.
    bool isLastPage = false;                  ///< True only on the last sheet, the one with the final notes.
    sheet::PreviewWindow* finestra = nullptr; ///< Owner of the surface; set by setCanvas.
    sheet::Surface* canvas = nullptr;

    /// Composes this sheet on the window's surface. Page number and producer line are left alone.
    void setCanvas(sheet::PreviewWindow& window);

private:
    // Of the composition, not of a sheet: reset each time one is composed. Centimetres.
    inline static double margineSuperiore = 3.45; ///< Top of the first row of exercises.
    inline static double margineSinistro = 0.9;   ///< Left edge of the last row; the others keep 0.9.
    inline static double distanzaRighe = 0.1;     ///< Between rows.

    void impostaCanvas();
    static double cmToTwip(double cm);
    static double twipToCm(double twip);
    void scriviIntestazione();
    void scriviEsercizi();
    void posizionaEsercizi();
    void centraOrizzontale();
    void centraVerticale();
    double distanzaDaCorniceX(const sheet::Element& element) const;
    double distanzaDaCorniceY(const sheet::Element& element) const;
    void spostaBlocco(int index, double top, double left);
    void mostraBlocco(int index, bool visible);
    void setPiePagina();

    void scriviTestiIntestazione();
    void collocaIntestazione();
    void nascondiRigheIntestazione();
    void caricaLogo();
    void scriviEsercizioLibero(const Esercizio& esercizio, int index);
    void scriviEsercizio(const Esercizio& esercizio, int index);
    bool mostraNote() const;
    sheet::Element& el(const char* name, int index = 0) const;
};
