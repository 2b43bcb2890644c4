#include "core/Guida.h"
#include "core/MenuPrincipale.h"
#include "core/Principale.h"
#include "desktop/FinestraGuida.h"
#include "desktop/TastoAiuto.h"
#include "desktop/frmPersonalizza.h"
#include "platform/host/ProgramDirectory.h"
#include "support/WindowTest.h"

#include <QDir>
#include <QMenu>

using namespace Qt::StringLiterals;

namespace {

const QString file =
    u"<html><body>\n<!--capitolo Primo-->\n<!--pagina benvenuto|Benvenuti-->\n<h1>Benvenuti</h1>\n"
    "<p>Perché l’età conta: <a href=\"#palestra\">il logo</a></p>\n"
    "<!--pagina palestra|Palestra-->\n<h1>Palestra</h1><p>Il logo</p>\n"
    "<!--capitolo Secondo-->\n<!--pagina finestra-principale|Finestra-->\n<p>Menu</p>\n"
    "<!--fine-->\n</body></html>\n"_s;

} // namespace

class TestGuida : public WindowTest {
    Q_OBJECT
private Q_SLOTS:
    void init() {
        WindowTest::init();
        key_ = std::make_unique<TastoAiuto>();
        guida::file = host::joined(u"\\HELP\\HELP.hlp"_s);
        write(u"HELP.hlp"_s, file);
    }
    void cleanup() {
        WindowTest::cleanup();
        key_.reset();
    }

    void window() {
        FinestraGuida::mostra(u"palestra"_s);
        QCOMPARE(contents(),
                 QStringList({u"Primo"_s, u"  Benvenuti"_s, u"  Palestra"_s, u"Secondo"_s, u"  Finestra"_s}));
        QVERIFY(WindowPage(FinestraGuida::comune())
                    .find<QTextBrowser>(u"testo"_s)
                    .toPlainText()
                    .contains(u"Il logo"_s));
    }

    void goingBackAndForward() {
        FinestraGuida::mostra(u"nessuna"_s); // the first page stands for one that is not there
        FinestraGuida& guide = FinestraGuida::comune();
        const WindowPage page(guide);
        QCOMPARE(guide.pagina(), u"benvenuto"_s);
        QVERIFY(!page.isEnabled(u"indietro"_s));
        Q_EMIT page.find<QTextBrowser>(u"testo"_s).anchorClicked(QUrl(u"#palestra"_s));
        QCOMPARE(guide.pagina(), u"palestra"_s);
        page.press(u"indietro"_s);
        QCOMPARE(guide.pagina(), u"benvenuto"_s);
        QVERIFY(!page.isEnabled(u"indietro"_s));
        page.press(u"avanti"_s);
        QCOMPARE(guide.pagina(), u"palestra"_s);
        QVERIFY(!page.isEnabled(u"avanti"_s));
        page.press(u"indietro"_s);
        auto& tree = page.find<QTreeWidget>(u"indice"_s);
        tree.setCurrentItem(tree.topLevelItem(1)->child(0)); // a new road: nothing lies ahead any more
        QCOMPARE(guide.pagina(), u"finestra-principale"_s);
        QVERIFY(!page.isEnabled(u"avanti"_s));
        page.press(u"inizio"_s);
        QCOMPARE(guide.pagina(), u"benvenuto"_s);
    }

    void searching_data() {
        QTest::addColumn<QString>("words");
        QTest::addColumn<QStringList>("found");
        QTest::newRow("two pages") << u"LOGO"_s
                                   << QStringList({u"Primo"_s, u"  Benvenuti"_s, u"  Palestra"_s});
        QTest::newRow("no accents") << u"eta perche"_s << QStringList({u"Primo"_s, u"  Benvenuti"_s});
        QTest::newRow("straight apostrophe") << u"l'età"_s << QStringList({u"Primo"_s, u"  Benvenuti"_s});
        QTest::newRow("not the code") << u"href"_s << QStringList(u"Nessuna pagina trovata"_s);
        QTest::newRow("every word") << u"logo menu"_s << QStringList(u"Nessuna pagina trovata"_s);
    }
    void searching() {
        QFETCH(QString, words);
        FinestraGuida::mostra(u"benvenuto"_s);
        const WindowPage page(FinestraGuida::comune());
        page.find<toolkit::TextBox>(u"cerca"_s).setText(words);
        QTEST(contents(), "found");
        QCOMPARE(FinestraGuida::comune().pagina(), u"benvenuto"_s);
        page.type(u"cerca"_s, {});
        QCOMPARE(contents().size(), 5);
    }

