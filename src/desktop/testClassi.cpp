#include "desktop/testClassi.h"

#include "core/db.h"
#include "desktop/zfrmTestDB.h"
#include "platform/runtime/Error.h"

using namespace Qt::StringLiterals;

QString testClassi::conteggi() {
    static const QString tabelle[] = {u"utenti"_s,        u"schede"_s,          u"Esercizi"_s,
                                      u"schedeModello"_s, u"EserciziModello"_s, u"categorie"_s,
                                      u"figure"_s,        u"muscoli"_s,         u"figure_muscoli"_s,
                                      u"Macchinari"_s,    u"palestra"_s,        u"Parametri"_s};
    QString righe;
    for (const QString& tabella : tabelle) {
        QString risultato;
        try {
            const store::Recordset conteggio =
                db::comune().getRs(u"SELECT COUNT(*) AS Conteggio FROM "_s + tabella);
            risultato = conteggio(u"Conteggio").toText();
        } catch (const runtime::Error& errore) {
            risultato = errore.description();
        }
        righe += tabella + u": "_s + risultato + u'\n';
    }
    return righe;
}

void testClassi::esegui() {
    zfrmTestDB::comune().showModal();
}
