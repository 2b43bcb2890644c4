// A record's unit as it should be compiles; one that includes a widget, by whatever road, must not.
#include "cards/scheda.h"

#ifdef INCLUDED
#include INCLUDED
#endif

qint32 keyOf(const scheda& carta) {
    return carta.id_scheda;
}
