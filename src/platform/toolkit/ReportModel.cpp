#include "platform/toolkit/ReportModel.h"

#include <QDate>
#include <QSize>
#include <algorithm>
#include <numeric>

namespace toolkit {

namespace {

constexpr int lineHeight = 18; // pixels: room to read along a line

/// What a cell is sorted by: dates first by time, then texts; among texts whole numbers by value.
struct SortKey {
    int kind; // 0 empty, 1 date, 2 number, 3 text
    qint64 value;
    QString text;
};

SortKey sortKey(const QString& cell) {
    if (cell.isEmpty())
        return {0, 0, {}};
    if (cell.size() == 10 && cell.at(2) == QLatin1Char('/') && cell.at(5) == QLatin1Char('/')) {
        const QDate date(cell.mid(6).toInt(), cell.mid(3, 2).toInt(), cell.left(2).toInt());
        if (date.isValid())
            return {1, date.toJulianDay(), {}};
    }
    bool isNumber = false;
    const qint64 number = cell.toLongLong(&isNumber);
    if (isNumber)
        return {2, number, {}};
    return {3, 0, cell.toCaseFolded()};
}

bool before(const SortKey& one, const SortKey& other) {
    if (one.kind != other.kind)
        return one.kind < other.kind;
    return one.kind == 3 ? QString::localeAwareCompare(one.text, other.text) < 0 : one.value < other.value;
}

} // namespace

void ReportModel::addColumn(const QString& caption, Qt::Alignment alignment) {
    beginResetModel();
    columns_.push_back({caption, alignment});
    endResetModel();
}

void ReportModel::append(const QString& text) {
    const int row = static_cast<int>(lines_.size());
    if (!filling_)
        beginInsertRows({}, row, row);
    lines_.push_back({text});
    if (!filling_)
        endInsertRows();
}

void ReportModel::setCell(int line, int column, const QString& text) {
    QStringList& cells = lines_.at(static_cast<std::size_t>(line));
    while (cells.size() <= column)
        cells.append(QString());
    cells[column] = text;
    if (!filling_)
        Q_EMIT dataChanged(index(line, column), index(line, column));
}

QString ReportModel::cell(int line, int column) const {
    return lines_.at(static_cast<std::size_t>(line)).value(column);
}

void ReportModel::clear() {
    if (!filling_)
        beginResetModel();
    lines_.clear();
    if (!filling_)
        endResetModel();
}

void ReportModel::sortBy(int column) {
    std::vector<SortKey> keys;
    keys.reserve(lines_.size());
    for (const QStringList& line : lines_)
        keys.push_back(sortKey(line.value(column)));
    std::vector<std::size_t> order(lines_.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::stable_sort(order.begin(), order.end(),
                     [&keys](std::size_t one, std::size_t other) { return before(keys[one], keys[other]); });
    std::vector<QStringList> sorted;
    sorted.reserve(lines_.size());
    for (const std::size_t line : order)
        sorted.push_back(std::move(lines_[line]));
    if (!filling_)
        beginResetModel();
    lines_ = std::move(sorted);
    if (!filling_)
        endResetModel();
}

void ReportModel::beginFill() {
    beginResetModel();
    filling_ = true;
}

void ReportModel::endFill() {
    filling_ = false;
    endResetModel();
}

int ReportModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() || filling_ ? 0 : static_cast<int>(lines_.size());
}

int ReportModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(columns_.size());
}

QVariant ReportModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || filling_)
        return {};
    if (role == Qt::DisplayRole)
        return cell(index.row(), index.column());
    if (role == Qt::TextAlignmentRole)
        return QVariant(columns_.at(static_cast<std::size_t>(index.column())).alignment | Qt::AlignVCenter);
    if (role == Qt::SizeHintRole)
        return QSize(0, lineHeight);
    return {};
}

QVariant ReportModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || section < 0 || section >= columnCount())
        return {};
    const Column& column = columns_.at(static_cast<std::size_t>(section));
    if (role == Qt::DisplayRole)
        return column.caption;
    if (role == Qt::TextAlignmentRole)
        return QVariant(column.alignment | Qt::AlignVCenter);
    return {};
}

} // namespace toolkit
