#include "core/CopieArchivio.h"
#include "support/RecordsTest.h"

#include <QDir>
#include <QFile>

using host::Answer;
using namespace Qt::StringLiterals;

class TestCopie : public RecordsTest {
    Q_OBJECT
private Q_SLOTS:
    void init() {
        RecordsTest::init();
        QCOMPARE(store::Backups(program().store(), program().folder() + u"/backup"_s,
                                [] { return QDateTime(QDate(2026, 11, 22), QTime(22, 30)); })
                     .run(),
                 store::Backups::Outcome::Copied);
    }

    void goodStoreIsLeftAloneAndANewerOneRefused() {
        QVERIFY(!CopieArchivio::troppoRecente());
        CopieArchivio().proponi(); // and no box
        sql(u"PRAGMA user_version = 2");
        boxes().expectBeginning(Icon::Exclamation,
                                u"L’archivio «splash.ps» è stato creato da una versione più recente"_s);
        QVERIFY(CopieArchivio::troppoRecente());
    }

    void damagedStoreIsOfferedBack_data() {
        QTest::addColumn<Answer>("answer");
        QTest::newRow("taken") << Answer::Yes;
        QTest::newRow("declined") << Answer::No;
    }

    void damagedStoreIsOfferedBack() {
        QFETCH(Answer, answer);
        QVERIFY(QFile::resize(program().store(), 5000));
        boxes().expectBeginning(
            Icon::Exclamation,
            u"L’archivio «splash.ps» manca o è danneggiato.\n\nLa copia di sicurezza più recente "
            "in buono stato è del 22/11/2026 alle 22:30."_s,
            answer);
        if (answer == Answer::Yes)
            boxes().expectBeginning(Icon::Information, u"L’archivio è di nuovo quello del 22/11/2026."_s);
        CopieArchivio().proponi();
        QCOMPARE(store::isGood(program().store()), answer == Answer::Yes);
        QCOMPARE(QDir(program().folder()).entryList({u"splash.ps.danneggiato-*"_s}).size(),
                 answer == Answer::Yes ? 1 : 0);
    }

    void withoutACopyNothingIsSaid() {
        QVERIFY(QDir(program().folder() + u"/backup"_s).removeRecursively());
        QFile::remove(program().store());
        CopieArchivio().proponi();
    }
};

QUIVERDECK_TEST(TestCopie)
#include "test_copie.moc"
