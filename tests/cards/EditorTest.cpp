#include "cards/EditorTest.h"

#include "cards/SchedaCorpo.h"
#include "cards/SchedaIntestazione.h"
#include "cards/mdiScheda.h"
#include "cards/scheda.h"
#include "core/variabiliGlobali.h"

using namespace Qt::StringLiterals;
using namespace variabiliGlobali;

void EditorTest::init() {
    WindowTest::init();
    sql(u"INSERT INTO utenti VALUES (1,'Mario','Rossi',NULL,'M','')");
}

int EditorTest::nuovaScheda() const {
    sql(u"INSERT INTO schede (id_utente,Istruttore,PeriodoDal,PeriodoAl,id_cat,FreqAllen,GGAllen,Obiettivo,"
        "note) VALUES (1,'Anna','2026-11-02','2026-11-30',2,2,'001010100','Forza','Bere molto')");
    return rows(u"SELECT max(id_scheda) FROM schede").toInt();
}

void EditorTest::esercizio(int scheda, int posizione, int figura, const QString& note) const {
    sql(u"INSERT INTO Esercizi (NProg,ID_Scheda,ID_Fig,Durata,Frequenza,Ampiezza,RecuperoMin,RecuperoSec,"
        "Serie,Modalita,Peso,isLibero,Note) VALUES (%1,%2,%3,'45s','40Hz','H',1,20,3,'Combinata','5 kg',"
        "%4,'%5')"_s.arg(posizione)
            .arg(scheda)
            .arg(figura)
            .arg(figura == 0 ? 1 : 0)
            .arg(note));
}

void EditorTest::nuovoModello() const {
    sql(u"INSERT INTO schedeModello VALUES (2,2,'Mio',0,'note mie');"
        "INSERT INTO EserciziModello VALUES (3,1,2,1,'45s','40Hz','H',1,20,3,'Combinata','',0,'mia')");
}

int EditorTest::apriConFigure(std::initializer_list<int> figure) const {
    const int scheda = nuovaScheda();
    int posizione = 0;
    for (const int figura : figure) {
        ++posizione;
        esercizio(scheda, posizione, figura, QString(QChar(u'a' + posizione - 1)));
    }
    apriScheda(scheda);
    return scheda;
}

void EditorTest::apri(int utente, int scheda, int modello) {
    idUtenteSelezionato = utente;
    idSchedaSelezionata = scheda;
    idModelloSelezionato = modello;
    mdiScheda::comune().mostra();
    QVERIFY(QTest::qWaitForWindowActive(&mdiScheda::comune())); // else no field has the focus
}

SchedaApribile& EditorTest::aperta() {
    return *mdiScheda::comune().schedaAperta;
}

::scheda& EditorTest::schedaAperta() {
    return dynamic_cast<::scheda&>(aperta());
}

QString EditorTest::righe() {
    QStringList righe;
    for (const auto& e : *aperta().esercizi) {
        righe +=
            u"%1|%2|%3|%4|%5"_s.arg(e->id_fig).arg(e->durata).arg(e->serie).arg(e->note).arg(e->isLibero);
    }
    return righe.join(u", "_s);
}

QString EditorTest::stato() {
    return mdiScheda::comune().findChild<toolkit::StatusBar*>()->panel(u"status"_s);
}

WindowPage EditorTest::editor() {
    return WindowPage(mdiScheda::comune());
}

WindowPage EditorTest::intestazione() {
    return WindowPage(SchedaIntestazione::comune());
}

WindowPage EditorTest::corpo() {
    return WindowPage(SchedaCorpo::comune());
}

void EditorTest::salva() {
    boxes().expect(Icon::Information, u"Salvataggio effettuato"_s);
    comando(u"salva"_s);
}
