#pragma once

#include "printing/Surface.h"

namespace sheet {

/// Exercise blocks of one sheet: two abreast, five deep.
inline constexpr int blocchiPerFoglio = 10;

/// The surface of a card's sheet in its design state: header, ten exercise blocks with the indices 0 to 9,
/// footer.
Surface cardSurface();

/// Gives the elements of block `index` their design places around the block's frame, wherever that stands.
void ripristinaBlocco(Surface& surface, int index);

/// The elements of a block that move with its frame, in the order in which they are moved; without the frame.
const QStringList& elementiDelBlocco();

} // namespace sheet
