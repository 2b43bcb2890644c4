#pragma once

#include <QString>

namespace guida {

/// The application's help file; set at start.
inline QString file;

} // namespace guida
