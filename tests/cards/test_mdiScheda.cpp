#include "cards/EditorTest.h"
#include "printing/ContatoreTempi.h"
#include "templates/SchedaIntestazioneMODELLO.h"

using namespace Qt::StringLiterals;

class TestMdiScheda : public EditorTest {
    Q_OBJECT

    /// Saves as a new template of that name, in the category that is proposed.
    void salvaSuModello(const QString& nome) {
        const QString aperta = EditorTest::aperta().isModello ? u"e aperta "_s : QString();
        boxes().expect(Icon::Information, u"Creata %1la nuova Scheda Modello '%2'"_s.arg(aperta, nome));
        whenModal([nome](toolkit::Form& form) {
            WindowPage(form).type(u"descrizione"_s, nome);
            WindowPage(form).press(u"cmdOk"_s);
        });
        comando(u"SalvaSuModello"_s);
    }

private Q_SLOTS:
    void opensWhatTheGlobalsSay() {
        sql(u"INSERT INTO figure VALUES (5,'QUIVR',9,'images\\Q\\001.JPG')"); // shares a file
        nuovaScheda({1});
        nuovoModello();
        // Key, category, number of lines, athlete (none of a template), the buttons Salva and Stampa.
        const auto aperto = [](int utente, int scheda, int modello) {
            apri(utente, scheda, modello);
            const auto* card = dynamic_cast<const ::scheda*>(&aperta());
            QString testo = u"%1 %2 %3 %4 %5%6"_s.arg(aperta().id_scheda)
                                .arg(aperta().categoria)
                                .arg(aperta().esercizi->Count())
                                .arg(card != nullptr ? card->id_utente : 0)
                                .arg(editor().isEnabled(u"salva"_s))
                                .arg(editor().isEnabled(u"stampa"_s));
            mdiScheda::comune().puoiChiudere = true;
            mdiScheda::comune().unload();
            return testo;
        };
        QCOMPARE(aperto(1, 0, 0), u"0 Generale 2 1 11"_s);
        QCOMPARE(aperto(1, 1, 2), u"1 Generale 2 1 11"_s); // a stored card wins
        QCOMPARE(aperto(0, 0, 1), u"1 Forza 4 0 00"_s);    // a supplied template
        QCOMPARE(aperto(0, 0, 2), u"2 Generale 2 0 10"_s);
        QCOMPARE(aperto(1, 0, 1), u"0 Forza 4 1 11"_s); // a card from a template
    }

    void printingStoresTheCardOnceWithoutAQuestion() {
        apri(1, 0, 1);                           // from the supplied template
        corpo().press(u"InserisciEsecizio_0"_s); // a blank line in front
        whenModal([](toolkit::Form& form) { form.unload(); });
        comando(u"stampa"_s);
        QCOMPARE(scelti(), u"1 1 1"_s);
        QCOMPARE(righe(), u"2|30 sec|3|prima|0, 3|45 sec|2|seconda|0, 0||0||0, 0||0||0"_s); // read anew
        QVERIFY(!mdiScheda::comune().puoiChiudere);
        corpo().type(u"note_0"_s, u"terza"_s);
        salva();
        QCOMPARE(rows(u"SELECT id_scheda, id_utente, id_cat, note FROM schede"), u"1|1|1|Note del modello"_s);
        QCOMPARE(rows(u"SELECT ct, NProg, ID_Fig, Note FROM Esercizi"), u"1|1|2|terza, 2|2|3|seconda"_s);
        QCOMPARE(rows(u"SELECT Note FROM EserciziModello"), u"prima, seconda"_s);
    }

