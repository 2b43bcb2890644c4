#include "cards/mdiScheda.h"
#include "cards/scheda.h"
#include "core/Finestre.h"
#include "core/MenuPrincipale.h"
#include "core/Principale.h"
#include "core/variabiliGlobali.h"
#include "platform/toolkit/PictureBox.h"
#include "platform/toolkit/Toolbar.h"
#include "support/FormPage.h"
#include "support/Pictures.h"
#include "support/ScriptedBoxes.h"
#include "support/ToolkitTest.h"
#include "support/WindowChecks.h"

#include <QMenu>
#include <QToolButton>

using namespace Qt::StringLiterals;
using namespace variabiliGlobali;

namespace {

/// What a menu shows: name and caption of each item, "-" for a separator.
QStringList shown(const QMenu& menu) {
    QStringList items;
    for (const QAction* action : menu.actions()) {
        if (action->isVisible()) {
            items.append(action->isSeparator() ? u"-"_s : action->objectName() + u'|' + action->text());
        }
    }
    return items;
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

class TestPrincipale : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() {
        program_ = std::make_unique<ScratchProgram>();
        boxes_ = std::make_unique<ScriptedBoxes>();
        givePictures(*program_);
        program_->sql(
            u"INSERT INTO utenti (cognome,nome) VALUES ('Rossi','Ada'),('Verdi','Ugo');"
            "INSERT INTO schede (id_utente,id_cat,Istruttore,FreqAllen) VALUES (1,1,'Giulia',3),(1,2,'Marco',2)"_s);
        idUtenteSelezionato = idSchedaSelezionata = idModelloSelezionato = 0;
        inChiusura = false;
        finestre::caricaScheda();
        Principale::comune().show();
    }
    void cleanup() {
        inChiusura = true;
        if (mdiScheda::esiste()) {
            mdiScheda::comune().puoiChiudere = true;
        }
        toolkit::Form::destroyAll();
        QVERIFY(boxes_->satisfied());
        boxes_.reset();
        program_.reset();
    }

    void menusAndToolbar() {
        const WindowPage page(Principale::comune());
        const auto& bar = page.find<MenuPrincipale>(u"MenuPrincipale"_s);
        QStringList tops;
        QList<QStringList> menus;
        for (const QAction* top : bar.actions()) {
            tops.append(top->menu()->objectName() + u'|' + top->text());
            menus.append(shown(*top->menu()));
        }
        QCOMPARE(tops, QStringList({u"mnuQDK|Zentara Deckforge"_s, u"mnuUtenti|Utenti"_s,
                                    u"mnuSchede|Schede"_s, u"mnuHelp|?"_s}));
        QCOMPARE(menus.at(0),
                 QStringList({u"mnuQDKPersonalizza|Personalizza"_s, u"-"_s, u"mnuQDKEsci|Esci"_s}));
        QCOMPARE(menus.at(1), QStringList({u"mnuUtentiGestione|Gestione..."_s}));
        QCOMPARE(menus.at(2), QStringList({u"mnuSchedeNuova|Nuova Scheda"_s, u"mnuSchedeApri|Apri..."_s,
                                           u"-"_s, u"mnuSchedeDaModello|Nuova da Modello"_s,
                                           u"mnuSchedeGestioneModello|Gestione Schede Modello"_s, u"-"_s,
                                           u"mnuSchedeCosaNonFare|Stampa \"ISTRUZIONI D'USO\""_s}));
        QCOMPARE(menus.at(3), QStringList({u"mnuHelpHelp|Guida del programma"_s, u"-"_s,
                                           u"mnuHelpManuale|Manuale d'uso di Quiverdeck"_s, u"-"_s,
                                           u"mnuHelpAbout|Informazioni su..."_s}));
        for (const QString& pictured : {u"mnuQDKPersonalizza"_s, u"mnuUtentiGestione"_s, u"mnuHelpAbout"_s}) {
            QVERIFY(!bar.voce(pictured).icon().isNull());
        }
        QVERIFY(bar.voce(u"mnuHelpManuale"_s).icon().isNull());

        const auto& toolbar = page.find<toolkit::Toolbar>(u"Toolbar1"_s);
        QVERIFY(toolbar.isSeparator(3));
        for (const auto& [position, key] : {std::pair(1, u"nuova"_s), std::pair(2, u"nuovaDaModello"_s),
                                            std::pair(4, u"apri"_s), std::pair(5, u"esci"_s)}) {
            QCOMPARE(toolbar.key(position), key);
            QVERIFY(!toolbar.button(position).icon().isNull());
        }
        QCOMPARE(page.text(u"nuovaDaModello"_s), u"Nuova da Modello"_s);
        QCOMPARE(Principale::comune().caption(), u" Zentara"_s);
        QCOMPARE(cutTexts(Principale::comune()), QStringList());
    }

    void logoStandsInTheMiddle_data() {
        QTest::addColumn<QSize>("size");
        QTest::newRow("large") << QSize(1024, 700);
        QTest::newRow("low") << QSize(1024, 400);
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
        QCOMPARE(idUtenteSelezionato, 0);
        QCOMPARE(idSchedaSelezionata, 0);
        QCOMPARE(idModelloSelezionato, 0);
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
        boxes_->expect(host::Icon::Information, u"Salvo le ultime modifiche?"_s, host::Answer::No);
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

    void managingAthletes() {
        whenModal([](toolkit::Form& form) {
            QCOMPARE(form.Tag, u"MODIFICA"_s);
            form.unload();
        });
        menu(u"mnuUtentiGestione"_s).trigger();
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
        ExpectedFatal fatal;
        int error = 0;
        try {
            Q_EMIT WindowPage(Principale::comune())
                .find<MenuPrincipale>(u"MenuPrincipale"_s)
                .scelta(u"mnuHelpManuale"_s);
        } catch (const runtime::Error& raised) {
            error = raised.number();
        }
        QCOMPARE(error, 53);
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
        if (!action.isEnabled()) {
            qFatal("%s is disabled", qPrintable(name));
        }
        return action;
    }

    std::unique_ptr<ScratchProgram> program_;
    std::unique_ptr<ScriptedBoxes> boxes_;
};

QUIVERDECK_WINDOW_TEST_MAIN(TestPrincipale)
#include "test_principale.moc"
