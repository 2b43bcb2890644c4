#pragma once

#include "platform/runtime/Variant.h"

#include <QString>

#include <variant>
#include <vector>

namespace store {

/// What a column's declared type tells about its values; Plain leaves them as they are stored.
enum class ColumnType { Plain, Text, Date, Boolean, Byte };

struct Column {
    QString name;
    ColumnType type = ColumnType::Plain;
};

/// A stored value, before the column's type is applied.
using Cell = std::variant<std::monostate, qint64, double, QString>;

/// One field of the current row: light, valid while the recordset lives and stays on the row.
class Field {
public:
    Field(const Column& column, const Cell& cell) : column_(column), cell_(cell) {}
    /// The value in the column's type. An 8-bit column that holds more raises error 6.
    runtime::Variant Value() const;

private:
    const Column& column_;
    const Cell& cell_;
};

/// The rows of a query, read into memory at once: the count is exact and nothing stays locked. Starts on
/// the first row. Reading a field behind the last row raises store::NoCurrentRecord.
class Recordset {
public:
    Recordset() = default;
    Recordset(std::vector<Column> columns, std::vector<Cell> cells);

    int RecordCount() const { return rows_; }
    bool EOF_() const { return row_ >= rows_; }
    void MoveNext();

    /// By name, without regard to case; a view's qualified columns go by their whole name
    /// ("categorie.nome"). An unknown name raises store::NoSuchField.
    Field Fields(QStringView name) const;
    /// By number, from 0.
    Field Fields(int number) const;
    runtime::Variant operator()(QStringView name) const { return Fields(name).Value(); }

private:
    Field at(std::size_t column) const;

    std::vector<Column> columns_;
    std::vector<Cell> cells_; // row by row
    int rows_ = 0;
    int row_ = 0;
};

} // namespace store
