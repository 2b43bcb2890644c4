#include "cards/EditorTest.h"
#include "cards/SchedaCorpo2.h"
#include "platform/runtime/Dates.h"
#include "platform/toolkit/PictureBox.h"

#include <QClipboard>
#include <QScopeGuard>

using namespace Qt::StringLiterals;

/// The pages of the card editor: header and exercises.
class TestPagine : public EditorTest {
    Q_OBJECT

    const QString predefinita = u"30s|30Hz|L|0|0|Statico a carico naturale|0|"_s;

    /// What the fields of a row show.
    static QString mostrata(std::size_t i) {
        const TestiRiga t = SchedaCorpo::comune().pagina().righe.at(i);
        return QStringList{t.durata,      t.frequenza, t.ampiezza, t.recuperoMin,
                           t.recuperoSec, t.modalita,  t.serie,    t.peso}
            .join(u'|');
    }

private Q_SLOTS:
    void eachFieldGoesStraightToTheCard() {
        apriConFigure({});
        const WindowPage pagina = intestazione();
        auto& giorni = pagina.find<toolkit::CheckListBox>(u"GGAllen"_s);
        QCOMPARE(pagina.text(u"utente"_s), u"Rossi Mario"_s);
        const QString prima = rows(u"SELECT * FROM schede");
        salva();
        QCOMPARE(rows(u"SELECT * FROM schede"), prima);
        pagina.choose(u"categoria"_s, u"Recupero"_s);
        pagina.type(u"categoria"_s, u"Forza"_s); // the text of an item, typed: no choice
        pagina.type(u"Istruttore"_s, u"D'Amico"_s);
        pagina.type(u"Obiettivo"_s, u"l'arto"_s);
        pagina.type(u"note"_s, u"po'"_s); // escaped by the record
        pagina.find<toolkit::DatePicker>(u"al"_s).setDate(
            QDate(2026, 1, 1)); // before the start: not looked at
        pagina.find<toolkit::DatePicker>(u"dal"_s).setDate(QDate(2026, 12, 1));
        pagina.press(u"apriGGAllen"_s);
        for (const int giorno : {0, 2}) // daily beside weekdays: both stay
            QTest::mouseClick(giorni.viewport(), Qt::LeftButton, {},
                              giorni.visualItemRect(giorni.item(giorno)).center());
        for (const QString& campo : {u"al"_s, u"FreqAllen"_s, u"note"_s}) { // two leave the list open
            pagina.widget(campo).setFocus(Qt::TabFocusReason);
            QCOMPARE(giorni.isVisible(), campo != u"note"_s);
        }
        salva();
        QCOMPARE(rows(u"SELECT * FROM schede"),
                 u"1|1|D’Amico|2026-12-01|2026-01-01|3|2|100010100|l’arto|po`"_s);
    }