    void finishAsksEachTimeAndOpensAfresh() {
        const auto fine = [this](Answer risposta) {
            boxes().expect(Icon::Information, u"Salvo le ultime modifiche?"_s, risposta);
            comando(u"fine"_s);
            QCOMPARE(mdiScheda::comune().isVisible(), risposta == Answer::Cancel);
        };
        apriConFigure({1});
        fine(Answer::Cancel);                  // of an untouched card too
        QVERIFY(!mdiScheda::comune().close()); // the close box is no way out
        corpo().type(u"peso_0"_s, u"9 kg"_s);
        fine(Answer::No);
        QCOMPARE(scelti(), u"0 0 0"_s);
        QCOMPARE(rows(u"SELECT Peso FROM Esercizi"), u"5 kg"_s);
        apriNuova();
        QCOMPARE(righe() + corpo().text(u"peso_0"_s), u"0||0||0, 0||0||0"_s);
        fine(Answer::Yes);
        QCOMPARE(rows(u"SELECT count(*) FROM schede"), u"2"_s);
        apri(0, 0, 1); // a supplied template: no question, and the globals stay
        comando(u"fine"_s);
        QVERIFY(!mdiScheda::comune().isVisible());
        QCOMPARE(scelti(), u"0 0 1"_s);
    }

    // Beyond 8 bits nothing is written: no row leaves its place, and Salva tells of no success.
    void numbersThatDoNotFit() {
        apriConFigure({1, 1, 1, 1});
        const ExpectedFatal fatale;
        corpo().type(u"serie_0"_s, u"256"_s); // not counted
        QCOMPARE(errorOf([] { barra().setValue(2); }), int(runtime::Overflow));
        QCOMPARE(SchedaCorpo::comune().pagina().posizione, 1);
        comando(u"salva"_s); // does not validate
        QCOMPARE(fatale.lastNumber, int(runtime::Overflow));
    }

    void aCardSavedAsTemplateStaysOpenAndUnchanged() {
        const int card = apriConFigure({1, 0});
        intestazione().choose(u"categoria"_s, u"Recupero"_s);
        salvaSuModello(u"Copia"_s);
        QCOMPARE(scelti(), u"1 %1 0"_s.arg(card));
        QCOMPARE(rows(u"SELECT descrizione, id_cat, preimpostata, note FROM schedeModello WHERE id_Scheda=2"),
                 u"Copia|3|0|Bere molto"_s);
        QCOMPARE(rows(u"SELECT ID_Scheda, ID_Fig, isLibero, Note FROM EserciziModello ORDER BY ct"),
                 u"1|2|0|prima, 1|3|0|seconda, 2|1|0|a, 2|0|1|b"_s);
        corpo().type(u"note_0"_s, u"cambiata"_s);
        salva();
        QCOMPARE(rows(u"SELECT ct, ID_Scheda, Note FROM Esercizi ORDER BY ct"),
                 u"1|%1|cambiata, 2|%1|b"_s.arg(card));
    }

    void aTemplateSavedAsTemplateOpensTheNewOne() {
        apri(0, 0, 1); // a supplied one is never asked about
        const auto contatore = mdiScheda::comune().contaTempi;
        const auto intestazione = [] { return WindowPage(SchedaIntestazioneMODELLO::comune()); };
        intestazione().type(u"note"_s, u"prime"_s);
        salvaSuModello(u"Nuovo"_s);
        QCOMPARE(aperta().id_scheda, 2);
        QVERIFY(editor().isEnabled(u"salva"_s)); // a new template is the user's own
        // The counter keeps the old template, which lives on with it.
        QCOMPARE(contatore->schedaCorrente->id_scheda, 1);
        corpo().type(u"serie_0"_s, u"9"_s);
        intestazione().type(u"note"_s, u"altre"_s);
        boxes().expect(Icon::Information, u"Salvare le modifiche al modello precedente?"_s, Answer::Yes);
        salvaSuModello(u"Altro"_s);
        QCOMPARE(intestazione().text(u"descrizione"_s) + corpo().text(u"serie_0"_s), u"Altro9"_s);
        QCOMPARE(scelti(), u"0 0 0"_s);
        QCOMPARE(rows(u"SELECT descrizione, note FROM schedeModello"),
                 u"Base|Note del modello, Nuovo|altre, Altro|altre"_s);
    }
};

QUIVERDECK_TEST(TestMdiScheda)
#include "test_mdiScheda.moc"
