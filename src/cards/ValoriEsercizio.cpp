#include "cards/ValoriEsercizio.h"

#include "core/f_library.h"
#include "platform/host/Services.h"
#include "platform/toolkit/Combo.h"

using namespace Qt::StringLiterals;

QStringList valoriEsercizio::durate() {
    return {u"30s"_s, u"45s"_s, u"60s"_s};
}

QStringList valoriEsercizio::frequenze() {
    return {u"30Hz"_s, u"35Hz"_s, u"40Hz"_s, u"50Hz"_s};
}

QStringList valoriEsercizio::ampiezze() {
    return {u"L"_s, u"H"_s};
}

QStringList valoriEsercizio::modalita() {
    return {u"Statico a carico naturale"_s, u"Statico a carico aggiuntivo"_s, u"Dinamico a carico naturale"_s,
            u"Dinamico a carico aggiuntivo"_s, u"Combinata"_s};
}

bool valoriEsercizio::inElenco(const toolkit::Combo& elenco) {
    if (!nonInLista(elenco)) {
        return true;
    }
    host::message(u"Selezionare un valore tra quelli disponibili!"_s, host::Icon::Critical);
    return false;
}
