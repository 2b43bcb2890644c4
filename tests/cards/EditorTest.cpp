#include "cards/EditorTest.h"

#include "core/variabiliGlobali.h"

using namespace Qt::StringLiterals;
using namespace variabiliGlobali;

void EditorTest::init() {
    WindowTest::init();
    sql(u"INSERT INTO utenti VALUES (1,'Mario','Rossi',NULL,'M','')");
}

int EditorTest::nuovaScheda(const QList<int>& figure) const {
    sql(u"INSERT INTO schede (id_utente,Istruttore,PeriodoDal,PeriodoAl,id_cat,FreqAllen,GGAllen,Obiettivo,"
        "note) VALUES (1,'Anna','2026-11-02','2026-11-30',2,2,'001010100','Forza','Bere molto')");
    const int scheda = rows(u"SELECT max(id_scheda) FROM schede").toInt();
    const auto riga = u"INSERT INTO Esercizi VALUES (NULL,1+%1,%2,%3,'45s','40Hz','H',1,20,3,'Combinata',"
                      "'5 kg',%3=0,char(97+%1))"_s;
    for (qsizetype i = 0; i < figure.size(); ++i)
        sql(riga.arg(i).arg(scheda).arg(figure[i]));
    return scheda;
}

void EditorTest::nuovoModello() const {
    sql(u"INSERT INTO schedeModello VALUES (2,2,'Mio',0,'note mie');"
        "INSERT INTO EserciziModello VALUES (3,1,2,1,'45s','40Hz','H',1,20,3,'Combinata','',0,'mia')");
}

void EditorTest::apri(int utente, int scheda, int modello) {
    idUtenteSelezionato = utente;
    idSchedaSelezionata = scheda;
    idModelloSelezionato = modello;
    mdiScheda::comune().mostra();
    QVERIFY(QTest::qWaitForWindowActive(&mdiScheda::comune())); // else no field has the focus
}

int EditorTest::apriConFigure(const QList<int>& figure) const {
    const int scheda = nuovaScheda(figure);
    apri(1, scheda, 0);
    return scheda;
}

QString EditorTest::righe() {
    QStringList righe;
    for (const auto& e : *aperta().esercizi)
        righe +=
            u"%1|%2|%3|%4|%5"_s.arg(e->id_fig).arg(e->durata).arg(e->serie).arg(e->note).arg(e->isLibero);
    return righe.join(u", "_s);
}

void EditorTest::salva() {
    boxes().expect(Icon::Information, u"Salvataggio effettuato"_s);
    comando(u"salva"_s);
}
