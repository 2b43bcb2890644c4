#include "cards/EditorTest.h"
#include "platform/runtime/Dates.h"

#include <QClipboard>
#include <QDateEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QScopeGuard>

using namespace Qt::StringLiterals;

class TestIntestazione : public EditorTest {
    Q_OBJECT

    static QString scritta() {
        const ::scheda& c = schedaAperta();
        return QStringList{c.categoria, c.Obiettivo, c.Istruttore, c.PeriodoDal,
                           c.PeriodoAl, c.GGAllen,   c.note,       QString::number(c.FreqAllen)}
            .join(u'|');
    }

private Q_SLOTS:
    void newCardTakesItsDefaults() {
        const QDateTime ora = QDateTime::currentDateTime(); // a day that the picker shows before it is set
        runtime::setClock([&ora] { return ora; });
        const auto orologio = qScopeGuard([] { runtime::setClock({}); });
        apriNuova();
        const QString periodo = ora.toString(u"dd/MM/yyyy"_s) + ora.addDays(21).toString(u"|dd/MM/yyyy"_s);
        QCOMPARE(scritta(), u"Generale|||%1|||3"_s.arg(periodo));
    }

    void eachFieldGoesStraightToTheCard() {
        apriConFigure({});
        const WindowPage pagina = intestazione();
        auto& giorni = pagina.find<QListWidget>(u"GGAllen"_s);
        QCOMPARE(pagina.text(u"utente"_s), u"Rossi Mario"_s);
        QCOMPARE(scritta(), u"Generale|Forza|Anna|02/11/2026|30/11/2026|001010100|Bere molto|2"_s);
        pagina.type(u"categoria"_s, u"Forza"_s); // the text of an item, typed: no choice
        pagina.type(u"Istruttore"_s, u"D'Amico"_s);
        pagina.type(u"Obiettivo"_s, u"l'arto"_s);
        pagina.type(u"note"_s, u"po'"_s);                           // escaped by the record
        pagina.find<QDateEdit>(u"al"_s).setDate(QDate(2026, 1, 1)); // before the start: not looked at
        pagina.find<QDateEdit>(u"dal"_s).setDate(QDate(2026, 12, 1));
        pagina.press(u"apriGGAllen"_s);
        for (const int giorno : {0, 2}) // daily beside weekdays: both stay
            QTest::mouseClick(giorni.viewport(), Qt::LeftButton, {},
                              giorni.visualItemRect(giorni.item(giorno)).center());
        QCOMPARE(scritta(), u"Generale|l’arto|D’Amico|01/12/2026|01/01/2026|100010100|po'|2"_s);
        pagina.choose(u"categoria"_s, u"Recupero"_s);
        QCOMPARE(aperta().categoria, u"Recupero"_s);
    }

    // One more would make the save fail, and the card would be lost.
    void notesStopAtWhatTheRecordStores() {
        apriConFigure({});
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

    void dayListCloses() {
        apriNuova();
        const WindowPage pagina = intestazione();
        for (const QString& campo : {u"al"_s, u"FreqAllen"_s, u"categoria"_s, u"Istruttore"_s, u"note"_s}) {
            if (!pagina.isVisible(u"GGAllen"_s))
                pagina.press(u"apriGGAllen"_s);
            pagina.widget(campo).setFocus(Qt::TabFocusReason);
            QCOMPARE(pagina.isVisible(u"GGAllen"_s), campo == u"al"_s || campo == u"FreqAllen"_s);
        }
    }
};

QUIVERDECK_TEST(TestIntestazione)
#include "test_intestazione.moc"
