#include "cards/mdiScheda.h"
#include "cards/scheda.h"
#include "core/Finestre.h"
#include "core/MenuPrincipale.h"
#include "core/Principale.h"
#include "core/variabiliGlobali.h"
#include "support/WindowTest.h"

using namespace Qt::StringLiterals;
using namespace variabiliGlobali;

class TestPrincipale : public WindowTest {
    Q_OBJECT

    static QAction& menu(const QString& name) {
        return WindowPage(Principale::comune()).find<MenuPrincipale>(u"MenuPrincipale"_s).voce(name);
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
    /// The modal window that a menu's item opens; it is closed.
    static QString opens(const QString& command) {
        QString opened;
        whenModal([&opened](toolkit::Form& form) {
            opened = form.objectName();
            form.unload();
        });
        menu(command).trigger();
        return opened;
    }
    /// Whether the main window shows, whether the editor does; the athlete and key of the open card.
    static QString shown() {
        const QString text =
            u"%1 %2"_s.arg(Principale::comune().isVisible()).arg(mdiScheda::comune().isVisible());
        const auto* card = dynamic_cast<const scheda*>(mdiScheda::comune().schedaAperta.get());
        return card == nullptr ? text : text + u" %1 %2"_s.arg(card->id_utente).arg(card->id_scheda);
    }

private Q_SLOTS:
    void init() {
        WindowTest::init();
        sql(u"INSERT INTO utenti (cognome,nome) VALUES ('Rossi','Ada'),('Verdi','Ugo');"
            "INSERT INTO schede (id_utente,id_cat,Istruttore,FreqAllen) VALUES (2,1,'Ada',3),(1,2,'Ugo',2)");
        finestre::caricaScheda();
        Principale::comune().show();
    }

    void commandsOpenTheirWindows() {
        for (int i = 0; i < 5; ++i)
            givePicture(program(), u"avvertenze/posa%1.JPG"_s.arg(i), Qt::white);
        QCOMPARE(opens(u"mnuQDKPersonalizza"_s), u"frmPersonalizza"_s);
        QCOMPARE(opens(u"mnuUtentiGestione"_s), u"UtentiSelezione"_s);
        QCOMPARE(opens(u"mnuSchedeApri"_s), u"UtentiSelezione"_s);
        QCOMPARE(opens(u"mnuSchedeDaModello"_s), u"UtentiSelezione"_s);
        QCOMPARE(opens(u"mnuSchedeCosaNonFare"_s), u"PrinterDaNonFare"_s);
        QCOMPARE(opens(u"mnuHelpAbout"_s), u"frmAbout"_s);
        press(u"esci"_s);
        QVERIFY(inChiusura && !Principale::esiste() && !mdiScheda::esiste());
    }

    void toolbarForgetsAndMenuKeepsTheEarlierChoice() {
        idUtenteSelezionato = 2;
        idSchedaSelezionata = idModelloSelezionato = 5;
        whenAthletes(-1);
        press(u"nuova"_s);
        QCOMPARE(scelti() + u' ' + shown(), u"0 0 0 1 0"_s);
        whenAthletes(1);
        press(u"nuova"_s);
        QCOMPARE(shown(), u"0 1 2 0"_s);
        boxes().expect(Icon::Information, u"Salvo le ultime modifiche?"_s, Answer::No);
        WindowPage(mdiScheda::comune()).press(u"fine"_s);
        QVERIFY(Principale::comune().isVisible() && !mdiScheda::comune().isVisible());
        QCOMPARE(idUtenteSelezionato, 0);
        idUtenteSelezionato = 2;
        whenAthletes(-1);
        menu(u"mnuSchedeNuova"_s).trigger(); // the earlier athlete is still in force
        QCOMPARE(shown(), u"0 1 2 0"_s);
    }

    void openCard() {
        whenAthletes(0);
        QTimer::singleShot(0, this, [] { // the athlete list closes first; its successor is modal by then
            whenModal([](toolkit::Form& form) { FormPage(form).press(u"seleziona"_s); });
        });
        press(u"apri"_s);
        QCOMPARE(shown(), u"0 1 1 2"_s); // the athlete's own card
    }

    void cardFromATemplate() {
        for (const int answer : {-1, 1}) {
            whenModal([answer](toolkit::Form& form) {
                QCOMPARE(idUtenteSelezionato, 0); // managing forgets the athlete
                form.unload();
                idModelloSelezionato = answer;
            });
            idUtenteSelezionato = 2;
            menu(u"mnuSchedeGestioneModello"_s).trigger();
            QCOMPARE(mdiScheda::comune().isVisible(), answer == 1);
        }
    }
};

QUIVERDECK_TEST(TestPrincipale)
#include "test_principale.moc"
