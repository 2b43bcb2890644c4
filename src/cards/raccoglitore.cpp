#include "cards/raccoglitore.h"

using namespace Qt::StringLiterals;

store::Recordset raccoglitore::chiavi() const {
    return archivio().getRs(u"SELECT id_scheda FROM schede WHERE id_utente = "_s +
                            QString::number(id_utente));
}
