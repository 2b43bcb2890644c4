#include "core/Guida.h"
#include "core/MenuPrincipale.h"
#include "core/Principale.h"
#include "desktop/FinestraGuida.h"
#include "desktop/TastoAiuto.h"
#include "desktop/frmAbout.h"
#include "desktop/frmPersonalizza.h"
#include "platform/host/ProgramDirectory.h"
#include "support/Files.h"
#include "support/WindowTest.h"

using namespace Qt::StringLiterals;

class TestGuida : public WindowTest {
    Q_OBJECT

    QString help(const QString& file) const { return program().folder() + u"/HELP/"_s + file; }
    static WindowPage page() { return WindowPage(FinestraGuida::comune()); }
    /// The page, and which ways are open from it.
    static QString at() {
        return u"%1 %2%3"_s.arg(FinestraGuida::comune().pagina())
            .arg(page().isEnabled(u"indietro"_s))
            .arg(page().isEnabled(u"avanti"_s));
    }
    static void command(const QString& name) {
        Principale::comune().show();
        WindowPage(Principale::comune()).find<MenuPrincipale>(u"MenuPrincipale"_s).voce(name).trigger();
    }

private Q_SLOTS:
    void init() {
        WindowTest::init();
        guida::file = host::joined(u"\\HELP\\HELP.hlp"_s);
        writeFile(help(u"HELP.hlp"_s),
                  "<!--capitolo Primo-->\n<!--pagina benvenuto|Benvenuti-->\n<h1>Benvenuti</h1>\n"
                  "<p>Perché l’età conta: <a href=\"#palestra\">il logo</a></p>\n"
                  "<!--pagina palestra|Palestra-->\n<h1>Palestra</h1><p>Il logo</p>\n"
                  "<!--capitolo Secondo-->\n<!--pagina finestra-principale|Finestra-->\n<p>Menu</p>\n"
                  "<!--fine-->\n");
    }

    void readingAndSearching() {
        QVERIFY(QFile::rename(help(u"HELP.hlp"_s), help(u"altrove"_s)));
        boxes().expectBeginning(Icon::Critical, u"La guida non si trova o non è leggibile: "_s);
        FinestraGuida::mostra(u"palestra"_s);
        QVERIFY(QFile::rename(help(u"altrove"_s), help(u"HELP.hlp"_s))); // put back, it opens at once
        FinestraGuida::mostra(u"nessuna"_s); // the first page stands for one that is not there
        QCOMPARE(at(), u"benvenuto 00"_s);
        Q_EMIT page().find<QTextBrowser>(u"testo"_s).anchorClicked(QUrl(u"#palestra"_s));
        QCOMPARE(at(), u"palestra 10"_s);
        page().press(u"indietro"_s);
        QCOMPARE(at(), u"benvenuto 01"_s);
        page().press(u"avanti"_s);
        QCOMPARE(at(), u"palestra 10"_s);
        auto& tree = page().find<QTreeWidget>(u"indice"_s);
        tree.setCurrentItem(tree.topLevelItem(1)->child(0)); // a new road: nothing lies ahead any more
        QCOMPARE(at(), u"finestra-principale 10"_s);
        for (const auto& row :
             {u"LOGO|Primo Benvenuti Palestra"_s, u"eta perche|Primo Benvenuti"_s, u"l'età|Primo Benvenuti"_s,
              u"href|Nessuna pagina trovata"_s, u"logo menu|Nessuna pagina trovata"_s,
              u"|Primo Benvenuti Palestra Secondo Finestra"_s}) {
            page().find<toolkit::TextBox>(u"cerca"_s).setText(row.section(u'|', 0, 0));
            QStringList contents;
            for (QTreeWidgetItemIterator item(&page().find<QTreeWidget>(u"indice"_s)); *item; ++item)
                contents += (*item)->text(0);
            QCOMPARE(contents.join(u' ') + at(), row.section(u'|', 1) + u"finestra-principale 10"_s);
        }
    }

    void helpKey() {
        const TastoAiuto key;
        whenModal([](toolkit::Form& form) { // the guide is used beside it
            WindowPage(form).key(u"cmdOK"_s, Qt::Key_F1);
            QCOMPARE(at(), u"palestra 00"_s);
            QCOMPARE(FinestraGuida::comune().windowHandle()->transientParent(), form.windowHandle());
            page().press(u"inizio"_s);
            QCOMPARE(at(), u"benvenuto 10"_s);
            whenModal([](toolkit::Form& second) { // opened with the guide in front
                WindowPage(second).key(u"cmdOK"_s, Qt::Key_F1);
                const QWindow* guide = FinestraGuida::comune().windowHandle();
                QCOMPARE(guide->transientParent(), second.windowHandle());
                QVERIFY(second.windowHandle()->transientParent() != guide); // a ring would freeze the program
                second.unload();
            });
            frmAbout::comune().showModal();
            form.unload();
        });
        frmPersonalizza::comune().showModal();
        command(u"mnuHelpHelp"_s);
        QCOMPARE(FinestraGuida::comune().pagina(), u"finestra-principale"_s);
        Principale::comune().unload(); // nothing stays open behind it
        QVERIFY(!FinestraGuida::esiste());
    }

    void manualOpensWithTheFolder() {
        // The launcher tells what it was started with; the program's folder has blanks and accents.
        writeFile(help(u"manuale"_s), "#!/bin/sh\nprintf '%s|%s' \"$#\" \"$1\" > \"$1/detto.txt\"\n");
        QFile::setPermissions(help(u"manuale"_s), QFile::ReadOwner | QFile::ExeOwner);
        command(u"mnuHelpManuale"_s);
        QTRY_COMPARE_WITH_TIMEOUT(QString::fromUtf8(readFile(program().folder() + u"/detto.txt"_s)),
                                  u"1|"_s + program().folder(), 60000); // on a busy machine
    }
};

QUIVERDECK_TEST(TestGuida)
#include "test_guida.moc"
