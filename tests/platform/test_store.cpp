#include "platform/store/Connection.h"
#include "platform/store/Dialect.h"
#include "platform/store/Error.h"
#include "support/Files.h"
#include "support/RecordsTest.h"

#include <sqlite3.h>

using namespace Qt::StringLiterals;

class TestStore : public RecordsTest {
    Q_OBJECT
private Q_SLOTS:
    void dialect() {
        for (const auto& [sql, translated] :
             {std::pair(u" delete\t*  from x"_s, u" delete from x"_s),
              {u"UPDATE x SET a='l''ora #1/1/2005#', b=#1/2/2005#"_s,
               u"UPDATE x SET a='l''ora #1/1/2005#', b='2005-01-02'"_s},
              {u"SELECT [a #1/1/2005# '] WHERE b=#1/1/2005#"_s,
               u"SELECT [a #1/1/2005# '] WHERE b='2005-01-01'"_s},
              {u"a=#12/31/2005#,b=#31/12/2005#"_s, u"a='2005-12-31',b=#31/12/2005#"_s}, // the month first
              {u"# #1/2/2005#"_s, u"# '2005-01-02'"_s}})
            QCOMPARE(store::translate(sql), translated);
        for (const auto& same :
             {u"XDELETE * FROM x"_s, u"SELECT \"#1/1/2005#\""_s,
              u"UPDATE x SET a='DELETE * FROM x #1/1/2005#'"_s, u"SELECT 'a #1/1/2005#"_s, u"##"_s})
            QCOMPARE(store::translate(same), same);
    }

    void typesByDeclaration() {
        sql(u"CREATE TABLE t (d DATE, b BOOLEAN, y BYTE, s TEXT, n INTEGER, r REAL);"
            "CREATE VIEW v AS SELECT d AS \"t.d\", b, y, s, n, r FROM t");
        run(u"INSERT INTO t VALUES (#12/31/2005#, TRUE, '5', '001010100', '7', 1.5)"_s);
        run(u"INSERT INTO t VALUES (#2/1/2006 10:30:00#, FALSE, 300, '08', 2, 2)"_s);
        run(u"INSERT INTO t VALUES (null,null,null,null,null,null)"_s);
        store::Recordset rows = query(u"SELECT * FROM v"_s);
        QCOMPARE(rows.RecordCount(), 3);
        QString texts;
        for (const auto& name : {u"T.D"_s, u"B"_s, u"y"_s, u"s"_s, u"n"_s, u"r"_s})
            texts += rows(name).toText() + u' ';
        QCOMPARE(texts, u"31/12/2005 True 5 001010100 7 1.5 "_s);
        rows.MoveNext();
        QCOMPARE(rows(u"t.d").toText() + rows(u"b").toText(), u"01/02/2006 10:30:00False"_s);
        QCOMPARE(errorOf([&] { return rows(u"y"); }), 6); // the store takes it, reading refuses it
        rows.MoveNext();
        QVERIFY(rows(u"t.d").isNull() && rows(u"b").isNull() && rows(u"y").isNull() && rows(u"n").isNull());
        QCOMPARE(errorOf([&] { return rows(u"d"); }), store::NoSuchField);
        rows.MoveNext();
        QVERIFY(rows.EOF_());
        QCOMPARE(errorOf([&] { return rows(u"b"); }), store::NoCurrentRecord);
        QCOMPARE(errorOf([&] { rows.MoveNext(); }), store::NoCurrentRecord);
        QCOMPARE(query(u"SELECT s FROM t WHERE d < #1/1/2006#"_s).RecordCount(), 1);
    }

    void snapshotLocksNothing() {
        store::Recordset rows = query(u"SELECT id_cat FROM categorie ORDER BY id_cat"_s);
        rows.MoveNext();
        sql(u"DELETE FROM categorie; DROP TABLE figure_muscoli");
        QCOMPARE(rows(u"id_cat").toInt32(), 2);
        QCOMPARE(rows.RecordCount(), 3);
    }

    void refusedStatements() {
        for (const auto& sql :
             {u"DELETE FROM categorie; DELETE FROM figure"_s, u"DELETE FROM categorie"_s + QChar(0) + u"x"_s,
              u"DELETE FROM utenti WHERE dataNascita=##"_s,
              u"DELETE FROM utenti WHERE dataNascita=#13/13/2005#"_s, u"  "_s,
              u"DELETE FROM categorie WHERE nome=\"Forza\""_s, // a misspelt name is no text
              u"DELETE FROM categorie WHERE nome='D'Amico'"_s})
            QVERIFY2(errorOf([&] { run(sql); }) == SQLITE_ERROR, qPrintable(sql));
        QCOMPARE(count(), 3);
        run(u"DELETE FROM categorie WHERE id_cat=1 ; \n"_s); // an end alone is none of these
        QCOMPARE(count(), 2);
    }

    void fileThatChanges() {
        store::Connection closed(program().store());
        QCOMPARE(errorOf([&] { closed.Execute(u"DELETE * FROM categorie"_s); }), 91);
        const QByteArray before = readFile(program().store());
        run(u"DELETE * FROM categorie"_s);
        QCOMPARE(count(), 0);
        // Replaced by another file, the way a backup is put back.
        QVERIFY(QFile::remove(program().store()));
        QCOMPARE(errorOf([&] { return count(); }), SQLITE_CANTOPEN);
        QVERIFY(!QFile::exists(program().store()));
        writeFile(program().store(), before);
        QCOMPARE(count(), 3);
        // Rewritten in place, the change counter of the file included.
        run(u"DELETE * FROM categorie WHERE id_cat=1"_s);
        QCOMPARE(count(), 2);
        writeFile(program().store(), before);
        QCOMPARE(count(), 3);
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
};

QUIVERDECK_TEST(TestStore)
#include "test_store.moc"
