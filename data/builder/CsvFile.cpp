#include "CsvFile.h"

#include <QFile>
#include <QFileInfo>

#include <utility>

using namespace Qt::StringLiterals;

namespace catalogue {

namespace {
QString placeOf(const QString& path, qsizetype line) {
    return u"%1:%2"_s.arg(QFileInfo(path).fileName()).arg(line + 1);
}
} // namespace

CsvRow::CsvRow(const QStringList* header, QStringList fields, QString place)
    : header_(header), fields_(std::move(fields)), place_(std::move(place)) {}

QString CsvRow::text(const QString& column) const {
    const qsizetype at = header_->indexOf(column);
    if (at < 0)
        throw Error(u"%1: there is no column %2"_s.arg(place_, column));
    return fields_.at(at);
}

int CsvRow::number(const QString& column, int low, int high) const {
    const QString value = text(column);
    bool whole = false;
    const int result = value.toInt(&whole);
    if (!whole || result < low || result > high)
        throw Error(u"%1: %2 is \"%3\", not a whole number from %4 to %5"_s.arg(place_, column, value)
                        .arg(low)
                        .arg(high));
    return result;
}

double CsvRow::real(const QString& column) const {
    const QString value = text(column);
    bool valid = false;
    const double result = value.toDouble(&valid);
    if (!valid)
        throw Error(u"%1: %2 is \"%3\", not a number"_s.arg(place_, column, value));
    return result;
}

QString readText(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw Error(u"%1: %2"_s.arg(path, file.errorString()));
    QString all = QString::fromUtf8(file.readAll());
    return all.remove(QLatin1Char('\r'));
}

QStringList readLines(const QString& path) {
    QStringList lines = readText(path).split(QLatin1Char('\n'));
    for (qsizetype i = 0; i < lines.size(); ++i)
        if (!lines.at(i).startsWith(QLatin1Char('#')) && lines.at(i).contains(QLatin1Char('\'')))
            throw Error(u"%1: a straight apostrophe; write the typographic one"_s.arg(placeOf(path, i)));
    return lines;
}

QStringList splitCsvLine(const QString& line, const QString& place) {
    QStringList fields;
    QString field;
    bool quoted = false;
    for (qsizetype i = 0; i < line.size(); ++i) {
        const QChar c = line.at(i);
        if (c == QLatin1Char('"')) {
            if (quoted && i + 1 < line.size() && line.at(i + 1) == c) {
                field += c;
                ++i;
            } else {
                quoted = !quoted;
            }
        } else if (c == QLatin1Char(';') && !quoted) {
            fields += std::exchange(field, {});
        } else {
            field += c;
        }
    }
    if (quoted)
        throw Error(u"%1: a quotation mark is not closed"_s.arg(place));
    fields += field;
    return fields;
}

CsvFile::CsvFile(const QString& path) {
    const QStringList lines = readLines(path);
    for (qsizetype i = 0; i < lines.size(); ++i) {
        const QString& line = lines.at(i);
        if (line.trimmed().isEmpty() || line.startsWith(QLatin1Char('#')))
            continue;
        const QString place = placeOf(path, i);
        QStringList fields = splitCsvLine(line, place);
        if (header_.isEmpty()) {
            header_ = std::move(fields);
            continue;
        }
        if (fields.size() != header_.size())
            throw Error(
                u"%1: %2 fields where the header has %3"_s.arg(place).arg(fields.size()).arg(header_.size()));
        rows_.emplace_back(&header_, std::move(fields), place);
    }
    if (header_.isEmpty())
        throw Error(u"%1: no header"_s.arg(path));
}

} // namespace catalogue
