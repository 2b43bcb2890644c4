#pragma once

#include "core/db.h"
#include "figures/figura.h"
#include "figures/muscolo.h"
#include "platform/runtime/Collection.h"

#include <memory>

/// The whole catalogue, read afresh by each object: made, filled by init, read and dropped.
class Figure {
public:
    using Raccolta = runtime::Collection<figura>;

    Figure();

    bool isQDLoaded = false; ///< the machine QUIVR is marked as loaded
    bool isGLLoaded = false; ///< the machine GLIDR is
    std::shared_ptr<Raccolta> figureQD;
    std::shared_ptr<Raccolta> figureGL;
    std::shared_ptr<runtime::Collection<muscolo>> muscoli; ///< by name

    /// Reads the flags and adds to the collections. `distinct` gives each figure once, without muscles;
    /// else once for each of its muscles.
    void init(bool distinct);
    /// Adds the figures of one machine, by number.
    void caricaFigure(Raccolta& figure, const QString& ID_MAC, bool distinct);

private:
    bool caricata(const QString& ID_MAC) const;
    void caricaMuscoli();

    db archivio_;
};
