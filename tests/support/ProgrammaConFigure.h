#pragma once

#include "support/ScratchProgram.h"
#include "support/ScriptedBoxes.h"

#include <QColor>
#include <QString>

/// A scratch program with pictures: one of a single colour for each figure, for the neutral map, for each
/// marked map and for the folder. To its rows it adds the groups PET "Pettorali" (figure 1) and VUO "Vuoto"
/// (none).
class ProgrammaConFigure {
public:
    ProgrammaConFigure();

    ScratchProgram program;
    ScriptedBoxes boxes;

    /// Adds a figure with its picture.
    void figura(int id_fig, double numero, const QString& muscolo, const QString& file) const;
    void immagine(const QString& file, const QColor& colore) const;

    static QColor coloreFigura(int id_fig);
    static QColor coloreMappa(const QString& codice); ///< the empty code: the neutral map
};
