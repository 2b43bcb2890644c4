#include "figures/figura.h"

#include "platform/host/ProgramDirectory.h"
#include "platform/host/Services.h"

using namespace Qt::StringLiterals;

figura::figura() : archivio_(&db::comune()) {}

bool figura::carica(qint32 chiave) {
    const store::Recordset riga =
        archivio_->getRs(u"SELECT * From figure WHERE id_fig = "_s + QString::number(chiave));
    if (riga.EOF_()) {
        host::message(u"ERR:Problemi di connessione"_s, host::Icon::Critical);
        return false;
    }
    leggi(riga, true);
    return true;
}

void figura::leggi(const store::Recordset& riga, bool distinct) {
    id_fig = riga(u"id_fig").toInt32();
    ID_MAC = riga(u"ID_MAC").toText();
    if (!distinct) {
        id_muscolo = riga(u"id_muscolo").toText();
        nomeMuscolo = riga(u"nome").toText();
    }
    numero = static_cast<float>(riga(u"numero").toDouble());
    percorso_ = riga(u"figura").toText();
}

QString figura::figura_() const {
    return host::joined(u'\\' + percorso_);
}
