#pragma once

#include "support/ScratchProgram.h"

#include <QColor>
#include <QSize>

/// Gives the program a picture of a single colour for each figure of its store, for the neutral map, each
/// marked map and the folder: all that it loads at start.
void givePictures(const ScratchProgram& program);
/// Writes a picture of one colour; `file` is relative to `images`, with either kind of slash.
void givePicture(const ScratchProgram& program, QString file, const QColor& colour, QSize size = {30, 30});
/// Adds a figure of a muscle group, with its picture.
void addFigure(const ScratchProgram& program, int id_fig, double numero, const QString& muscolo,
               const QString& file);

QColor colourOfFigure(int id_fig);
QColor colourOfMap(const QString& code); ///< the empty code: the neutral map
/// Whether two colours are the same but for what JPEG makes of them.
bool alike(const QColor& a, const QColor& b);
