#include "athletes/UtentiNuovo.h"
#include "athletes/UtentiSelezione.h"
#include "core/variabiliGlobali.h"
#include "support/WindowTest.h"

#include <QRadioButton>

using namespace Qt::StringLiterals;

namespace {

UtentiSelezione& open(const QString& mode) {
    UtentiSelezione& form = UtentiSelezione::comune();
    form.Tag = mode;
    form.show();
    return form;
}

} // namespace

class TestFinestreUtenti : public WindowTest {
    Q_OBJECT
private Q_SLOTS:
    void init() {
        WindowTest::init();
        sql(u"INSERT INTO utenti (cognome,nome,dataNascita,sesso,Note) VALUES "
            "('Rossi','Élia','1970-05-09','M','Ernia'),('D`Amico','Rosa',NULL,'F',NULL),"
            "('bianchi','Ugo','1969-12-31','M','')");
        variabiliGlobali::idUtenteSelezionato = 77;
    }

    void listShowsTheAthletes() {
        const FormPage page(open(u"MODIFICA"_s));
        QCOMPARE(page.lines(), QStringList({u"1|Rossi|Élia|09/05/1970"_s, u"2|D`Amico|Rosa|01/01/1980"_s,
                                            u"3|bianchi|Ugo|31/12/1969"_s}));
        QVERIFY(page.list().isColumnHidden(0));
        QCOMPARE(page.list().selectedText(), u"1"_s);
    }

