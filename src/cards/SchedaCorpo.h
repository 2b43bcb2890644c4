#pragma once

#include "cards/RigaEsercizio.h"
#include "cards/SchedaSospesa.h"
#include "platform/toolkit/Form.h"
#include "platform/toolkit/ScrollBar.h"
#include "platform/toolkit/Shared.h"
#include "platform/toolkit/Validation.h"
#include "printing/PictureCache.h"

#include <array>
#include <optional>
#include <vector>

class SchedaApribile;

/// The exercise page of the card editor: two rows of controls that a scroll bar moves along the exercises of
/// the open card or template. A row is copied into its exercise before it moves, and filled from the next
/// after.
///
/// Blank exercises (no figure, not free) stand at the end of the list, so that each row always has an object
/// behind it; they are never stored. Hence inserting adds two and deleting adds one.
class SchedaCorpo : public toolkit::Form, public toolkit::Shared<SchedaCorpo> {
    Q_OBJECT
public:
    SchedaCorpo();

    /// Copies every row's controls into its exercise. Error 6 for a number beyond 8 bits.
    void ScriviDati();

    /// Where the page stands and what its rows show.
    PaginaEsercizi pagina() const;
    /// Brings back the lines of the open record and, where given, the page as it stood.
    void riprendi(const std::vector<Esercizio>& lette, const std::optional<PaginaEsercizi>& stava);

protected:
    void onLoad() override;
    bool onQueryUnload() override;

private:
    static constexpr int righe = 2;

    /// The open record; error 91 if the editor holds none.
    static SchedaApribile& aperta();
    void disponi();
    void collega(int i);
    void controlla(int i);

    void mostraEsercizi();
    void normalizzaCampi();
    void aggiungiEserciziVuoti();
    static void selezionaTesto(toolkit::TextBox& campo);

    void inserisci(int i);
    void elimina(int i);
    void scorri();
    void limitaVS();
    void riconta();
    void ricontaSerie(int i);
    static void segnaModifica();
    void copiaPrimo();

    qint16 nRighe = righe;
    qint16 primoEsercizio = 1;  ///< position, from 1, of the exercise in row 0
    bool inCaricamento = false; ///< the page itself is writing into its controls

    sheet::PictureCache immagini;
    std::array<RigaEsercizio, righe> riga;
    toolkit::ScrollBar VS;
    toolkit::Button Command1;
    toolkit::Validation validazione{this};
};
