#include "cards/EditorTest.h"
#include "cards/mdiScheda.h"
#include "cards/scheda.h"
#include "platform/runtime/Dates.h"
#include "support/WindowChecks.h"

#include <QClipboard>
#include <QComboBox>
#include <QDateEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QScopeGuard>

using namespace Qt::StringLiterals;

namespace {

const QString fuoriLista = u"Selezionare un valore tra quelli disponibili!"_s;

} // namespace

class TestIntestazione : public EditorTest {
    Q_OBJECT

    static QListWidget& giorni() { return intestazione().find<QListWidget>(u"GGAllen"_s); }
    /// Clicks a day of the open list.
    static void clicca(int giorno) {
        QTest::mouseClick(giorni().viewport(), Qt::LeftButton, {},
                          giorni().visualItemRect(giorni().item(giorno)).center());
    }
    /// The texts of the named fields, joined by "|".
    static QString campi(const QStringList& nomi) {
        QStringList testi;
        for (const QString& nome : nomi)
            testi += intestazione().text(nome);
        return testi.join(u'|');
    }

private Q_SLOTS:
    void newCardTakesItsDefaults() {
        runtime::setClock([] { return QDateTime(QDate(2026, 2, 10), QTime(9, 0)); });
        const auto orologio = qScopeGuard([] { runtime::setClock({}); });
        apriNuova();
        QCOMPARE(campi({u"utente"_s, u"categoria"_s, u"dal"_s, u"al"_s, u"FreqAllen"_s, u"Text1"_s}),
                 u"Rossi Mario|Generale|10/02/2026|03/03/2026|3|Selezionare i giorni..."_s);
        QVERIFY(!intestazione().isVisible(u"GGAllen"_s));
        const ::scheda& card = schedaAperta();
        QCOMPARE(QStringList({card.categoria, card.PeriodoDal, card.PeriodoAl, card.GGAllen}).join(u'|'),
                 u"Generale|10/02/2026|03/03/2026|"_s);
        QCOMPARE(card.FreqAllen, 3);
        QVERIFY(!card.isSaved);
    }

    void todayIsWrittenEvenWhereThePickerShowsIt() {
        apriNuova();
        QCOMPARE(schedaAperta().PeriodoDal, runtime::dateText(runtime::today()));
    }

    void storedCardShowsItsFields() {
        apriScheda(nuovaScheda());
        QCOMPARE(campi({u"categoria"_s, u"Obiettivo"_s, u"Istruttore"_s, u"dal"_s, u"al"_s, u"FreqAllen"_s,
                        u"note"_s}),
                 u"Generale|Forza|Anna|02/11/2026|30/11/2026|2|Bere molto"_s);
        QStringList spuntati;
        for (int i = 0; i < giorni().count(); ++i)
            if (giorni().item(i)->checkState() == Qt::Checked)
                spuntati += giorni().item(i)->text();
        QCOMPARE(spuntati, QStringList({u"Lunedi"_s, u"Mercoledi"_s, u"Venerdi"_s}));
        QVERIFY(!aperta().isSaved); // every card that shows is marked unsaved
    }

    void textsGoStraightToTheCard_data() {
        QTest::addColumn<QString>("campo");
        QTest::addColumn<QString>("digitato");
        QTest::addColumn<QString>("atteso"); // instructor, goal, notes
        QTest::newRow("instructor") << u"Istruttore"_s << u"D'Amico"_s << u"D’Amico|Forza|Bere molto"_s;
        QTest::newRow("goal") << u"Obiettivo"_s << u"l'arto"_s << u"Anna|l’arto|Bere molto"_s;
        QTest::newRow("notes are escaped by the record")
            << u"note"_s << u"po' \"x\""_s << u"Anna|Forza|po' \"x\""_s;
        QTest::newRow("emptied") << u"Istruttore"_s << QString() << u"|Forza|Bere molto"_s;
    }
    void textsGoStraightToTheCard() {
        QFETCH(QString, campo);
        QFETCH(QString, digitato);
        apriScheda(nuovaScheda());
        ::scheda& card = schedaAperta();
        card.isSaved = true;
        intestazione().type(campo, digitato);
        QTEST(card.Istruttore + u'|' + card.Obiettivo + u'|' + card.note, "atteso");
        QVERIFY(!card.isSaved);
    }