    void typingFindsAndEnterChooses_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("chosen");
        QTest::newRow("surname") << u"ro"_s << 1;
        QTest::newRow("first name") << u"rosa"_s << 2;
        QTest::newRow("capitals do not count") << u"BI"_s << 3;
        QTest::newRow("middle of a name") << u"ssi"_s << 1;
    }
    void typingFindsAndEnterChooses() {
        QFETCH(QString, text);
        for (const QString& mode : {u"SELEZIONA"_s, u"MODIFICA"_s}) {
            const FormPage page(open(mode));
            page.type(u"Ricerca"_s, text);
            page.key(u"Ricerca"_s, Qt::Key_Return);
            QTEST(variabiliGlobali::idUtenteSelezionato, "chosen");
            QVERIFY(!UtentiSelezione::esiste());
        }
    }

    void doubleClickFollowsTheMode() {
        open(u"SELEZIONA"_s);
        FormPage(UtentiSelezione::comune()).clickLine(u"LW"_s, 1, 2);
        QCOMPARE(variabiliGlobali::idUtenteSelezionato, 2);
        QVERIFY(!UtentiSelezione::esiste());

        open(u"MODIFICA"_s);
        QString key;
        whenModal([&key](toolkit::Form& form) {
            key = form.Tag;
            form.unload();
        });
        FormPage(UtentiSelezione::comune()).clickLine(u"LW"_s, 0, 2);
        QCOMPARE(key, u"1"_s);
        QVERIFY(UtentiSelezione::esiste());
    }

    void cancellingChoosesNothing() {
        FormPage(open(u"SELEZIONA"_s)).press(u"annulla"_s);
        open(u"SELEZIONA"_s).close();
        QVERIFY(!UtentiSelezione::esiste());
        QCOMPARE(variabiliGlobali::idUtenteSelezionato, 77);
    }

    void withoutASelection() {
        sql(u"DELETE FROM utenti"_s);
        const FormPage page(open(u"SELEZIONA"_s));
        ExpectedFatal fatal;
        page.press(u"seleziona"_s);
        page.press(u"modifica"_s);
        page.key(u"Ricerca"_s, Qt::Key_Return);
        QCOMPARE(fatal.count, 3);
        QCOMPARE(fatal.lastNumber, int{runtime::ObjectNotSet});
        boxes().expect(Icon::Critical, u"Si è verificato un errore:"_s +
                                           runtime::standardDescription(runtime::ObjectNotSet) +
                                           u"\rContattare il supporto tecnico"_s);
        page.press(u"elimina"_s);
    }

    void deleting() {
        sql(u"INSERT INTO schede (id_utente,id_cat) VALUES (2,1),(2,1),(3,1)"_s);
        const QString question =
            u"Sei sicuro di cancellare l'atleta? Verranno cancellate tutte le sue schede!"_s;
        const FormPage page(open(u"MODIFICA"_s));
        page.list().select(1);
        boxes().expect(Icon::Critical, question, Answer::No);
        page.press(u"elimina"_s);
        QCOMPARE(page.list().count(), 3);
        boxes().expect(Icon::Critical, question, Answer::Yes);
        boxes().expect(Icon::Information, u"Utente e schede eliminati"_s);
        page.press(u"elimina"_s);
        QCOMPARE(page.lines(), QStringList({u"1|Rossi|Élia|09/05/1970"_s, u"3|bianchi|Ugo|31/12/1969"_s}));
        QCOMPARE(rows(u"SELECT id_utente FROM schede"), u"3"_s);
        QCOMPARE(page.list().selectedText(), u"1"_s); // the selected one is gone: the first line
    }

    void sortingStaysThroughARefill() {
        const FormPage page(open(u"MODIFICA"_s));
        page.list().select(2);
        page.clickHeader(u"LW"_s, 1);
        const QStringList byName{u"3|bianchi|Ugo|31/12/1969"_s, u"2|D`Amico|Rosa|01/01/1980"_s,
                                 u"1|Rossi|Élia|09/05/1970"_s};
        QCOMPARE(page.lines(), byName);
        QCOMPARE(page.list().selectedText(), u"3"_s);
        UtentiSelezione::comune().FillListAtleti();
        QCOMPARE(page.lines(), byName);
        QCOMPARE(page.list().selectedText(), u"3"_s);
        page.list().setSortKey(3);
        QCOMPARE(page.list().itemText(0), u"3"_s); // dates by time, not by day
    }

    void newAthlete() {
        const FormPage list(open(u"MODIFICA"_s));
        whenModal([](toolkit::Form& form) {
            const FormPage page(form);
            QVERIFY(!page.find<QRadioButton>(u"optM"_s).isChecked());
            page.type(u"txtNome"_s, u"Niccolo'"_s);
            page.type(u"txtCognome"_s, u"D'Amico"_s);
            page.find<toolkit::DatePicker>(u"txtDataNascita"_s).setValue(QDate(1969, 2, 1));
            page.find<toolkit::TextArea>(u"txtNote"_s)
                .setText(u"DELETE * FROM x #1/1/2005# 🏋\nè così"_s);
            page.press(u"CmdSave"_s);
        });
        list.press(u"nuovo"_s);
        QVERIFY(!UtentiNuovo::esiste());
        QCOMPARE(list.lines().last(), u"4|D`Amico|Niccolo`|01/02/1969"_s);
        // With neither choice on, the athlete is stored as "F".
        QCOMPARE(rows(u"SELECT sesso,Note FROM utenti WHERE id_utente=4"),
                 u"F|DELETE * FROM x #1/1/2005# 🏋\nè così"_s);
    }

    void missingData_data() {
        QTest::addColumn<QString>("nome");
        QTest::addColumn<QString>("cognome");
        QTest::addColumn<bool>("stored");
        QTest::newRow("no first name") << QString() << u"Rossi"_s << false;
        QTest::newRow("no surname") << u"Ada"_s << QString() << false;
        QTest::newRow("no notes") << u"Ada"_s << u"Rossi"_s << true;
    }
    void missingData() {
        QFETCH(QString, nome);
        QFETCH(QString, cognome);
        QFETCH(bool, stored);
        UtentiNuovo& form = UtentiNuovo::comune();
        form.Tag = u"0"_s;
        form.show();
        const FormPage page(form);
        page.type(u"txtNome"_s, nome);
        page.type(u"txtCognome"_s, cognome);
        if (!stored)
            boxes().expect(Icon::Critical, u"Mancano alcuni dati essenziali!"_s);
        page.press(u"CmdSave"_s);
        QCOMPARE(form.isVisible(), !stored);
        QCOMPARE(rows(u"SELECT COUNT(*) FROM utenti"), stored ? u"4"_s : u"3"_s);
    }

    void editing() {
        const FormPage list(open(u"MODIFICA"_s));
        for (const bool save : {false, true}) {
            whenModal([save](toolkit::Form& form) {
                const FormPage page(form);
                QCOMPARE(page.text(u"txtCognome"_s), u"Rossi"_s);
                QCOMPARE(page.text(u"txtNome"_s), u"Élia"_s);
                QCOMPARE(page.find<toolkit::DatePicker>(u"txtDataNascita"_s).value(), QDate(1970, 5, 9));
                QCOMPARE(page.text(u"txtNote"_s), u"Ernia"_s);
                QVERIFY(page.find<QRadioButton>(u"optM"_s).isChecked());
                QVERIFY(!page.find<QRadioButton>(u"optF"_s).isChecked());
                page.press(u"optF"_s);
                page.type(u"txtCognome"_s, u"Verdi"_s);
                page.press(save ? u"CmdSave"_s : u"cmdAnnulla"_s);
            });
            list.press(u"modifica"_s);
            QCOMPARE(rows(u"SELECT cognome,nome,sesso,Note FROM utenti WHERE id_utente=1"),
                     save ? u"Verdi|Élia|F|Ernia"_s : u"Rossi|Élia|M|Ernia"_s);
            QCOMPARE(list.list().cell(0, 1), save ? u"Verdi"_s : u"Rossi"_s);
        }
    }

    void keyWithoutARow() {
        UtentiNuovo& form = UtentiNuovo::comune();
        form.Tag = u"99"_s;
        boxes().expect(Icon::Critical, u"ERR:Problemi di connessione"_s);
        form.show();
        QCOMPARE(FormPage(form).text(u"txtCognome"_s), QString());
    }
};

QUIVERDECK_TEST(TestFinestreUtenti)
#include "test_finestre_utenti.moc"
