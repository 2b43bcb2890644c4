#include "desktop/testClassi.h"

#include "cards/scheda.h"
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

std::shared_ptr<SchedaApribile> testClassi::schedaDiProva() {
    auto prova = std::make_shared<scheda>();
    store::Recordset figure = db::comune().getRs(u"SELECT id_fig FROM figure ORDER BY id_fig"_s);
    for (int i = 0; i < 2 && !figure.EOF_(); ++i, figure.MoveNext()) {
        auto riga = std::make_shared<Esercizio>();
        riga->id_fig = figure(u"id_fig").toInt32();
        riga->durata = u"30s"_s;
        riga->frequenza = u"30Hz"_s;
        riga->ampiezza = u"L"_s;
        riga->modalita = u"Statico a carico naturale"_s;
        riga->recuperoMin = 1;
        prova->esercizi->Add(riga);
    }
    return prova;
}

void testClassi::esegui() {
    zfrmTestDB::comune().showModal();
}
