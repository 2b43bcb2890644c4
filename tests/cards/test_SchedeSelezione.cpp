#include "cards/SchedeSelezione.h"
#include "core/variabiliGlobali.h"
#include "support/WindowTest.h"

using namespace Qt::StringLiterals;
using variabiliGlobali::idSchedaSelezionata;

class TestSchedeSelezione : public WindowTest {
    Q_OBJECT
private Q_SLOTS:
    void init() {
        WindowTest::init();
        sql(u"INSERT INTO utenti (cognome,nome) VALUES ('D`Amico','Niccolò'),('Verdi','Ugo');"
            "INSERT INTO schede (id_utente,id_cat,PeriodoDal,PeriodoAl,Istruttore,FreqAllen) VALUES "
            "(1,1,'2005-12-01','2006-01-15','Giulia D’Amico',3),(1,2,NULL,'2006-02-03','',0),"
            "(2,1,NULL,NULL,'x',0)");
        idSchedaSelezionata = 77;
    }

    void listsTheAthletesCards() {
        const FormPage page(open(1));
        QCOMPARE(page.text(u"utente"_s), u"[D`Amico Niccolò]"_s);
        QCOMPARE(page.lines(), QStringList({u"1|01/12/2005|15/01/2006|Giulia D’Amico|Forza"_s,
                                            u"2||03/02/2006||Generale"_s})); // a Null period is an empty cell
        QVERIFY(page.list().isColumnHidden(0));
        page.list().setSortKey(1);
        QCOMPARE(page.list().itemText(0), u"2"_s);
    }

    void columnsShowTheCategoriesWhole() {
        sql(u"UPDATE categorie SET nome='Condizionamento generale' WHERE id_cat=1");
        const FormPage page(open(1));
        toolkit::ReportList& lista = page.list();
        const QAbstractItemView& vista = lista;
        int insieme = 0;
        for (int colonna = 1; colonna <= 4; ++colonna) {
            QVERIFY2(vista.sizeHintForColumn(colonna) <= lista.columnWidth(colonna),
                     qPrintable(QString::number(colonna)));
            insieme += lista.columnWidth(colonna);
        }
        QVERIFY(insieme <= lista.viewport()->QWidget::width()); // no scroll bar below
    }

    void choosing_data() {
        QTest::addColumn<int>("presses"); // 1 the button, 2 a double click
        QTest::newRow("button") << 1;
        QTest::newRow("double click") << 2;
    }
    void choosing() {
        QFETCH(int, presses);
        const FormPage page(open(1));
        page.clickLine(u"LW"_s, 1, presses);
        if (presses == 1)
            page.press(u"seleziona"_s);
        QCOMPARE(idSchedaSelezionata, 2);
        QVERIFY(!SchedeSelezione::esiste());
    }

    void withoutCards() {
        sql(u"DELETE FROM schede WHERE id_utente=2"_s);
        boxes().expect(Icon::Critical, u"L'utente non ha schede salvate!"_s);
        const FormPage page(open(2));
        for (const QString& key : {u"seleziona"_s, u"elimina"_s, u"stampa"_s})
            QVERIFY(!page.isEnabled(key));
        Q_EMIT page.list().doubleClick(); // in the empty list: nothing
        page.press(u"annulla"_s);
        QVERIFY(!SchedeSelezione::esiste());
        QCOMPARE(idSchedaSelezionata, 77);
    }

    void deleting() {
        const FormPage page(open(1));
        boxes().expect(Icon::Critical, u"Confermi?"_s, Answer::No);
        page.press(u"elimina"_s);
        QCOMPARE(page.list().count(), 2);
        for (int left = 1; left >= 0; --left) {
            boxes().expect(Icon::Critical, u"Confermi?"_s, Answer::Yes);
            boxes().expect(Icon::Information, u"Scheda eliminata"_s);
            page.press(u"elimina"_s);
            QCOMPARE(page.list().count(), left);
        }
        QCOMPARE(rows(u"SELECT id_scheda FROM schede"), u"3"_s);
        // An emptied list disables nothing: the next try tells.
        boxes().expect(Icon::Critical, u"Si è verificato un errore:\r"_s +
                                           runtime::standardDescription(runtime::ObjectNotSet) +
                                           u"\rContattare il supporto tecnico"_s);
        page.press(u"elimina"_s);
        page.press(u"seleziona"_s);
        QCOMPARE(idSchedaSelezionata, 77);
    }

    void preview() {
        const FormPage page(open(1));
        page.list().select(1);
        qint32 shown = 0;
        sql(u"INSERT INTO Esercizi VALUES (1,1,2,0,'','','',0,0,0,'','',1,'Corsa')"_s);
        whenModal([&](toolkit::Form& form) {
            QCOMPARE(form.objectName(), u"PrinterCanvas"_s);
            QCOMPARE(SchedeSelezione::comune().cursor().shape(), Qt::WaitCursor);
            shown = idSchedaSelezionata;
            form.unload();
        });
        page.press(u"stampa"_s);
        QCOMPARE(shown, 2);
        QCOMPARE(idSchedaSelezionata, 0); // closing the list afterwards opens nothing
        QCOMPARE(SchedeSelezione::comune().cursor().shape(), Qt::ArrowCursor);
        QVERIFY(SchedeSelezione::comune().isVisible());
    }

private:
    static SchedeSelezione& open(qint32 athlete) {
        SchedeSelezione& form = SchedeSelezione::comune();
        form.idUtenteLista = athlete;
        form.fillList();
        form.show();
        return form;
    }
};

QUIVERDECK_TEST(TestSchedeSelezione)
#include "test_SchedeSelezione.moc"
