#include "fuzz/Fuzz.h"
#include "support/Files.h"

#include <QRandomGenerator>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

using Target = void (*)(const QByteArray&);

/// An input of the corpus with some pieces replaced: by nothing, by what stands there, by a piece of another
/// input, by a number at an edge, by any byte.
QByteArray anyInput(const QList<QByteArray>& corpus, QRandomGenerator& random) {
    static const auto edges =
        QByteArray("-1 256 29 1.5 0000 32767 32768 2147483647 2147483648 1e999 9999").split(' ');
    const auto any = [&random](const QList<QByteArray>& list) {
        return list.at(random.bounded(list.size()));
    };
    QByteArray input = any(corpus);
    for (int n = random.bounded(6); n > 0; --n) {
        const qsizetype at = random.bounded(input.size() + 1);
        const QByteArray byte(1, static_cast<char>(random.bounded(256)));
        const QByteArray pieces[] = {{}, input.mid(at, 16), any(corpus).mid(at, 16), any(edges), byte};
        input.replace(at, qsizetype{random.bounded(8)} * random.bounded(3), pieces[random.bounded(5)]);
    }
    return input;
}

QList<QByteArray> corpusOf(const QString& target) {
    const QDir folder(qEnvironmentVariable("QUIVERDECK_SOURCE") + u"/tests/fuzz/corpus/"_s + target);
    QList<QByteArray> corpus;
    for (const QString& name : folder.entryList(QDir::Files, QDir::Name))
        corpus += readFile(folder.filePath(name));
    return corpus;
}

} // namespace

/// Some seconds in all; QUIVERDECK_LONG=1 for a hundred times as many, QUIVERDECK_SEED for others.
class TestFuzz : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void target_data() {
        QTest::addColumn<Target>("run");
        QTest::newRow("dialect") << Target(fuzz::dialect);
        QTest::newRow("numbers") << Target(fuzz::numbers);
        QTest::newRow("dates") << Target(fuzz::dates);
        QTest::newRow("days") << Target(fuzz::days);
        QTest::newRow("sidefile") << Target(fuzz::sidefile);
        QTest::newRow("pictures") << Target(fuzz::pictures);
    }
    void target() {
        QFETCH(Target, run);
        const QString name = QString::fromLatin1(QTest::currentDataTag());
        const QList<QByteArray> corpus = name == u"pictures" ? fuzz::pictureSeeds() : corpusOf(name);
        QVERIFY(!corpus.isEmpty());
        const QByteArray seed = qEnvironmentVariable("QUIVERDECK_SEED", u"20261123"_s).toLatin1();
        QRandomGenerator random(seed.toUInt());
        const int times =
            (name == u"pictures" ? 300 : 4000) * (qEnvironmentVariableIsSet("QUIVERDECK_LONG") ? 100 : 1);
        for (int n = 0; n < times + corpus.size(); ++n) {
            const QByteArray input = n < corpus.size() ? corpus.at(n) : anyInput(corpus, random);
            try {
                run(input);
            } catch (const std::exception& failure) {
                QFAIL(failure.what() + QByteArray("; QUIVERDECK_SEED=") + seed +
                      ", as hex: " + input.toHex());
            }
        }
    }
};

QTEST_GUILESS_MAIN(TestFuzz)
#include "test_fuzz.moc"
