#include "desktop/palestra.h"

#include "platform/host/Services.h"

using namespace Qt::StringLiterals;

palestra::palestra() : archivio_(&db::comune()) {}

void palestra::carica() {
    const store::Recordset riga = archivio_->getRs(u"SELECT * From palestra "_s);
    if (riga.EOF_()) {
        host::message(u"Archivio Vuoto o Problemi di connessione!"_s, host::Icon::Critical);
        return;
    }
    nome = riga(u"nome").toText();
    responsabile = riga(u"responsabile").toText();
    logo = riga(u"logo").toText();
}

bool palestra::save() {
    const QString n = db::correctApici(nome);
    const QString r = db::correctApici(responsabile);
    const QString l = db::correctApici(logo);
    if (archivio_->DCount(u"nome"_s, u"palestra"_s, {}) == 0)
        archivio_->getConn().Execute(u"INSERT INTO palestra (nome,responsabile,logo) VALUES ('"_s + n +
                                     u"','"_s + r + u"','"_s + l + u"')"_s);
    else
        archivio_->Execute(u"UPDATE palestra SET nome= '"_s + n + u"',responsabile= '"_s + r + u"',logo='"_s +
                           l + u"' "_s);
    return true;
}
