#include "faults/Faults.h"
#include "faults/RealProgram.h"

#include <QRegularExpression>
#include <QThread>

#include <random>

using namespace Qt::StringLiterals;

namespace {

const QString editor = u"mdiScheda"_s;

/// Plays a request to the hand: a button pressed, or a text added to a field.
void perform(RealProgram& program, const QStringList& act) {
    program.act(act);
    if (act[1] == u"mdiScheda/salva"_s)
        program.answer(u"Salvataggio effettuato"_s);
}

/// What the editor shows, for a comparison that tells the difference.
QList<QByteArray> lines(const QJsonObject& shown) {
    return QJsonDocument(shown).toJson().split('\n');
}

/// A button of a row, the list moved down or up by one screen, Salva; or, half of the time, a text.
QStringList anyAct(std::mt19937& random, const QJsonObject& shown) {
    static const QRegularExpression texts(u"/(note|note_.|peso_.|Obiettivo|Istruttore)$"_s);
    static const auto buttons = u"SchedaCorpo/InserisciEsecizio_%|SchedaCorpo/EliminaEsercizio_%|"
                                "SchedaCorpo/TipoEsercizio_%#tab:0|SchedaCorpo/TipoEsercizio_%#tab:1|"
                                "SchedaCorpo/VS#at:8,358|SchedaCorpo/VS#at:8,4|mdiScheda/salva"_s.split(u'|');
    const QStringList fields = shown.keys().filter(texts);
    const auto any = [&random](const QStringList& list) {
        return list[static_cast<qsizetype>(random() % static_cast<unsigned>(list.size()))];
    };
    if (random() % 2 == 0)
        return {u"press"_s, any(buttons).replace(u'%', QString::number(random() % 2))};
    return {u"write"_s, any(fields), u"è%1, "_s.arg(random(), 9).repeated(2)};
}

} // namespace

class TestEditorKilled : public QObject {
    Q_OBJECT
private Q_SLOTS:
    /// Two programs get the same acts. One is killed while it is at an act, again and again: restored, it
    /// shows what the other one shows.
    void whatWasSeenIsRestored_data() { faults::seeds(1); }

    void whatWasSeenIsRestored() {
        QFETCH(const unsigned, seed);
        std::mt19937 random(seed);
        play([&] {
            RealProgram killed;
            RealProgram twin;
            for (RealProgram* program : {&killed, &twin}) {
                program->start();
                program->openNewCard();
            }
            for (int moments = faults::isLong ? 20 : 8; moments > 0; --moments) {
                for (auto acts = 1 + random() % 5; acts > 0; --acts) {
                    const QStringList act = anyAct(random, killed.texts(editor));
                    perform(killed, act);
                    perform(twin, act);
                    QCOMPARE(lines(killed.texts(editor)), lines(twin.texts(editor)));
                }
                const QJsonObject before = killed.texts(editor);
                QStringList act = anyAct(random, before);
                killed.ask(act, false);
                const auto most = 1000U << random() % 8;
                QThread::usleep(random() % most);
                killed.kill();
                perform(twin, act);
                const QJsonObject after = twin.texts(editor);

                killed.start();
                killed.answer(u"Ripristinare la scheda che era aperta per Rossi Anna"_s, u"Sì"_s);
                killed.waitFor(u"SchedaCorpo/VS"_s);
                QJsonObject restored = killed.texts(editor);
                if (act.size() == 3) { // as much of the text as had been taken; the rest is written now
                    const QString text = restored[act[1]].toString();
                    QVERIFY(text.startsWith(before[act[1]].toString()));
                    QVERIFY(after[act[1]].toString().startsWith(text));
                    restored[act[1]] = before[act[1]];
                    act[2] = after[act[1]].toString().mid(text.size());
                }
                if (restored == before && killed.texts(editor) != after)
                    perform(killed, act);
                QCOMPARE(lines(killed.texts(editor)), lines(after));
            }
            QCOMPARE(killed.rows(u"PRAGMA integrity_check"_s), QStringList(u"ok"_s));
        });
    }
};

QTEST_GUILESS_MAIN(TestEditorKilled)
#include "test_editor_killed.moc"
