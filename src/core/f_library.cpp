#include "core/f_library.h"

#include "platform/host/Services.h"
#include "platform/runtime/Conversions.h"

#include <cmath>

using namespace Qt::StringLiterals;

bool nonInLista(const host::ItemList& combo) {
    const QString testo = combo.text();
    for (int i = 0; i < combo.count(); ++i)
        if (combo.item(i) == testo)
            return false;
    return true;
}

bool valoreInLista(const host::ItemList& combo) {
    if (!nonInLista(combo))
        return true;
    host::message(u"Selezionare un valore tra quelli disponibili!"_s, host::Icon::Critical);
    return false;
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
