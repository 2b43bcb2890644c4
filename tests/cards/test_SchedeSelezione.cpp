#include "cards/SchedeSelezione.h"
#include "core/variabiliGlobali.h"
#include "support/WindowTest.h"

using namespace Qt::StringLiterals;
using variabiliGlobali::idSchedaSelezionata;

class TestSchedeSelezione : public WindowTest {
    Q_OBJECT

    static FormPage open() {
        SchedeSelezione::comune().idUtenteLista = 1;
        SchedeSelezione::comune().show();
        return FormPage(SchedeSelezione::comune());
    }

private Q_SLOTS:
    void init() {
        WindowTest::init();
        sql(u"UPDATE categorie SET nome='Condizionamento generale' WHERE id_cat=1;"
            "INSERT INTO utenti (cognome,nome) VALUES ('D`Amico','Niccolò'),('Verdi','Ugo');"
            "INSERT INTO schede (id_utente,id_cat,PeriodoDal,PeriodoAl,Istruttore,FreqAllen) VALUES "
            "(1,1,'1980-01-01','2006-01-15','Giulia D’Amico',3),(1,2,NULL,'2006-02-03','',0),"
            "(2,1,NULL,NULL,'x',0)");
    }

    void listPreviewAndDeletion() {
        open().clickLine(u"LW"_s, 1, 2);
        QCOMPARE(idSchedaSelezionata, 2);
        const FormPage page = open();
        QCOMPARE(page.text(u"utente"_s), u"[D`Amico Niccolò]"_s);
        QCOMPARE(
            page.lines().join(u'\n'), // a Null period is an empty cell, the date that stands for it is none
            u"1|01/01/1980|15/01/2006|Giulia D’Amico|Condizionamento generale\n2||03/02/2006||Generale"_s);
        const QAbstractItemView& list = page.list();
        QVERIFY(list.sizeHintForColumn(4) <= page.list().columnWidth(4));
        page.clickLine(u"LW"_s, 1);
        sql(u"INSERT INTO Esercizi VALUES (1,1,2,0,'','','',0,0,0,'','',1,'Corsa')");
        whenModal([](toolkit::Form& form) {
            QCOMPARE(idSchedaSelezionata, 2);
            form.unload();
        });
        page.press(u"stampa"_s);
        QCOMPARE(idSchedaSelezionata, 0); // closing the list afterwards opens nothing
        boxes().expect(Icon::Critical, u"Confermi?"_s, Answer::No);
        page.press(u"elimina"_s);
        for (const QString& left : {u"1, 3"_s, u"3"_s}) {
            boxes().expect(Icon::Critical, u"Confermi?"_s, Answer::Yes);
            boxes().expect(Icon::Information, u"Scheda eliminata"_s);
            page.press(u"elimina"_s);
            QCOMPARE(rows(u"SELECT id_scheda FROM schede"), left);
        }
        // An emptied list disables nothing: the next try tells.
        boxes().expectBeginning(Icon::Critical, u"Si è verificato un errore:\r"_s);
        page.press(u"elimina"_s);
        page.press(u"annulla"_s);
        boxes().expect(Icon::Critical, u"L'utente non ha schede salvate!"_s);
        QVERIFY(!open().isEnabled(u"seleziona"_s));
    }
};

QUIVERDECK_TEST(TestSchedeSelezione)
#include "test_SchedeSelezione.moc"
