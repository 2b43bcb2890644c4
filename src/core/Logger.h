#pragma once

#include <QString>

/// The log, log.txt beside the program: UTF-8, one line for each event, on disk at once.
class Logger {
public:
    static Logger& comune();

    /// Appends "[dd/MM/yyyy hh:mm:ss] " and `testo`. The file is opened and closed for each line. Raises
    /// error 75 if it cannot be written.
    void log(const QString& testo);
};
