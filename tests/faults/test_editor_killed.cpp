#include "faults/Moments.h"
#include "faults/RealProgram.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

/// One act of the user: a button pressed, or a text added to a field.
struct Act {
    QString target;
    QString text;

    QString request() const {
        return text.isEmpty() ? u"press "_s + target : u"write "_s + target + u' ' + text;
    }
    void perform(RealProgram& program) const {
        if (text.isEmpty())
            program.press(target);
        else
            program.write(target, text);
        if (target.endsWith(u"/salva"_s))
            program.answer(u"Salvataggio effettuato"_s);
    }
};

/// What two looks at the editor do not share, in words.
QString difference(const QJsonObject& one, const QJsonObject& other) {
    QStringList found;
    const QStringList keys = one.keys() + other.keys();
    const QSet<QString> paths(keys.begin(), keys.end());
    for (const QString& path : paths)
        if (one[path] != other[path])
            found += u"%1: '%2', '%3'"_s.arg(path, one[path].toString(), other[path].toString());
    return found.join(u'\n');
}

QString pathOf(const QString& target, const QJsonObject& shown) {
    const QStringList paths = shown.keys();
    for (const QString& path : paths)
        if (path.endsWith(u'/' + target.section(u'/', 1)) && path.contains(target.section(u'/', 0, 0)))
            return path;
    return {};
}

Act anyAct(std::mt19937& random, const QJsonObject& shown) {
    switch (random() % 10) {
    case 0:
        return {u"SchedaCorpo/InserisciEsecizio_%1"_s.arg(random() % 2), {}};
    case 1:
        return {u"SchedaCorpo/EliminaEsercizio_%1"_s.arg(random() % 2), {}};
    case 2: // as free text, or with a figure
        return {u"SchedaCorpo/TipoEsercizio_%1@%2,10"_s.arg(random() % 2).arg(random() % 2 ? 100 : 20), {}};
    case 3: // down or up by one screen
        return {u"SchedaCorpo/VS@8,%1"_s.arg(random() % 3 ? 358 : 4), {}};
    case 4:
        return {u"mdiScheda/salva"_s, {}};
    default:
        break;
    }
    QStringList fields;
    const QStringList paths = shown.keys();
    for (const QString& path : paths) {
        for (const QString& name : {u"note"_s, u"note_0"_s, u"note_1"_s, u"note_2"_s, u"note_3"_s,
                                    u"peso_0"_s, u"peso_1"_s, u"Obiettivo"_s, u"Istruttore"_s})
            if (path.endsWith(u'/' + name))
                fields += path.section(u'/', 1, 1) + u'/' + name; // the page and the field
    }
    return {fields[static_cast<qsizetype>(random() % static_cast<unsigned>(fields.size()))],
            u"è%1, "_s.arg(random(), 9).repeated(2)};
}

} // namespace

class TestEditorKilled : public QObject {
    Q_OBJECT
private Q_SLOTS:
    /// Two programs get the same acts. One is killed while it is at an act, again and again: restored, it
    /// shows what the other one shows.
    void whatWasSeenIsRestored_data() { moments::rows(1); }

    void whatWasSeenIsRestored() {
        QFETCH(const unsigned, seed);
        play([&] { killAndRestore(seed); });
    }

private:
    static void killAndRestore(unsigned seed) {
        std::mt19937 random(seed);
        RealProgram killed;
        RealProgram twin;
        const QString editor = u"mdiScheda"_s;
        for (RealProgram* program : {&killed, &twin}) {
            program->start();
            program->openNewCard();
        }
        const int count = moments::isLong() ? 20 : 8;
        for (int moment = 0; moment < count; ++moment) {
            for (auto acts = 1 + random() % 5; acts > 0; --acts) {
                const Act act = anyAct(random, killed.texts(editor));
                act.perform(killed);
                act.perform(twin);
                QCOMPARE(difference(killed.texts(editor), twin.texts(editor)), QString());
            }
            const QJsonObject before = killed.texts(editor);
            Act act = anyAct(random, before);
            killed.send(act.request());
            moments::pass(random, 1000U << random() % 8);
            killed.kill();
            act.perform(twin);
            const QJsonObject after = twin.texts(editor);

            killed.start();
            killed.answer(u"Ripristinare la scheda che era aperta per Rossi Anna"_s, u"Sì"_s);
            killed.waitFor(u"SchedaCorpo/VS"_s);
            QJsonObject restored = killed.texts(editor);
            if (!act.text.isEmpty()) { // as much of the text as had been taken; the rest is written now
                const QString field = pathOf(act.target, before);
                const QString text = restored[field].toString();
                QVERIFY(text.startsWith(before[field].toString()));
                QVERIFY(after[field].toString().startsWith(text));
                restored[field] = before[field];
                act.text = after[field].toString().mid(text.size());
            }
            if (restored == before && difference(killed.texts(editor), after) != QString())
                act.perform(killed);
            QCOMPARE(difference(killed.texts(editor), after), QString());
        }
        QCOMPARE(killed.scratch().rows(u"PRAGMA integrity_check"_s), QStringList(u"ok"_s));
    }
};

QTEST_GUILESS_MAIN(TestEditorKilled)
#include "test_editor_killed.moc"
