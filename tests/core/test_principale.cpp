#include "cards/mdiScheda.h"
#include "cards/scheda.h"
#include "core/Finestre.h"
#include "core/MenuPrincipale.h"
#include "core/Principale.h"
#include "core/variabiliGlobali.h"
#include "platform/toolkit/Toolbar.h"
#include "support/WindowTest.h"

#include <QMenu>
#include <QToolButton>

using namespace Qt::StringLiterals;
using namespace variabiliGlobali;

namespace {

/// What a menu shows: name and caption of each item, "-" for a separator, "*" before one with a picture.
QString shown(const QMenu& menu) {
    QStringList items;
    for (const QAction* action : menu.actions()) {
        if (action->isVisible()) {
            items.append(action->isSeparator() ? u"-"_s
                                               : (action->icon().isNull() ? QString() : u"*"_s) +
                                                     action->objectName() + u'|' + action->text());
        }
    }
    return items.join(u"; "_s);
}

/// The athlete list opens: choose the athlete in that line, or none for -1.
void whenAthletes(int line) {
    whenModal([line](toolkit::Form& form) {
        QCOMPARE(form.objectName(), u"UtentiSelezione"_s);
        QCOMPARE(form.Tag, u"SELEZIONA"_s);
        const FormPage page(form);
        if (line < 0) {
            page.press(u"annulla"_s);
            return;
        }
        page.list().select(line);
        page.press(u"seleziona"_s);
    });
}

} // namespace

class TestPrincipale : public WindowTest {
    Q_OBJECT
private Q_SLOTS:
    void init() {
        WindowTest::init();
        sql(u"INSERT INTO utenti (cognome,nome) VALUES ('Rossi','Ada'),('Verdi','Ugo');"
            "INSERT INTO schede (id_utente,id_cat,Istruttore,FreqAllen) VALUES "
            "(1,1,'Giulia',3),(1,2,'Marco',2)");
        finestre::caricaScheda();
        Principale::comune().show();
    }

    void menusAndToolbar() {
        const WindowPage page(Principale::comune());
        const auto& bar = page.find<MenuPrincipale>(u"MenuPrincipale"_s);
        QStringList tops;
        QStringList menus;
        for (const QAction* top : bar.actions()) {
            tops.append(top->menu()->objectName() + u'|' + top->text());
            menus.append(shown(*top->menu()));
        }
        QCOMPARE(tops, QStringList({u"mnuQDK|Zentara Deckforge"_s, u"mnuUtenti|Utenti"_s,
                                    u"mnuSchede|Schede"_s, u"mnuHelp|?"_s}));
        QCOMPARE(menus.at(0), u"*mnuQDKPersonalizza|Personalizza; -; *mnuQDKEsci|Esci"_s);
        QCOMPARE(menus.at(1), u"*mnuUtentiGestione|Gestione..."_s);
        QCOMPARE(
            menus.at(2),
            u"*mnuSchedeNuova|Nuova Scheda; *mnuSchedeApri|Apri...; -; *mnuSchedeDaModello|Nuova da Modello; "
            "*mnuSchedeGestioneModello|Gestione Schede Modello; -; "
            "mnuSchedeCosaNonFare|Stampa \"ISTRUZIONI D'USO\""_s);
        QCOMPARE(menus.at(3),
                 u"*mnuHelpHelp|Guida del programma; -; mnuHelpManuale|Manuale d'uso di Quiverdeck; -; "
                 "*mnuHelpAbout|Informazioni su..."_s);

        const auto& toolbar = page.find<toolkit::Toolbar>(u"Toolbar1"_s);
        QVERIFY(toolbar.isSeparator(3));
        for (const auto& [position, key] : {std::pair(1, u"nuova"_s), std::pair(2, u"nuovaDaModello"_s),
                                            std::pair(4, u"apri"_s), std::pair(5, u"esci"_s)}) {
            QCOMPARE(toolbar.key(position), key);
            QVERIFY(!toolbar.button(position).icon().isNull());
        }
        QCOMPARE(Principale::comune().caption(), u" Zentara"_s);
    }