    // One more would make the save fail, and the card would be lost.
    void notesStopAtWhatTheRecordStores() {
        apriConFigure({});
        auto& note = intestazione().find<toolkit::TextArea>(u"note"_s);
        QGuiApplication::clipboard()->setText(QString(40'000, u'è'));
        note.selectAll();
        note.paste();
        QTest::keyClicks(&note, u"x"_s);
        QTest::keyClick(&note, Qt::Key_Return);
        QCOMPARE(aperta().note, QString(32'767, u'è'));
        salva();
        note.selectAll();
        QTest::keyClicks(&note, u"di nuovo"_s); // a selection makes room
        QCOMPARE(aperta().note, u"di nuovo"_s);
    }

    void frequency() {
        apriConFigure({});
        // No number keeps the value; beyond a byte, the last that fitted stays.
        for (const QString& scritto : {u"x 2"_s, u"5 5"_s, u"255 255"_s, u"256 25"_s}) {
            intestazione().type(u"FreqAllen"_s, scritto.section(u' ', 0, 0));
            QCOMPARE(QString::number(schedaAperta().FreqAllen), scritto.section(u' ', 1));
        }
        boxes().expect(Icon::Critical, u"Selezionare un valore tra quelli disponibili!"_s);
        intestazione().press(u"apriGGAllen"_s);
        QVERIFY(!intestazione().isVisible(u"GGAllen"_s)); // the button that caused it did not act
    }

    void newCardIsSavedWithItsDefaultsAndDroppedFigures() {
        const QDateTime ora = QDateTime::currentDateTime(); // a day that the picker shows before it is set
        runtime::setClock([&ora] { return QDateTime(ora); });
        const auto orologio = qScopeGuard([] { runtime::setClock({}); });
        apriNuova();
        QCOMPARE(mostrata(0), predefinita);
        for (const QString& altro : {u"gatto"_s, u"3 kg"_s, QString(), u"4294967296"_s})
            QVERIFY2(!corpo().drop(u"figura_1"_s, altro), qPrintable(altro));
        QVERIFY(corpo().drop(u"figura_1"_s, u"3"_s));
        QVERIFY(!corpo().find<toolkit::PictureBox>(u"figura_1"_s).isEmpty());
        QCOMPARE(aperta().esercizi->Item(2)->id_fig, 0); // only the next write has it
        barra().setValue(2);
        QVERIFY(corpo().drop(u"figura_1"_s, u"2"_s));
        salva();
        QCOMPARE(rows(u"SELECT * FROM schede"),
                 u"1|1||%1|%2|2|3|||"_s.arg(ora.toString(u"yyyy-MM-dd"_s),
                                            ora.addDays(21).toString(u"yyyy-MM-dd"_s)));
        QCOMPARE(rows(u"SELECT NProg, ID_Fig FROM Esercizi ORDER BY NProg"), u"2|3, 4|2"_s);
    }

    void insertionMovesDownAndDeletionIsStoredAtOnce() {
        apriConFigure({1, 2, 3}); // and one blank
        corpo().type(u"serie_1"_s, u"99"_s);
        corpo().press(u"InserisciEsecizio_1"_s);
        QCOMPARE(righe(), u"1|45s|3|a|0, 0||0||0, 2|45s|99|b|0, 3|45s|3|c|0, 0||0||0, 0||0||0"_s);
        QCOMPARE(mostrata(1), predefinita);
        QCOMPARE(barra().maximum(), 4); // 6 lines, 3 screens and one more
        corpo().press(u"EliminaEsercizio_0"_s);
        QCOMPARE(righe(), u"0|30s|0||0, 2|45s|99|b|0, 3|45s|3|c|0, 0||0||0, 0||0||0, 0||0||0"_s);
        QCOMPARE(mostrata(1), u"45s|40Hz|H|1|20|Combinata|99|5 kg"_s);
        QCOMPARE(rows(u"SELECT NProg, Note FROM Esercizi ORDER BY NProg"), u"2|b, 3|c"_s);
    }

    void scrollingWritesTheRowsAndMakesANewScreen() {
        apriConFigure({3, 1}); // and two blanks
        const WindowPage pagina = corpo();
        pagina.type(u"peso_0"_s, u"3 kg"_s);
        pagina.clickTab(u"TipoEsercizio_1"_s, 2);
        pagina.type(u"note_3"_s, u"libera"_s);
        QVERIFY(righe().startsWith(u"3|45s|3|a|0, 1|45s|3|b|0"_s)); // nothing is written yet
        barra().setValue(2);
        // A free line keeps the values that it does not show.
        QCOMPARE(righe(), u"3|45s|3|a|0, 1|45s|3|libera|1, 0||0||0, 0||0||0"_s);
        QCOMPARE(mostrata(0), predefinita);
        QVERIFY(pagina.isVisible(u"Frame1_1"_s));
        barra().setValue(1);
        QCOMPARE(pagina.text(u"peso_0"_s) + pagina.text(u"note_3"_s), u"3 kglibera"_s);
        QVERIFY(pagina.isVisible(u"FrameLibero_1"_s));
        barra().setValue(3);
        QCOMPARE(aperta().esercizi->Count(), 6);
    }

    void timesAreCountedAtEachEdit() {
        apriConFigure({1}); // three series of 45 s and 1 min 20 s: 2:15 and 4:00
        for (const QString& passo : {u"recuperoMin_0|2|09:15"_s, u"recuperoSec_0|59|11:12"_s,
                                     u"serie_0|5|18:40"_s, u"durata_0|60s|19:55"_s}) {
            const QStringList parti = passo.split(u'|');
            parti[0] == u"durata_0"_s ? corpo().choose(parti[0], parti[1]) : corpo().type(parti[0], parti[1]);
            const QString stato = editor().find<toolkit::StatusBar>(u"StatusBar1"_s).panel(u"status"_s);
            QVERIFY2(stato.contains(u"Tempo totale: "_s + parti[2]), qPrintable(stato));
        }
    }

    void refusedFieldsKeepTheFocus_data() {
        QTest::addColumn<QString>("messaggio");
        const QString lista = u"Selezionare un valore tra quelli disponibili!"_s;
        QTest::newRow("durata_0=30S") << lista; // another case
        QTest::newRow("ampiezza_0=") << lista;
        QTest::newRow("modalita_0=d'urto") << lista; // with its apostrophe guarded
        QTest::newRow("recuperoSec_0=60") << u"Inserire un numero tra 0 e 59"_s;
        QTest::newRow("serie_0=1x00") << u"Valore troppo grande!"_s; // letters are dropped
    }
    void refusedFieldsKeepTheFocus() {
        QFETCH(QString, messaggio);
        const QStringList prova = QString::fromLatin1(QTest::currentDataTag()).split(u'=');
        apriNuova();
        corpo().type(prova[0], prova[1]);
        QVERIFY(!corpo().text(prova[0]).contains(u'\'') && !corpo().text(prova[0]).contains(u'x'));
        boxes().expect(Icon::Critical, messaggio);
        corpo().clickTab(u"TipoEsercizio_0"_s, 2);
        QVERIFY(!corpo().isVisible(u"FrameLibero_0"_s));
        QVERIFY(corpo().widget(prova[0]).hasFocus());
    }

    void emptiedTimes() {
        apriNuova();
        const ExpectedFatal fatale;
        for (const QString& campo : {u"recuperoMin_0"_s, u"recuperoSec_0"_s}) {
            QCOMPARE(fatale.count, 0); // no minutes are 0
            corpo().type(campo, {});
            QTest::keyClick(&corpo().widget(campo), Qt::Key_Tab);
        }
        QCOMPARE(fatale.lastNumber, int(runtime::TypeMismatch));
    }

    /// The page of one exercise keeps what it does not show.
    void compactPage() {
        SchedaCorpo2& form = SchedaCorpo2::comune();
        form.schedaAperta = std::make_shared<::scheda>();
        addLines(*form.schedaAperta, {2});
        Esercizio& e = *form.schedaAperta->esercizi->Item(1);
        e.serie = 3;
        form.show();
        const WindowPage pagina(form);
        for (const QString& riga : {u"H|1:30|H|1|30"_s, u"4 mm|2|4|2|0"_s, u"H|:75|H|0|75"_s}) {
            pagina.type(u"ampiezza"_s, riga.section(u'|', 0, 0));
            pagina.type(u"recupero"_s, riga.section(u'|', 1, 1));
            pagina.press(u"cmdSucc"_s);
            pagina.press(u"cmdPrec"_s);
            QCOMPARE(u"%1|%2|%3"_s.arg(e.ampiezza).arg(e.recuperoMin).arg(e.recuperoSec),
                     riga.section(u'|', 2));
        }
        pagina.type(u"recupero"_s, u"0:256"_s);
        QCOMPARE(errorOf([&] { form.ScriviDati(); }), int(runtime::Overflow));
        QCOMPARE(u"%1|%2|%3|%4"_s.arg(e.id_fig).arg(e.serie).arg(e.recuperoSec).arg(e.note), u"2|3|75|1"_s);
    }
};

QUIVERDECK_TEST(TestPagine)
#include "test_pagine.moc"
