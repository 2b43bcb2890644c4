#include "templates/RaccoglitoreModelli.h"

using namespace Qt::StringLiterals;

store::Recordset RaccoglitoreModelli::chiavi() const {
    return archivio().getRs(u"SELECT id_Scheda FROM schedemodello"_s);
}