    void helpKey_data() {
        QTest::addColumn<QString>("control");
        QTest::addColumn<int>("modifiers");
        QTest::addColumn<QString>("page");
        QTest::newRow("in a field") << u"nome"_s << 0 << u"palestra"_s;
        QTest::newRow("on a button") << u"cmdOK"_s << 0 << u"palestra"_s;
        QTest::newRow("another key") << u"nome"_s << int(Qt::ShiftModifier) << QString();
    }
    void helpKey() {
        QFETCH(QString, control);
        QFETCH(int, modifiers);
        QFETCH(QString, page);
        // In a modal window: the guide is used beside it.
        whenModal([&](toolkit::Form& form) {
            WindowPage(form).key(control, Qt::Key_F1, Qt::KeyboardModifiers(modifiers));
            QCOMPARE(FinestraGuida::esiste(), !page.isEmpty());
            if (FinestraGuida::esiste()) {
                QCOMPARE(FinestraGuida::comune().pagina(), page);
                QCOMPARE(FinestraGuida::comune().windowHandle()->transientParent(), form.windowHandle());
                WindowPage(FinestraGuida::comune()).press(u"inizio"_s);
                QCOMPARE(FinestraGuida::comune().pagina(), u"benvenuto"_s);
            }
            form.unload();
        });
        frmPersonalizza::comune().showModal();
    }

    void everyWindowHasItsPage() {
        for (const QString& window :
             {u"Principale"_s, u"UtentiSelezione"_s, u"UtentiNuovo"_s, u"mdiScheda"_s,
              u"SchedaIntestazione"_s, u"SchedaCorpo"_s, u"SchedaSelezioneFIGURE"_s, u"SchedaPreviewFigura"_s,
              u"SchedeSelezione"_s, u"SchedeMODELLOSelezione"_s, u"SchedeMODELLONuova"_s,
              u"SchedaIntestazioneMODELLO"_s, u"PrinterCanvas"_s, u"PrinterDaNonFare"_s, u"frmPersonalizza"_s,
              u"ResolutionConfirm"_s}) {
            const QString page = qEnvironmentVariable("QUIVERDECK_SOURCE") + u"/help/pagine/"_s +
                                 paginaDellaFinestra(window) + u".md"_s;
            QVERIFY2(haPagina(window) && QFile::exists(page), qPrintable(window));
        }
    }

    void commandsOfTheMainWindow() {
        Principale::comune().show();
        item(u"mnuHelpHelp"_s).trigger();
        QCOMPARE(FinestraGuida::comune().pagina(), u"finestra-principale"_s);
        Principale::comune().unload(); // nothing stays open behind it
        QVERIFY(!FinestraGuida::esiste());
    }

    void missingFile() {
        QFile::remove(program().folder() + u"/HELP/HELP.hlp"_s);
        boxes().expectBeginning(Icon::Critical, u"La guida non si trova o non è leggibile: "_s);
        FinestraGuida::mostra(u"palestra"_s);
        write(u"HELP.hlp"_s, u"altro"_s);
        boxes().expectBeginning(Icon::Critical, u"La guida non si trova o non è leggibile: "_s);
        FinestraGuida::mostra(u"palestra"_s);
        write(u"HELP.hlp"_s, file); // put back, it opens at once
        FinestraGuida::mostra(u"palestra"_s);
        QCOMPARE(FinestraGuida::comune().pagina(), u"palestra"_s);
    }

    void manualOpensWithTheFolder() {
        // The launcher tells what it was started with; the program's folder has blanks and accents.
        const QString told = program().folder() + u"/detto.txt"_s;
        write(u"manuale"_s, u"#!/bin/sh\nprintf '%s|%s' \"$#\" \"$1\" > \"$1/detto.tmp\"\n"
                            "mv \"$1/detto.tmp\" \"$1/detto.txt\"\n"_s);
        QFile::setPermissions(program().folder() + u"/HELP/manuale"_s, QFile::ReadOwner | QFile::ExeOwner);
        Principale::comune().show();
        item(u"mnuHelpManuale"_s).trigger();
        QTRY_VERIFY(QFile::exists(told));
        QFile answer(told);
        QVERIFY(answer.open(QIODevice::ReadOnly));
        QCOMPARE(QString::fromUtf8(answer.readAll()), u"1|"_s + program().folder());
    }

private:
    void write(const QString& name, const QString& text) const {
        QDir().mkpath(program().folder() + u"/HELP"_s);
        QFile out(program().folder() + u"/HELP/"_s + name);
        QVERIFY(out.open(QIODevice::WriteOnly));
        out.write(text.toUtf8());
    }
    /// The lines of the contents, pages set in by two blanks.
    static QStringList contents() {
        QStringList lines;
        const auto& tree = WindowPage(FinestraGuida::comune()).find<QTreeWidget>(u"indice"_s);
        for (QTreeWidgetItemIterator item(&const_cast<QTreeWidget&>(tree)); *item != nullptr; ++item)
            lines.append(((*item)->parent() != nullptr ? u"  "_s : QString()) + (*item)->text(0));
        return lines;
    }
    static QAction& item(const QString& name) {
        return WindowPage(Principale::comune()).find<MenuPrincipale>(u"MenuPrincipale"_s).voce(name);
    }

    std::unique_ptr<TastoAiuto> key_;
};

QUIVERDECK_TEST(TestGuida)
#include "test_guida.moc"
