#pragma once

#include <QString>

namespace store {

/// Turns the program's SQL into the store's: "DELETE * FROM" loses its star, and date literals between #
/// signs, month first with an optional time, become the stored ISO text ('2005-12-31'). Quoted text and
/// bracketed names are never touched. A literal that is no date stays as it is, for the store to refuse.
QString translate(const QString& sql);

} // namespace store
