#include "athletes/UtentiNuovo.h"
#include "athletes/UtentiSelezione.h"
#include "core/variabiliGlobali.h"
#include "support/WindowTest.h"

using namespace Qt::StringLiterals;

class TestFinestreUtenti : public WindowTest {
    Q_OBJECT

    static FormPage open(const QString& mode) {
        UtentiSelezione::comune().Tag = mode;
        UtentiSelezione::comune().show();
        return FormPage(UtentiSelezione::comune());
    }

private Q_SLOTS:
    void init() {
        WindowTest::init();
        sql(u"INSERT INTO utenti (cognome,nome,dataNascita,sesso,Note) VALUES "
            "('Rossi','Élia','1970-05-09','M','Ernia'),('D`Amico','Rosa',NULL,'F',NULL),"
            "('bianchi','Ugo','1969-12-31','M','')");
    }

    void listAndChoice() {
        QCOMPARE(open(u"MODIFICA"_s).lines().join(u' '),
                 u"1|Rossi|Élia|09/05/1970 2|D`Amico|Rosa|01/01/1980 3|bianchi|Ugo|31/12/1969"_s);
        for (const QString& typed : {u"ro 1"_s, u"rosa 2"_s, u"BI 3"_s, u"ssi 1"_s}) {
            const FormPage page = open(u"MODIFICA"_s);
            page.type(u"Ricerca"_s, typed.section(u' ', 0, 0));
            page.key(u"Ricerca"_s, Qt::Key_Return);
            QCOMPARE(QString::number(variabiliGlobali::idUtenteSelezionato), typed.section(u' ', 1));
        }
        open(u"SELEZIONA"_s).clickLine(u"LW"_s, 1, 2);
        QCOMPARE(variabiliGlobali::idUtenteSelezionato, 2);
    }

    void deleting() {
        sql(u"INSERT INTO schede (id_utente,id_cat) VALUES (2,1),(2,1),(3,1)"_s);
        const FormPage page = open(u"MODIFICA"_s);
        page.list().select(1);
        boxes().expectBeginning(Icon::Critical, u"Sei sicuro di cancellare l'atleta?"_s, Answer::No);
        page.press(u"elimina"_s);
        boxes().expectBeginning(Icon::Critical, u"Sei sicuro di cancellare l'atleta?"_s, Answer::Yes);
        boxes().expect(Icon::Information, u"Utente e schede eliminati"_s);
        page.press(u"elimina"_s);
        QCOMPARE(page.lines(), QStringList({u"1|Rossi|Élia|09/05/1970"_s, u"3|bianchi|Ugo|31/12/1969"_s}));
        QCOMPARE(rows(u"SELECT id_utente FROM schede"), u"3"_s);
        // Without a selection this tells in a box, and choosing and editing end the program.
        sql(u"DELETE FROM utenti");
        UtentiSelezione::comune().FillListAtleti();
        const ExpectedFatal fatal;
        boxes().expectBeginning(Icon::Critical, u"Si è verificato un errore:"_s);
        for (const QString& button : {u"elimina"_s, u"seleziona"_s, u"modifica"_s})
            page.press(button);
        QCOMPARE(fatal.count, 2);
    }

    void missingData() {
        const FormPage list = open(u"MODIFICA"_s);
        for (int box = 0; box < 2; ++box)
            boxes().expect(Icon::Critical, u"Mancano alcuni dati essenziali!"_s);
        whenModal([](toolkit::Form& form) {
            const FormPage page(form);
            page.find<toolkit::DatePicker>(u"txtDataNascita"_s).setValue(QDate(1969, 2, 1));
            page.type(u"txtNome"_s, u"Niccolo'"_s);
            for (const QString& name : {QString(), u"Niccolo'"_s}) {
                page.press(u"CmdSave"_s);
                page.type(u"txtCognome"_s, u"D'Amico"_s);
                page.type(u"txtNome"_s, name);
            }
            page.press(u"CmdSave"_s); // the notes may stay empty
        });
        list.press(u"nuovo"_s);
        // With neither choice on, a woman.
        QCOMPARE(rows(u"SELECT * FROM utenti WHERE id_utente=4"), u"4|Niccolo`|D`Amico|1969-02-01|F|"_s);
    }

    void editing() {
        const FormPage list = open(u"MODIFICA"_s);
        for (const QString& end : {u"cmdAnnulla"_s, u"CmdSave"_s}) {
            whenModal([end](toolkit::Form& form) {
                WindowPage(form).type(u"txtCognome"_s, u"Verdi"_s); // the rest was shown, and is stored again
                WindowPage(form).press(end);
            });
            list.clickLine(u"LW"_s, 0, 2);
            QCOMPARE(rows(u"SELECT * FROM utenti WHERE id_utente=1"),
                     u"1|Élia|%1|1970-05-09|M|Ernia"_s.arg(end == u"CmdSave"_s ? u"Verdi"_s : u"Rossi"_s));
        }
        QCOMPARE(list.list().cell(0, 1), u"Verdi"_s);
    }
};

QUIVERDECK_TEST(TestFinestreUtenti)
#include "test_finestre_utenti.moc"
