// A record's unit as it should be: it compiles.
#include "cards/scheda.h"

qint32 keyOf(const scheda& carta) {
    return carta.id_scheda;
}