    void logoStandsInTheMiddle_data() {
        QTest::addColumn<QSize>("size");
        QTest::newRow("large") << QSize(1024, 700);
        QTest::newRow("small") << QSize(420, 300);
    }
    void logoStandsInTheMiddle() {
        QFETCH(QSize, size);
        Principale& window = Principale::comune();
        window.setMaximised(false);
        window.resize(size);
        const auto& logo = WindowPage(window).find<toolkit::PictureBox>(u"logoQD"_s);
        QVERIFY(logo.isVisible());
        QCOMPARE(logo.size(), QSize(400, 120));
        QVERIFY((logo.geometry().center() - window.client()->rect().center()).manhattanLength() <= 2);
    }

    void cancellingLeavesEverything() {
        idUtenteSelezionato = 2;
        idSchedaSelezionata = 5;
        idModelloSelezionato = 7;
        whenAthletes(-1);
        WindowPage(Principale::comune()).press(u"apri"_s);
        QVERIFY(Principale::comune().isVisible());
        QCOMPARE(scelti(), u"0 0 0"_s);
    }

    void menuKeepsTheEarlierChoice() {
        idUtenteSelezionato = 2;
        whenAthletes(-1);
        menu(u"mnuSchedeNuova"_s).trigger(); // the earlier athlete is still in force
        QVERIFY(!Principale::comune().isVisible());
        QCOMPARE(dynamic_cast<scheda&>(*mdiScheda::comune().schedaAperta).id_utente, 2);
    }

    void newCard() {
        whenAthletes(1);
        WindowPage(Principale::comune()).press(u"nuova"_s);
        QVERIFY(!Principale::comune().isVisible());
        QVERIFY(mdiScheda::comune().isVisible());
        QCOMPARE(mdiScheda::comune().schedaAperta->id_scheda, 0);
        QCOMPARE(dynamic_cast<scheda&>(*mdiScheda::comune().schedaAperta).id_utente, 2);
        boxes().expect(Icon::Information, u"Salvo le ultime modifiche?"_s, Answer::No);
        WindowPage(mdiScheda::comune()).press(u"fine"_s);
        QVERIFY(Principale::comune().isVisible());
        QVERIFY(!mdiScheda::comune().isVisible());
        QCOMPARE(idUtenteSelezionato, 0);
    }

    void openCard() {
        whenAthletes(0);
        QTimer::singleShot(0, this, [] {
            // The athlete list closes first; its successor is modal by then.
            whenModal([](toolkit::Form& form) {
                QCOMPARE(form.objectName(), u"SchedeSelezione"_s);
                const FormPage page(form);
                page.list().select(1);
                page.press(u"seleziona"_s);
            });
        });
        WindowPage(Principale::comune()).press(u"apri"_s);
        QVERIFY(!Principale::comune().isVisible());
        QCOMPARE(mdiScheda::comune().schedaAperta->id_scheda, 2);
    }

    void cardFromATemplate_data() {
        QTest::addColumn<int>("answer");
        QTest::addColumn<bool>("opens");
        QTest::newRow("chosen") << 1 << true;
        QTest::newRow("cancelled") << -1 << false;
    }
    void cardFromATemplate() {
        QFETCH(int, answer);
        QFETCH(bool, opens);
        whenModal([answer](toolkit::Form& form) {
            QCOMPARE(form.objectName(), u"SchedeMODELLOSelezione"_s);
            QCOMPARE(idUtenteSelezionato, 0); // managing forgets the athlete
            form.unload();
            idModelloSelezionato = answer;
        });
        idUtenteSelezionato = 2;
        menu(u"mnuSchedeGestioneModello"_s).trigger();
        QCOMPARE(mdiScheda::comune().isVisible(), opens);
        QCOMPARE(Principale::comune().isVisible(), !opens);
    }

    void missingManualFails() {
        QAction& manual = menu(u"mnuHelpManuale"_s);
        const ExpectedFatal fatal;
        QTimer::singleShot(0, &manual, &QAction::trigger);
        QTRY_COMPARE(fatal.lastNumber, 53);
    }

    void leaving() {
        WindowPage(Principale::comune()).press(u"esci"_s);
        QVERIFY(inChiusura);
        QVERIFY(!Principale::esiste());
        QVERIFY(!mdiScheda::esiste());
    }

private:
    static QAction& menu(const QString& name) {
        QAction& action =
            WindowPage(Principale::comune()).find<MenuPrincipale>(u"MenuPrincipale"_s).voce(name);
        if (!action.isEnabled())
            qFatal("%s is disabled", qPrintable(name));
        return action;
    }
};

QUIVERDECK_TEST(TestPrincipale)
#include "test_principale.moc"
