#pragma once

#include <QString>
#include <QStringList>

#include <stdexcept>
#include <vector>

namespace catalogue {

/// What is wrong with a source of the catalogue or with a store, in words for whoever runs the tool.
class Error : public std::runtime_error {
public:
    explicit Error(const QString& text) : std::runtime_error(text.toStdString()) {}
};

/// One line of a CSV file, its fields addressed by the names of the header.
class CsvRow {
public:
    CsvRow(const QStringList* header, QStringList fields, QString place);

    /// The text under `column`. Throws Error if the file has no such column.
    QString text(const QString& column) const;
    /// The whole number under `column`. Throws Error if it is none, or lies outside of `low`..`high`.
    int number(const QString& column, int low, int high) const;
    /// The number under `column`, decimal point. Throws Error if it is none.
    double real(const QString& column) const;

    /// "file:line", for messages.
    const QString& place() const { return place_; }

private:
    const QStringList* header_;
    QStringList fields_;
    QString place_;
};

/// A UTF-8 file of fields separated by semicolons. The first line names the columns; a field may stand in
/// double quotes (a doubled quote inside stands for one); empty lines and lines that begin with # are
/// skipped. A straight apostrophe is refused everywhere: shipped texts go into joined SQL, where it would end
/// a literal.
class CsvFile {
public:
    /// Reads `path`. Throws Error if it cannot be read, a line has too many or too few fields, or a text
    /// holds a straight apostrophe.
    explicit CsvFile(const QString& path);

    CsvFile(const CsvFile&) = delete;
    CsvFile& operator=(const CsvFile&) = delete;

    const std::vector<CsvRow>& rows() const { return rows_; }

private:
    QStringList header_;
    std::vector<CsvRow> rows_;
};

/// The fields of one line; `place` is named in the Error of an unclosed quote.
QStringList splitCsvLine(const QString& line, const QString& place);

/// The text of the UTF-8 file `path`, line ends as LF. Throws Error if it cannot be read.
QString readText(const QString& path);

/// The lines of the UTF-8 file `path`. Throws Error if it cannot be read or holds a straight apostrophe.
QStringList readLines(const QString& path);

} // namespace catalogue
