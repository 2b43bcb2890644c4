#include "platform/store/Dialect.h"

#include "platform/runtime/Dates.h"

namespace store {

namespace {

bool isWord(QChar c) {
    return c.isLetterOrNumber() || c == u'_';
}

/// The position behind the quoted text that starts at `from`; the end of `sql` if it is not closed. A
/// doubled closing quote reads as two texts side by side, which comes to the same.
qsizetype behindQuoted(const QString& sql, qsizetype from, QChar closing) {
    const qsizetype end = sql.indexOf(closing, from + 1);
    return end < 0 ? sql.size() : end + 1;
}

/// The position of the first character that is no blank, at or behind `from`.
qsizetype skipBlanks(const QString& sql, qsizetype from) {
    while (from < sql.size() && sql[from].isSpace())
        ++from;
    return from;
}

bool wordAt(const QString& sql, qsizetype at, QStringView word) {
    const qsizetype end = at + word.size();
    return QStringView(sql).mid(at, word.size()).compare(word, Qt::CaseInsensitive) == 0 &&
           (end >= sql.size() || !isWord(sql[end]));
}

QString stored(const QDateTime& date) {
    const QString day = date.date().toString(u"yyyy-MM-dd");
    return date.time() == QTime(0, 0) ? day : day + date.time().toString(u" HH:mm:ss");
}

} // namespace

QString translate(const QString& sql) {
    QString result;
    result.reserve(sql.size());
    qsizetype at = 0;
    const auto copyTo = [&](qsizetype end) {
        result += QStringView(sql).mid(at, end - at);
        at = end;
    };
    while (at < sql.size()) {
        const QChar c = sql[at];
        if (c == u'\'' || c == u'"' || c == u'`') {
            copyTo(behindQuoted(sql, at, c));
        } else if (c == u'[') {
            copyTo(behindQuoted(sql, at, u']'));
        } else if (c == u'#') {
            const qsizetype end = sql.indexOf(u'#', at + 1);
            const auto date =
                end < 0 ? std::nullopt
                        : runtime::parseDate(sql.mid(at + 1, end - at - 1), runtime::DateOrder::MonthFirst);
            if (date) {
                result += u'\'' + stored(*date) + u'\'';
                at = end + 1;
            } else {
                copyTo(at + 1);
            }
        } else if (isWord(c)) {
            qsizetype end = at;
            while (end < sql.size() && isWord(sql[end]))
                ++end;
            const bool isDelete = wordAt(sql, at, u"DELETE");
            copyTo(end);
            const qsizetype star = skipBlanks(sql, at);
            if (isDelete && star < sql.size() && sql[star] == u'*' &&
                wordAt(sql, skipBlanks(sql, star + 1), u"FROM")) {
                result += u' ';
                at = skipBlanks(sql, star + 1);
            }
        } else {
            copyTo(at + 1);
        }
    }
    return result;
}

} // namespace store
