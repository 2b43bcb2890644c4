#include "desktop/SliderEffect.h"
#include "desktop/palestra.h"
#include "platform/host/Controls.h"
#include "support/Errors.h"
#include "support/ScratchProgram.h"
#include "support/ScriptedBoxes.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

class FakeCursor : public host::Cursor {
public:
    FakeCursor() { host::setCursor(this); }
    ~FakeCursor() override { host::setCursor(nullptr); }
    QPoint position() override { return {0, y}; }
    int y = 0;
};

class FakeBar : public host::ScrollValue {
public:
    int value() const override { return now; }
    void setValue(int value) override { now = value; }
    int minimum() const override { return 0; }
    int maximum() const override { return 1000; }
    int now = 500;
};

} // namespace

class TestPalestra : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() {
        program_ = std::make_unique<ScratchProgram>();
        boxes_ = std::make_unique<ScriptedBoxes>();
    }
    void cleanup() {
        QVERIFY(boxes_->satisfied());
        boxes_.reset();
        program_.reset();
    }

    void roundTrip() {
        palestra gym;
        gym.nome = u"L'Arena"_s;
        gym.responsabile = u"Ugo D'Amico"_s;
        gym.logo = u"/opt/Palestra è qui\\images\\l'ogo.JPG"_s;
        QVERIFY(gym.save());
        palestra read;
        read.carica();
        QCOMPARE(QStringList({read.nome, read.responsabile, read.logo}),
                 QStringList({u"L`Arena"_s, u"Ugo D`Amico"_s, u"/opt/Palestra è qui\\images\\l`ogo.JPG"_s}));
        QCOMPARE(program_->log(),
                 QStringList({u"Execute - UPDATE palestra SET nome= 'L`Arena',responsabile= "
                              "'Ugo D`Amico',logo='/opt/Palestra è qui\\images\\l`ogo.JPG' "_s}));
        program_->sql(u"INSERT INTO palestra VALUES ('x','y','z')"_s);
        read.save(); // rewrites whatever rows are there
        QCOMPARE(program_->rows(u"SELECT DISTINCT nome FROM palestra"_s), QStringList({u"L`Arena"_s}));
    }

    void emptyTable() {
        program_->sql(u"DELETE FROM palestra"_s);
        palestra gym;
        gym.nome = u"Arena"_s;
        boxes_->expect(host::Icon::Critical, u"Archivio Vuoto o Problemi di connessione!"_s);
        gym.carica();
        QCOMPARE(gym.nome, u"Arena"_s);
        QVERIFY(gym.save());
        QCOMPARE(program_->rows(u"SELECT * FROM palestra"_s), QStringList({u"Arena||"_s}));
        QVERIFY(program_->log().isEmpty()); // the first one goes unlogged
        program_->sql(u"DELETE FROM palestra; CREATE TRIGGER t BEFORE INSERT ON palestra "
                      "BEGIN SELECT RAISE(ABORT,'no'); END"_s);
        QCOMPARE(errorOf([&] { return gym.save(); }), 1811); // and its failure rises
    }

    void dragging() {
        FakeCursor cursor;
        FakeBar bar;
        SliderEffect slider;
        struct Move {
            int button;
            int y;
            int value; // afterwards
        };
        const QList<Move> moves = {
            {0, 300, 500},                               // no button: only remembered
            {1, 305, 300},                               // down five pixels: the page follows
            {1, 300, 500}, {2, 290, 500}, {3, 280, 500}, // other buttons do nothing
            {1, 279, 540},                               // from the last move, whatever its button
            {1, 400, 540},                               // past the end: dropped, not clamped
            {1, 389, 980}, {1, 388, 980},                // 1020 would be past it
            {1, 387, 980}, {0, 0, 980},   {1, 24, 20},
        };
        for (const Move& move : moves) {
            cursor.y = move.y;
            slider.setDisplacement(static_cast<qint16>(move.button), bar);
            QCOMPARE(bar.now, move.value);
        }
    }

private:
    std::unique_ptr<ScratchProgram> program_;
    std::unique_ptr<ScriptedBoxes> boxes_;
};

QTEST_GUILESS_MAIN(TestPalestra)
#include "test_palestra.moc"
