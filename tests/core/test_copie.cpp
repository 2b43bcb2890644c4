#include "core/CopieArchivio.h"
#include "support/RecordsTest.h"

#include <QDir>

using host::Answer;
using namespace Qt::StringLiterals;

class TestCopie : public RecordsTest {
    Q_OBJECT
private Q_SLOTS:
    void goodStoreIsLeftAloneAndANewerOneRefused() {
        QVERIFY(!CopieArchivio::troppoRecente());
        CopieArchivio().proponi(); // and no box
        sql(u"PRAGMA user_version = 2");
        boxes().expectBeginning(Icon::Exclamation,
                                u"L’archivio «splash.ps» è stato creato da una versione più recente"_s);
        QVERIFY(CopieArchivio::troppoRecente());
    }

    void damagedStoreIsOfferedBack() {
        const QString copies = program().folder() + u"/backup"_s;
        const auto clock = [] { return QDateTime(QDate(2026, 11, 22), QTime(22, 30)); };
        QCOMPARE(store::Backups(program().store(), copies, clock).run(), store::Backups::Outcome::Copied);
        QVERIFY(QFile::resize(program().store(), 5000));
        for (const Answer answer : {Answer::No, Answer::Yes}) {
            QVERIFY(!store::isGood(program().store()));
            boxes().expectBeginning(
                Icon::Exclamation,
                u"L’archivio «splash.ps» manca o è danneggiato.\n\nLa copia di sicurezza più "
                "recente in buono stato è del 22/11/2026 alle 22:30."_s,
                answer);
            if (answer == Answer::Yes)
                boxes().expectBeginning(Icon::Information, u"L’archivio è di nuovo quello del 22/11/2026."_s);
            CopieArchivio().proponi();
        }
        QVERIFY(store::isGood(program().store()));
        QCOMPARE(QDir(program().folder()).entryList({u"splash.ps.danneggiato-*"_s}).size(), 1);
        QVERIFY(QDir(copies).removeRecursively() && QFile::remove(program().store()));
        CopieArchivio().proponi(); // without a copy nothing is said
    }
};

QUIVERDECK_TEST(TestCopie)
#include "test_copie.moc"
