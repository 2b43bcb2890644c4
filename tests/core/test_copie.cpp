#include "core/CopieArchivio.h"
#include "support/ScratchProgram.h"
#include "support/ScriptedBoxes.h"

#include <QDir>
#include <QFile>
#include <QTest>

using host::Answer;
using host::Icon;
using namespace Qt::StringLiterals;

class TestCopie : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() {
        program_ = std::make_unique<ScratchProgram>();
        boxes_ = std::make_unique<ScriptedBoxes>();
        QCOMPARE(store::Backups(program_->store(), program_->folder() + u"/backup"_s,
                                [] { return QDateTime(QDate(2026, 11, 22), QTime(22, 30)); })
                     .run(),
                 store::Backups::Outcome::Copied);
    }
    void cleanup() {
        const bool good = boxes_->satisfied();
        boxes_.reset();
        program_.reset(); // before the next one: its end gives the program its own folder back
        QVERIFY(good);
    }

    void goodStoreIsLeftAlone() {
        QVERIFY(!CopieArchivio::troppoRecente());
        CopieArchivio().proponi();
    }

    void newerStoreIsRefused() {
        program_->sql(u"PRAGMA user_version = 2"_s);
        boxes_->expectBeginning(Icon::Exclamation,
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
        QVERIFY(QFile::resize(program_->store(), 5000));
        boxes_->expectBeginning(
            Icon::Exclamation,
            u"L’archivio «splash.ps» manca o è danneggiato.\n\nLa copia di sicurezza più recente "
            "in buono stato è del 22/11/2026 alle 22:30."_s,
            answer);
        if (answer == Answer::Yes)
            boxes_->expectBeginning(Icon::Information, u"L’archivio è di nuovo quello del 22/11/2026."_s);
        CopieArchivio().proponi();
        QCOMPARE(store::isGood(program_->store()), answer == Answer::Yes);
        QCOMPARE(QDir(program_->folder()).entryList({u"splash.ps.danneggiato-*"_s}).size(),
                 answer == Answer::Yes ? 1 : 0);
    }

    void withoutACopyNothingIsSaid() {
        QVERIFY(QDir(program_->folder() + u"/backup"_s).removeRecursively());
        QFile::remove(program_->store());
        CopieArchivio().proponi();
    }

private:
    std::unique_ptr<ScratchProgram> program_;
    std::unique_ptr<ScriptedBoxes> boxes_;
};

QTEST_GUILESS_MAIN(TestCopie)
#include "test_copie.moc"
