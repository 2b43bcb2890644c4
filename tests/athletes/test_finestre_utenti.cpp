#include "athletes/UtentiNuovo.h"
#include "athletes/UtentiSelezione.h"
#include "core/variabiliGlobali.h"
#include "support/WindowTest.h"

#include <QRadioButton>

using namespace Qt::StringLiterals;

class TestFinestreUtenti : public WindowTest {
    Q_OBJECT

    static FormPage open(const QString& mode) {
        UtentiSelezione& form = UtentiSelezione::comune();
        form.Tag = mode;
        form.show();
        return FormPage(form);
    }

private Q_SLOTS:
    void init() {
        WindowTest::init();
        sql(u"INSERT INTO utenti (cognome,nome,dataNascita,sesso,Note) VALUES "
            "('Rossi','Élia','1970-05-09','M','Ernia'),('D`Amico','Rosa',NULL,'F',NULL),"
            "('bianchi','Ugo','1969-12-31','M','')");
    }

    void listAndOrder() {
        const FormPage page = open(u"MODIFICA"_s);
        QStringList lines{u"1|Rossi|Élia|09/05/1970"_s, u"2|D`Amico|Rosa|01/01/1980"_s,
                          u"3|bianchi|Ugo|31/12/1969"_s};
        QCOMPARE(page.lines(), lines);
        page.list().select(2);
        page.clickHeader(u"LW"_s, 1);
        UtentiSelezione::comune().FillListAtleti();
        std::reverse(lines.begin(), lines.end()); // by surname, whatever its case
        QCOMPARE(page.lines(), lines);
        QCOMPARE(page.list().selectedText(), u"3"_s);
    }

    void choosing() {
        for (const auto& [text, chosen] : {std::pair(u"ro"_s, 1), std::pair(u"rosa"_s, 2),
                                           std::pair(u"BI"_s, 3), std::pair(u"ssi"_s, 1)}) {
            const FormPage page = open(u"MODIFICA"_s);
            page.type(u"Ricerca"_s, text);
            page.key(u"Ricerca"_s, Qt::Key_Return);
            QCOMPARE(variabiliGlobali::idUtenteSelezionato, chosen);
        }
        open(u"SELEZIONA"_s).clickLine(u"LW"_s, 1, 2);
        open(u"SELEZIONA"_s).press(u"annulla"_s);
        QVERIFY(!UtentiSelezione::esiste());
        QCOMPARE(variabiliGlobali::idUtenteSelezionato, 2);
    }

    void withoutASelection() {
        sql(u"DELETE FROM utenti"_s);
        const ExpectedFatal fatal;
        boxes().expectBeginning(Icon::Critical, u"Si è verificato un errore:"_s); // of the deletion alone
        for (const QString& button : {u"seleziona"_s, u"modifica"_s, u"elimina"_s})
            open(u"SELEZIONA"_s).press(button);
        QCOMPARE(fatal.count, 2);
    }

    void deleting() {
        sql(u"INSERT INTO schede (id_utente,id_cat) VALUES (2,1),(2,1),(3,1)"_s);
        const QString question = u"Sei sicuro di cancellare l'atleta? Verranno cancellate"_s;
        const FormPage page = open(u"MODIFICA"_s);
        page.list().select(1);
        boxes().expectBeginning(Icon::Critical, question, Answer::No);
        page.press(u"elimina"_s);
        QCOMPARE(page.list().count(), 3);
        boxes().expectBeginning(Icon::Critical, question, Answer::Yes);
        boxes().expect(Icon::Information, u"Utente e schede eliminati"_s);
        page.press(u"elimina"_s);
        QCOMPARE(page.lines(), QStringList({u"1|Rossi|Élia|09/05/1970"_s, u"3|bianchi|Ugo|31/12/1969"_s}));
        QCOMPARE(rows(u"SELECT id_utente FROM schede"), u"3"_s);
        QCOMPARE(page.list().selectedText(), u"1"_s); // the selected one is gone: the first line
    }

    void missingData() {
        const FormPage list = open(u"MODIFICA"_s);
        for (int box = 0; box < 2; ++box)
            boxes().expect(Icon::Critical, u"Mancano alcuni dati essenziali!"_s);
        whenModal([](toolkit::Form& form) {
            const FormPage page(form);
            page.type(u"txtNome"_s, u"Niccolo'"_s);
            page.press(u"CmdSave"_s);
            page.type(u"txtCognome"_s, u"D'Amico"_s);
            page.type(u"txtNome"_s, {});
            page.press(u"CmdSave"_s);
            page.type(u"txtNome"_s, u"Niccolo'"_s);
            page.find<toolkit::DatePicker>(u"txtDataNascita"_s).setValue(QDate(1969, 2, 1));
            page.press(u"CmdSave"_s); // the notes may stay empty
        });
        list.press(u"nuovo"_s);
        QCOMPARE(list.lines().mid(3), QStringList(u"4|D`Amico|Niccolo`|01/02/1969"_s));
        QCOMPARE(rows(u"SELECT sesso,Note FROM utenti WHERE id_utente=4"), u"F|"_s); // with neither choice on
    }

    void editing() {
        const FormPage list = open(u"MODIFICA"_s);
        for (const bool save : {false, true}) {
            whenModal([save](toolkit::Form& form) {
                const FormPage page(form);
                QVERIFY(page.find<QRadioButton>(u"optM"_s).isChecked());
                page.press(u"optF"_s);
                page.type(u"txtCognome"_s, u"Verdi"_s); // all the rest was shown, and is stored again
                page.press(save ? u"CmdSave"_s : u"cmdAnnulla"_s);
            });
            save ? list.clickLine(u"LW"_s, 0, 2) : list.press(u"modifica"_s);
            QCOMPARE(rows(u"SELECT cognome,nome,dataNascita,sesso,Note FROM utenti WHERE id_utente=1"),
                     save ? u"Verdi|Élia|1970-05-09|F|Ernia"_s : u"Rossi|Élia|1970-05-09|M|Ernia"_s);
            QCOMPARE(list.list().cell(0, 1), save ? u"Verdi"_s : u"Rossi"_s);
        }
    }
};

QUIVERDECK_TEST(TestFinestreUtenti)
#include "test_finestre_utenti.moc"
