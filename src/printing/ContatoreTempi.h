#pragma once

#include <memory>

class SchedaApribile;
namespace host {
class PanelText;
}

/// Sums the times of a card and writes them into a status bar.
class ContatoreTempi {
public:
    std::shared_ptr<SchedaApribile> schedaCorrente;
    host::PanelText* barraStato = nullptr; ///< has a panel "status"; stays the caller's

    /// Rewrites the panel. Raises 6 when a sum or product needs more than 16 bits, and what the bar raises
    /// when the panel is missing; 91 while one of the two is not set.
    void contaEstampa() const;
};
