#include "fuzz/Fuzz.h"

#include <QDir>
#include <QFile>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QTest>

#include <csignal>
#include <cstdio>

using namespace Qt::StringLiterals;

// Set by the sanitizers' runtime where it is linked: what to do before it ends the process.
extern "C" __attribute__((weak)) void __sanitizer_set_death_callback(void (*callback)());

namespace {

using Target = void (*)(const QByteArray&);

quint32 seed = 20261123;
QByteArray present; ///< the input under test

/// What replays a failure.
QByteArray report() {
    return "QUIVERDECK_SEED=" + QByteArray::number(seed) + ", input as hex: " + present.toHex();
}

void reportDeath() {
    std::fprintf(stderr, "%s\n", report().constData());
}

/// Makes inputs from a corpus: mutated ones, and new ones of its words and of numbers at the edges.
class Generator {
public:
    explicit Generator(QList<QByteArray> corpus) : corpus_(std::move(corpus)), random_(seed) {
        static const QRegularExpression word(u"[A-Za-z]+|[0-9]+|."_s,
                                             QRegularExpression::DotMatchesEverythingOption);
        for (const QByteArray& text : corpus_)
            for (auto all = word.globalMatch(QString::fromLatin1(text)); all.hasNext();)
                words_ += all.next().captured().toLatin1();
        words_ += QByteArray("-1 256 29 1.5 0000 32767 32768 2147483647 2147483648 1e999").split(' ');
    }

    QByteArray next() {
        QByteArray input;
        if (random_.bounded(4) == 0)
            for (int n = random_.bounded(1, 12); n > 0; --n)
                input += any(words_);
        else
            input = any(corpus_);
        for (int n = random_.bounded(4); n > 0; --n)
            mutate(input);
        return input;
    }

private:
    const QByteArray& any(const QList<QByteArray>& list) { return list.at(random_.bounded(list.size())); }

    void mutate(QByteArray& input) {
        const qsizetype at = random_.bounded(input.size() + 1);
        const qsizetype length = random_.bounded(std::min<qsizetype>(16, input.size() - at) + 1);
        const int way = random_.bounded(5);
        if (way == 0)
            input.remove(at, length);
        else if (way == 1)
            input.insert(at, input.mid(at, length));
        else if (way == 2)
            input.replace(at, length, any(words_));
        else if (way == 3 || at == input.size())
            input.insert(at, static_cast<char>(random_.bounded(256)));
        else
            input[at] = static_cast<char>(input[at] ^ (1 << random_.bounded(8)));
    }

    QList<QByteArray> corpus_;
    QList<QByteArray> words_;
    QRandomGenerator random_;
};

QList<QByteArray> corpusOf(const QString& target) {
    const QDir folder(qEnvironmentVariable("QUIVERDECK_SOURCE") + u"/tests/fuzz/corpus/"_s + target);
    QList<QByteArray> corpus;
    for (const QString& name : folder.entryList(QDir::Files, QDir::Name)) {
        QFile file(folder.filePath(name));
        if (file.open(QIODevice::ReadOnly))
            corpus += file.readAll();
    }
    return corpus;
}

} // namespace

/// Some seconds in all; QUIVERDECK_LONG=1 for a hundred times as many, QUIVERDECK_SEED for others.
class TestFuzz : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() {
        if (qEnvironmentVariableIsSet("QUIVERDECK_SEED"))
            seed = qEnvironmentVariable("QUIVERDECK_SEED").toUInt();
        if (__sanitizer_set_death_callback)
            __sanitizer_set_death_callback(reportDeath);
    }

    void target_data() {
        QTest::addColumn<Target>("run");
        QTest::addColumn<int>("times");
        QTest::newRow("dialect") << Target(fuzz::dialect) << 4000;
        QTest::newRow("numbers") << Target(fuzz::numbers) << 10000;
        QTest::newRow("dates") << Target(fuzz::dates) << 6000;
        QTest::newRow("days") << Target(fuzz::days) << 8000;
        QTest::newRow("sidefile") << Target(fuzz::sidefile) << 3000;
        QTest::newRow("pictures") << Target(fuzz::pictures) << 300;
    }

    void target() {
        QFETCH(Target, run);
        QFETCH(int, times);
        const QString name = QString::fromLatin1(QTest::currentDataTag());
        const QList<QByteArray> corpus = name == u"pictures"_s ? fuzz::pictureSeeds() : corpusOf(name);
        QVERIFY(!corpus.isEmpty());
        Generator generator(corpus);
        const int all = qEnvironmentVariableIsSet("QUIVERDECK_LONG") ? times * 100 : times;
        for (int n = 0; n < all + corpus.size(); ++n) {
            present = n < corpus.size() ? corpus.at(n) : generator.next();
            try {
                run(present);
            } catch (const std::exception& failure) {
                QFAIL(failure.what() + QByteArray("; ") + report());
            }
        }
    }
};

QTEST_GUILESS_MAIN(TestFuzz)
#include "test_fuzz.moc"
