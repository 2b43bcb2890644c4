#include "platform/store/Recordset.h"

#include "platform/runtime/Conversions.h"
#include "platform/runtime/Error.h"
#include "platform/store/Error.h"

#include <utility>

using namespace Qt::StringLiterals;

namespace store {

namespace {

/// A stored date: ISO text with an optional time. Any other text stays text, and fails where a date is
/// asked for.
runtime::Variant dateValue(const QString& text) {
    const QDate day = QDate::fromString(text.left(10), Qt::ISODate);
    if (!day.isValid())
        return text;
    if (text.size() == 10)
        return day;
    const QTime time = QTime::fromString(text.mid(11), Qt::ISODate);
    return time.isValid() ? runtime::Variant(QDateTime(day, time, Qt::UTC)) : runtime::Variant(text);
}

runtime::Variant plainValue(const Cell& cell) {
    if (const auto* number = std::get_if<qint64>(&cell))
        return *number;
    if (const auto* number = std::get_if<double>(&cell))
        return *number;
    if (const auto* text = std::get_if<QString>(&cell))
        return *text;
    return {};
}

} // namespace

runtime::Variant Field::Value() const {
    const auto* text = std::get_if<QString>(&cell_);
    runtime::Variant value = plainValue(cell_);
    if (value.isNull())
        return value;
    switch (column_.type) {
    case ColumnType::Date:
        return text ? dateValue(*text) : value;
    case ColumnType::Boolean:
        return text ? value : runtime::Variant(value.toDouble() != 0.0);
    case ColumnType::Byte:
        return text ? value : runtime::Variant(int{value.toByte()});
    case ColumnType::Text:
        return text ? value : runtime::Variant(value.toText());
    case ColumnType::Plain:
        break;
    }
    return value;
}

Recordset::Recordset(std::vector<Column> columns, std::vector<Cell> cells)
    : columns_(std::move(columns)), cells_(std::move(cells)),
      rows_(columns_.empty() ? 0 : static_cast<int>(cells_.size() / columns_.size())) {}

void Recordset::MoveNext() {
    if (EOF_())
        runtime::raise(NoCurrentRecord, u"Nessuna riga da leggere"_s);
    ++row_;
}

Field Recordset::at(std::size_t column) const {
    if (EOF_())
        runtime::raise(NoCurrentRecord, u"Nessuna riga da leggere"_s);
    return {columns_[column], cells_[static_cast<std::size_t>(row_) * columns_.size() + column]};
}

Field Recordset::Fields(QStringView name) const {
    for (std::size_t i = 0; i < columns_.size(); ++i)
        if (name.compare(columns_[i].name, Qt::CaseInsensitive) == 0)
            return at(i);
    runtime::raise(NoSuchField, u"Colonna non trovata: "_s + name.toString());
}

Field Recordset::Fields(int number) const {
    if (number < 0 || static_cast<std::size_t>(number) >= columns_.size())
        runtime::raise(NoSuchField, u"Colonna non trovata: "_s + QString::number(number));
    return at(static_cast<std::size_t>(number));
}

} // namespace store
