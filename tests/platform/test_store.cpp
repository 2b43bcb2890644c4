#include "platform/store/Connection.h"
#include "platform/store/Dialect.h"
#include "platform/store/Error.h"
#include "support/RecordsTest.h"

#include <QDir>
#include <QFile>

#include <sqlite3.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using runtime::Variant;

class TestStore : public RecordsTest {
    Q_OBJECT
private Q_SLOTS:
    void dialect_data() {
        QTest::addColumn<QString>("sql");
        QTest::addColumn<QString>("translated"); // empty: as it is
        const auto same = QString();
        QTest::newRow("star, any case and blanks") << u" delete\t*  from x"_s << u" delete from x"_s;
        QTest::newRow("other stars") << u"SELECT * FROM x"_s << same;
        QTest::newRow("not the word") << u"XDELETE * FROM x"_s << same;
        QTest::newRow("in quotes") << u"UPDATE x SET a='DELETE * FROM x #1/1/2005#'"_s << same;
        QTest::newRow("doubled quote") << u"UPDATE x SET a='l''ora #1/1/2005#', b=#1/2/2005#"_s
                                       << u"UPDATE x SET a='l''ora #1/1/2005#', b='2005-01-02'"_s;
        QTest::newRow("in brackets") << u"SELECT [a #1/1/2005# '] FROM x WHERE b=#1/1/2005#"_s
                                     << u"SELECT [a #1/1/2005# '] FROM x WHERE b='2005-01-01'"_s;
        QTest::newRow("in double quotes") << u"SELECT \"#1/1/2005#\""_s << same;
        QTest::newRow("unclosed quote") << u"SELECT 'a #1/1/2005#"_s << same;
        QTest::newRow("month first, day first is none")
            << u"a=#12/31/2005#,b=#31/12/2005#"_s << u"a='2005-12-31',b=#31/12/2005#"_s;
        QTest::newRow("time") << u"#12/31/2005 10:30#"_s << u"'2005-12-31 10:30:00'"_s;
        QTest::newRow("empty literal") << u"##"_s << same;
        QTest::newRow("lone sign, then a date") << u"# #1/2/2005#"_s << u"# '2005-01-02'"_s;
    }
    void dialect() {
        QFETCH(QString, sql);
        QFETCH(QString, translated);
        QCOMPARE(store::translate(sql), translated.isEmpty() ? sql : translated);
    }

    void typesByDeclaration() {
        sql(u"CREATE TABLE t (d DATE, b BOOLEAN, y BYTE, s TEXT, n INTEGER, r REAL);"
            "CREATE VIEW v AS SELECT d AS \"t.d\", b, y, s, n, r FROM t");
        run(u"INSERT INTO t VALUES (#12/31/2005#, TRUE, '5', '001010100', '7', 1.5)"_s);
        run(u"INSERT INTO t VALUES (#2/1/2006 10:30:00#, FALSE, 300, '08', 2, 2)"_s);
        run(u"INSERT INTO t VALUES (null,null,null,null,null,null)"_s);
        store::Recordset rows = query(u"SELECT * FROM v"_s);
        QCOMPARE(rows.RecordCount(), 3);
        QCOMPARE(rows(u"T.D"), Variant(QDate(2005, 12, 31)));
        QCOMPARE(rows(u"B"), Variant(true));
        QCOMPARE(rows(u"y"), Variant(5));
        QCOMPARE(rows(u"s"), Variant(u"001010100"_s));
        QCOMPARE(rows(u"n"), Variant(7));
        QCOMPARE(rows(u"r"), Variant(1.5));
        QCOMPARE(rows.Fields(3).Name(), u"s"_s);
        rows.MoveNext();
        QCOMPARE(rows(u"t.d").toText(), u"01/02/2006 10:30:00"_s);
        QCOMPARE(rows(u"b").toText(), u"False"_s);
        QCOMPARE(errorOf([&] { return rows(u"y"); }), 6); // the store takes it, reading refuses it
        rows.MoveNext();
        for (int i = 0; i < rows.FieldCount(); ++i)
            QVERIFY(rows.Fields(i).Value().isNull());
        QCOMPARE(errorOf([&] { return rows(u"d"); }), store::NoSuchField);
        QCOMPARE(errorOf([&] { return rows.Fields(6).Value(); }), store::NoSuchField);
        rows.MoveNext();
        QVERIFY(rows.EOF_());
        QCOMPARE(errorOf([&] { return rows(u"b"); }), store::NoCurrentRecord);
        QCOMPARE(errorOf([&] { rows.MoveNext(); }), store::NoCurrentRecord);
        QCOMPARE(query(u"SELECT s FROM t WHERE d < #1/1/2006#"_s).RecordCount(), 1);
        QCOMPARE(query(u"SELECT s FROM t WHERE d = #12/31/2005#"_s)(u"s").toText(), u"001010100"_s);
    }

    void snapshotLocksNothing() {
        store::Recordset rows = query(u"SELECT id_cat FROM categorie ORDER BY id_cat"_s);
        rows.MoveNext();
        sql(u"DELETE FROM categorie; DROP TABLE figure_muscoli");
        QCOMPARE(rows(u"id_cat"), Variant(2));
        QCOMPARE(rows.RecordCount(), 3);
        QCOMPARE(count(), 0);
    }

