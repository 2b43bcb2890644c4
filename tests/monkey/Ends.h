#pragma once

#include <QString>

namespace monkey {

/// Why an uncaught error may end the program here; empty if it must not: a defect. Every error that the
/// program lets through on purpose is named, with what must be so when it comes.
QString reasonOf(int number);

} // namespace monkey
