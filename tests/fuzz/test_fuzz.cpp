#include "fuzz/Fuzz.h"

#include <QDir>
#include <QFile>
#include <QRandomGenerator>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

using Target = void (*)(const QByteArray&);

/// Makes inputs from a corpus, by mutation, crossing and numbers at the edges.
class Generator {
public:
    Generator(const QList<QByteArray>& corpus, quint32 seed) : corpus_(corpus), random_(seed) {}

    QByteArray next() {
        QByteArray input = any(corpus_);
        for (int n = random_.bounded(6); n > 0; --n)
            mutate(input);
        return input;
    }

private:
    const QByteArray& any(const QList<QByteArray>& list) { return list.at(random_.bounded(list.size())); }
    void mutate(QByteArray& input) {
        static const auto edges =
            QByteArray("-1 256 29 1.5 0000 32767 32768 2147483647 2147483648 1e999 9999").split(' ');
        const qsizetype at = random_.bounded(input.size() + 1);
        const int way = random_.bounded(6);
        if (way == 0)
            input.remove(at, random_.bounded(16));
        else if (way == 1)
            input.insert(at, input.mid(at, random_.bounded(16)));
        else if (way == 2)
            input.replace(at, random_.bounded(16), any(corpus_).mid(at, 16));
        else if (way == 3)
            input.replace(at, random_.bounded(4), any(edges));
        else if (way == 4 || at == input.size())
            input.insert(at, static_cast<char>(random_.bounded(256)));
        else
            input[at] = static_cast<char>(input[at] ^ (1 << random_.bounded(8)));
    }

    QList<QByteArray> corpus_;
    QRandomGenerator random_;
};

QList<QByteArray> corpusOf(const QString& target) {
    const QDir folder(qEnvironmentVariable("QUIVERDECK_SOURCE") + u"/tests/fuzz/corpus/"_s + target);
    QList<QByteArray> corpus;
    for (const QString& name : folder.entryList(QDir::Files, QDir::Name))
        if (QFile file(folder.filePath(name)); file.open(QIODevice::ReadOnly))
            corpus += file.readAll();
    return corpus;
}

} // namespace

/// Some seconds in all; QUIVERDECK_LONG=1 for a hundred times as many, QUIVERDECK_SEED for others.
class TestFuzz : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void target_data() {
        QTest::addColumn<Target>("run");
        QTest::addColumn<int>("times");
        QTest::newRow("dialect") << Target(fuzz::dialect) << 4000;
        QTest::newRow("numbers") << Target(fuzz::numbers) << 10000;
        QTest::newRow("dates") << Target(fuzz::dates) << 5000;
        QTest::newRow("days") << Target(fuzz::days) << 5000;
        QTest::newRow("sidefile") << Target(fuzz::sidefile) << 3000;
        QTest::newRow("pictures") << Target(fuzz::pictures) << 300;
    }
    void target() {
        QFETCH(Target, run);
        QFETCH(int, times);
        const QString name = QString::fromLatin1(QTest::currentDataTag());
        const QList<QByteArray> corpus = name == u"pictures" ? fuzz::pictureSeeds() : corpusOf(name);
        QVERIFY(!corpus.isEmpty());
        const QByteArray seed = qEnvironmentVariable("QUIVERDECK_SEED", u"20261123"_s).toLatin1();
        Generator generator(corpus, seed.toUInt());
        const int all = qEnvironmentVariableIsSet("QUIVERDECK_LONG") ? times * 100 : times;
        for (int n = 0; n < all + corpus.size(); ++n) {
            const QByteArray input = n < corpus.size() ? corpus.at(n) : generator.next();
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
