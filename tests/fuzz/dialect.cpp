#include "platform/store/Dialect.h"
#include "fuzz/Fuzz.h"

#include <QRegularExpression>
#include <QStringList>

using namespace Qt::StringLiterals;

namespace {

/// The quoted texts and bracketed names from left to right; an unclosed one reaches to the end.
QStringList quoted(const QString& sql) {
    static const QRegularExpression form(
        uR"('[^']*(?:'|\z)|"[^"]*(?:"|\z)|`[^`]*(?:`|\z)|\[[^\]]*(?:\]|\z))"_s);
    QStringList texts;
    for (auto all = form.globalMatch(sql); all.hasNext();)
        texts += all.next().captured();
    return texts;
}

bool isLiteral(const QString& text) {
    static const QRegularExpression form(u"^'\\d{4}-\\d\\d-\\d\\d( \\d\\d:\\d\\d:\\d\\d)?'$"_s);
    return form.match(text).hasMatch();
}

} // namespace

void fuzz::dialect(const QByteArray& input) {
    const QString sql = QString::fromUtf8(input);
    const QString result = store::translate(sql);
    require(store::translate(result) == result, "a translated statement stays as it is");

    QStringList before = quoted(sql);
    for (const QString& text : quoted(result))
        if (!before.isEmpty() && text == before.first())
            before.removeFirst();
        else
            require(isLiteral(text), "only date literals become quoted texts");
    require(before.isEmpty(), "quoted texts are all still there");
    if (!sql.contains(u'#') && !sql.contains(u"delete"_s, Qt::CaseInsensitive))
        require(result == sql, "a statement without the dialect's forms is not touched");

    for (const QChar mark : {u'\'', u'"', u'`'}) { // whatever stands between quotes is the user's
        const QString text = mark + QString(sql).replace(mark, QString(2, mark)) + mark;
        require(store::translate(u"DELETE * FROM t WHERE a="_s + text + u" AND d=#12/31/2005#"_s) ==
                    u"DELETE FROM t WHERE a="_s + text + u" AND d='2005-12-31'"_s,
                "a planted text is kept, and what surrounds it translated");
    }
}
