#pragma once

#include <QString>

namespace monkey {

/// Why an uncaught error may end the program here; empty if it must not: a defect.
QString reasonOf(int number);

} // namespace monkey