    // One more would make the save fail, and the card would be lost.
    void notesStopAtWhatTheRecordStores() {
        apriScheda(nuovaScheda());
        auto& note = intestazione().find<QPlainTextEdit>(u"note"_s);
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

    void datesGoStraightToTheCard() {
        apriScheda(nuovaScheda());
        intestazione().find<QDateEdit>(u"dal"_s).setDate(QDate(2026, 12, 1));
        intestazione().find<QDateEdit>(u"al"_s).setDate(QDate(2026, 1, 1)); // before the start: not looked at
        QCOMPARE(schedaAperta().PeriodoDal, u"01/12/2026"_s);
        QCOMPARE(schedaAperta().PeriodoAl, u"01/01/2026"_s);
    }

    void frequency_data() {
        QTest::addColumn<QString>("digitato");
        QTest::addColumn<int>("atteso");
        QTest::addColumn<bool>("rifiutato");
        QTest::newRow("an item") << u"5"_s << 5 << false;
        QTest::newRow("a byte that is no item") << u"255"_s << 255 << true;
        QTest::newRow("beyond a byte keeps the last that fitted") << u"256"_s << 25 << true;
        QTest::newRow("no number keeps the value") << u"x"_s << 2 << true;
    }
    void frequency() {
        QFETCH(QString, digitato);
        QFETCH(bool, rifiutato);
        apriScheda(nuovaScheda());
        intestazione().type(u"FreqAllen"_s, digitato);
        QTEST(int(schedaAperta().FreqAllen), "atteso");
        if (rifiutato)
            boxes().expect(Icon::Critical, fuoriLista);
        intestazione().press(u"note"_s);
        QCOMPARE(intestazione().find<QComboBox>(u"FreqAllen"_s).hasFocus(), rifiutato);
    }

    void categoryReachesTheCardOnlyByAChoice() {
        apriScheda(nuovaScheda());
        const WindowPage pagina = intestazione();
        pagina.type(u"categoria"_s, u"Forza"_s); // the text of an item, typed
        pagina.press(u"Obiettivo"_s);
        QCOMPARE(aperta().categoria, u"Generale"_s);
        pagina.choose(u"categoria"_s, u"Recupero"_s);
        QCOMPARE(aperta().categoria, u"Recupero"_s);
        pagina.type(u"categoria"_s, u"Altro"_s);
        boxes().expect(Icon::Critical, fuoriLista);
        pagina.press(u"apriGGAllen"_s);
        QVERIFY(!pagina.isVisible(u"GGAllen"_s)); // the button that caused it did not act
        QCOMPARE(aperta().categoria, u"Recupero"_s);
    }

    void dayListCloses_data() {
        QTest::addColumn<bool>("chiude");
        for (const char* campo :
             {"categoria", "Istruttore", "Obiettivo", "note", "dal", "apriGGAllen", "fine"})
            QTest::newRow(campo) << true;
        QTest::newRow("al") << false;
        QTest::newRow("FreqAllen") << false;
    }
    void dayListCloses() {
        QFETCH(bool, chiude);
        const QString campo = QLatin1String(QTest::currentDataTag());
        apriNuova();
        const WindowPage pagina = intestazione();
        pagina.press(u"apriGGAllen"_s);
        QVERIFY(pagina.isVisible(u"GGAllen"_s));
        QCOMPARE(cutTexts(pagina.window()), QStringList());
        if (campo == u"apriGGAllen"_s) { // its own button
            pagina.press(campo);
        } else if (campo == u"fine"_s) { // a button of the toolbar
            boxes().expect(Icon::Information, u"Salvo le ultime modifiche?"_s, Answer::Cancel);
            comando(campo);
        } else {
            pagina.widget(campo).setFocus(Qt::TabFocusReason);
        }
        QCOMPARE(pagina.isVisible(u"GGAllen"_s), !chiude);
    }

    void daysAreStoredAsTheyAreTicked() {
        apriScheda(nuovaScheda());
        aperta().isSaved = true;
        intestazione().press(u"apriGGAllen"_s);
        clicca(0); // daily beside weekdays: both stay
        clicca(2);
        QCOMPARE(schedaAperta().GGAllen, u"100010100"_s);
        QVERIFY(!aperta().isSaved);
    }
};

QUIVERDECK_TEST(TestIntestazione)
#include "test_intestazione.moc"
