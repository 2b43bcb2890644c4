#include "core/Logger.h"

#include "platform/host/ProgramDirectory.h"
#include "platform/runtime/Dates.h"
#include "platform/runtime/Error.h"

#include <QFile>

using namespace Qt::StringLiterals;

Logger& Logger::comune() {
    static Logger shared;
    return shared;
}

void Logger::log(const QString& testo) {
    QFile file(host::programDirectory() + u"/log.txt"_s);
    const QByteArray line =
        (u'[' + runtime::now().toString(u"dd/MM/yyyy HH:mm:ss") + u"] "_s + testo).toUtf8() + "\r\n";
    // Unbuffered, so that the line goes out in one write and a full disk shows here.
    if (!file.open(QIODevice::WriteOnly | QIODevice::Append | QIODevice::Unbuffered) ||
        file.write(line) != line.size())
        runtime::raise(runtime::PathFileAccess,
                       u"Impossibile scrivere "_s + file.fileName() + u": "_s + file.errorString());
}
