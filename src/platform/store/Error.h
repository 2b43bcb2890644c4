#pragma once

#include "platform/runtime/Error.h"

namespace store {

inline constexpr int NoCurrentRecord = 3021; ///< a field was asked for behind the last row
inline constexpr int NoSuchField = 3265;     ///< a row has no field of that name or number

/// A failure of the store: the number is the store's extended result code, the description tells the
/// reason in Italian with the store's own words behind it, and the statement is at hand.
class Error : public runtime::Error {
public:
    Error(int code, const QString& detail, QString sql = {});
    QString sql() const { return sql_; }

private:
    QString sql_;
};

} // namespace store
