#pragma once

#include "printing/Surface.h"

#include <QImage>

class QPainter;

namespace sheet {

/// Paints `surface` on `painter`, which is already scaled to twips. The caller fills the background.
/// Preview, raster and tests all call this; there is no second layout. Boxes are snapped to whole logical
/// pixels, at every scale alike, so that a finer raster shows the same sheet, only sharper.
void paint(const Surface& surface, QPainter& painter);

/// The surface on white at `devicePixelRatio` device pixels to the logical one (756 x 1059): 1 is the
/// preview's, 4 the printer's (384 dpi). The image knows its resolution and its ratio.
QImage raster(const Surface& surface, qreal devicePixelRatio);

} // namespace sheet
