#include "core/f_library.h"

#include "platform/runtime/Conversions.h"

#include <cmath>

bool nonInLista(const host::ItemList& combo) {
    const QString testo = combo.text();
    for (int i = 0; i < combo.count(); ++i) {
        if (combo.item(i) == testo)
            return false;
    }
    return true;
}

qint32 arrotondaSu(double x) {
    return runtime::toInt32(std::ceil(x));
}

void cercaInLista(host::ReportLines& lista, const QString& testo, int colonne) {
    const QString inizio = testo.toLower();
    for (int riga = 0; riga < lista.count(); ++riga) {
        for (int colonna = 1; colonna <= colonne; ++colonna) {
            if (lista.cell(riga, colonna).toLower().startsWith(inizio)) {
                lista.select(riga);
                return;
            }
        }
    }
}
