#include "cards/ValoriEsercizio.h"

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
