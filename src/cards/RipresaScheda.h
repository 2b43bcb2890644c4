#pragma once

#include "cards/FileSospeso.h"
#include "cards/SchedaSospesa.h"

#include <optional>

/// Keeps the card that stands in the editor in its side file, from the first event to the editor's end, and
/// offers it again at the next start.
class RipresaScheda {
public:
    /// Writes the file if the event just over has changed anything, and removes it once the editor is left.
    /// The card of an earlier run is never written over, but put aside. An unwritable file is told of once.
    void dopoEvento();
    /// The same at the moment of a fatal report: no box, no exception.
    void primaDellaFine() noexcept;

    /// With a file left by an earlier run: asks, and opens the card in the editor or puts the file aside.
    /// A damaged file is put aside with a message.
    void proponi();

private:
    bool scrivi();
    void riapri(SchedaSospesa& sospesa);
    void scarta(const QString& motivo, const QString& spiegazione) const;

    FileSospeso file_;
    std::optional<SchedaSospesa::Stato> scritto_; ///< what the file holds; nothing if it is none of ours
    RigheEliminate eliminate_;
    bool avvisato_ = false;
    bool riaprendo_ = false; ///< the file stays as it is: half a page is less than it holds
};
