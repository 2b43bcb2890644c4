#pragma once

#include "support/Pictures.h"
#include "support/ScriptedBoxes.h"

/// A scratch program with pictures and scripted boxes, for what is not a test class.
class ProgrammaConFigure {
public:
    ProgrammaConFigure() {
        program.sql(QStringLiteral("INSERT INTO muscoli VALUES ('PET','Pettorali','Grande pettorale')"));
        givePictures(program);
    }

    void figura(int id_fig, double numero, const QString& muscolo, const QString& file) const {
        addFigure(program, id_fig, numero, muscolo, file);
    }
    void immagine(const QString& file, const QColor& colore) const { givePicture(program, file, colore); }

    ScratchProgram program;
    ScriptedBoxes boxes;
};