    void refusedStatements_data() {
        QTest::addColumn<QString>("sql");
        QTest::newRow("a second one") << u"DELETE FROM categorie; DELETE FROM figure"_s;
        QTest::newRow("a null character") << u"DELETE FROM categorie"_s + QChar(0) + u"x"_s;
        QTest::newRow("no date") << u"DELETE FROM utenti WHERE dataNascita=##"_s;
        QTest::newRow("impossible date") << u"DELETE FROM utenti WHERE dataNascita=#13/13/2005#"_s;
        QTest::newRow("empty") << u"  "_s;
        QTest::newRow("a misspelt name is no text") << u"DELETE FROM categorie WHERE nome=\"Forza\""_s;
        QTest::newRow("unclosed quote") << u"DELETE FROM categorie WHERE nome='D'Amico'"_s;
    }
    void refusedStatements() {
        QFETCH(QString, sql);
        try {
            run(sql);
            QFAIL("accepted");
        } catch (const store::Error& error) {
            QCOMPARE(error.number(), SQLITE_ERROR);
            QVERIFY(!error.description().isEmpty());
        }
        QCOMPARE(count(), 3);
        run(u"DELETE FROM categorie WHERE id_cat=1 ; \n"_s); // an end alone is none of these
        QCOMPARE(count(), 2);
    }

    void fileThatChanges() {
        store::Connection closed(program().store());
        QCOMPARE(closed.State(), 0);
        QCOMPARE(errorOf([&] { closed.Execute(u"DELETE * FROM categorie"_s); }), 91);
        const QString other = program().folder() + u"/other.ps"_s;
        QVERIFY(QFile::copy(program().store(), other));
        run(u"DELETE * FROM categorie"_s);
        QCOMPARE(count(), 0);
        // Replaced by another file, the way a backup is put back.
        QVERIFY(QFile::remove(program().store()));
        QCOMPARE(errorOf([&] { return count(); }), SQLITE_CANTOPEN);
        QVERIFY(!QFile::exists(program().store()));
        QVERIFY(QFile::copy(other, program().store()));
        QCOMPARE(count(), 3);
        // Rewritten in place, the change counter of the file included.
        run(u"DELETE * FROM categorie WHERE id_cat=1"_s);
        QCOMPARE(count(), 2);
        QFile source(other);
        QVERIFY(source.open(QIODevice::ReadOnly));
        rewrite(source.readAll());
        QCOMPARE(count(), 3);
    }

    void noStore_data() {
        QTest::addColumn<QByteArray>("content");
        QTest::newRow("text") << QByteArray(4096, 'x');
        QTest::newRow("short text") << QByteArray("questo non e' un archivio");
    }
    void noStore() {
        QFETCH(QByteArray, content);
        rewrite(content);
        QCOMPARE(errorOf([&] { return count(); }), SQLITE_NOTADB);
        QFile file(program().store());
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), content); // left as it was
    }

    void lockedByAnother() {
        sqlite3* other = nullptr;
        QCOMPARE(sqlite3_open(QFile::encodeName(program().store()).constData(), &other), SQLITE_OK);
        QCOMPARE(sqlite3_exec(other, "BEGIN EXCLUSIVE", nullptr, nullptr, nullptr), SQLITE_OK);
        const int reading = errorOf([&] { return count(); });
        const int writing = errorOf([&] { run(u"DELETE * FROM categorie"_s); });
        sqlite3_exec(other, "ROLLBACK", nullptr, nullptr, nullptr);
        sqlite3_close(other);
        QCOMPARE(reading, SQLITE_BUSY);
        QCOMPARE(writing, SQLITE_BUSY);
        QCOMPARE(count(), 3); // and free again
    }

    void readOnlyFile() {
        // The administrator may write to any file: for the test, be somebody else.
        constexpr uid_t nobody = 65534;
        for (QDir folder(program().folder()); folder.absolutePath() != QDir::tempPath(); folder.cdUp())
            QFile::setPermissions(folder.absolutePath(), QFile::Permissions(0x7755));
        QFile::setPermissions(program().store(), QFile::Permissions(0x4444));
        const bool administrator = geteuid() == 0;
        if (administrator)
            QCOMPARE(seteuid(nobody), 0);
        const int rows = count();
        const int writing = errorOf([&] { run(u"DELETE * FROM categorie"_s); });
        if (administrator)
            QCOMPARE(seteuid(0), 0);
        QFile::setPermissions(program().store(), QFile::Permissions(0x6644));
        QCOMPARE(rows, 3);
        QCOMPARE(writing & 0xff, SQLITE_READONLY);
    }

    void durability() {
        sql(u"PRAGMA journal_mode=WAL"); // whatever another tool has set
        run(u"DELETE * FROM categorie"_s);
        QCOMPARE(query(u"PRAGMA journal_mode"_s).Fields(0).Value().toText(), u"delete"_s);
        QCOMPARE(query(u"PRAGMA synchronous"_s).Fields(0).Value().toInt32(), 2);
        QVERIFY(!QFile::exists(program().store() + u"-wal"_s));
    }

private:
    store::Connection opened() const {
        store::Connection connection(program().store());
        connection.Open();
        return connection;
    }
    void run(const QString& sql) const { opened().Execute(sql); }
    store::Recordset query(const QString& sql) const { return opened().Query(sql); }
    int count() const { return query(u"SELECT COUNT(*) FROM categorie"_s).Fields(0).Value().toInt32(); }
    /// Puts other bytes into the store's file, in place.
    void rewrite(const QByteArray& content) const {
        QFile file(program().store());
        QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        file.write(content);
    }
};

QUIVERDECK_TEST(TestStore)
#include "test_store.moc"
