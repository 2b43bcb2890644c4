#include "cards/mdiScheda.h"
#include "core/Finestre.h"
#include "core/MenuPrincipale.h"
#include "core/Principale.h"
#include "core/variabiliGlobali.h"
#include "support/WindowTest.h"

using namespace Qt::StringLiterals;
using namespace variabiliGlobali;

class TestPrincipale : public WindowTest {
    Q_OBJECT

    static void menu(const QString& name) {
        WindowPage(Principale::comune()).find<MenuPrincipale>(u"MenuPrincipale"_s).voce(name).trigger();
    }
    static void press(const QString& button) { WindowPage(Principale::comune()).press(button); }
    /// The athlete list opens: choose the athlete in that line, or none for -1.
    static void whenAthletes(int line) {
        whenModal([line](toolkit::Form& form) {
            QCOMPARE(form.Tag, u"SELEZIONA"_s);
            FormPage(form).list().select(std::max(line, 0));
            FormPage(form).press(line < 0 ? u"annulla"_s : u"seleziona"_s);
        });
    }
    /// Whether the main window shows, whether the editor does, and the athlete chosen.
    static QString shown() {
        return u"%1 %2 %3"_s.arg(Principale::comune().isVisible())
            .arg(mdiScheda::comune().isVisible())
            .arg(idUtenteSelezionato);
    }

private Q_SLOTS:
    void init() {
        WindowTest::init();
        sql(u"INSERT INTO utenti (cognome,nome) VALUES ('Rossi','Ada'),('Verdi','Ugo')");
        finestre::caricaScheda();
        Principale::comune().show();
    }

    void toolbarForgetsAndMenuKeepsTheEarlierChoice() {
        idUtenteSelezionato = idSchedaSelezionata = idModelloSelezionato = 2;
        whenAthletes(-1);
        press(u"nuova"_s);
        QCOMPARE(scelti() + u' ' + shown(), u"0 0 0 1 0 0"_s);
        whenAthletes(1);
        press(u"nuova"_s);
        QCOMPARE(shown(), u"0 1 2"_s);
        boxes().expect(Icon::Information, u"Salvo le ultime modifiche?"_s, Answer::No);
        WindowPage(mdiScheda::comune()).press(u"fine"_s);
        QCOMPARE(shown(), u"1 0 0"_s);
        idUtenteSelezionato = 2;
        whenModal([](toolkit::Form& form) { form.unload(); });
        menu(u"mnuSchedeGestioneModello"_s); // forgets the athlete as well
        QCOMPARE(shown(), u"1 0 0"_s);
        idUtenteSelezionato = 2;
        whenAthletes(-1);
        menu(u"mnuSchedeNuova"_s); // the earlier athlete is still in force
        QCOMPARE(shown(), u"0 1 2"_s);
    }
};

QUIVERDECK_TEST(TestPrincipale)
#include "test_principale.moc"
