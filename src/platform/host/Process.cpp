#include "platform/host/Process.h"

#include "platform/runtime/Error.h"

#include <QProcess>

using namespace Qt::StringLiterals;

namespace host {

void startProcess(const QString& program, const QStringList& arguments) {
    QProcess process;
    process.setProgram(program);
    process.setArguments(arguments);
    process.setStandardInputFile(QProcess::nullDevice());
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    if (program.isEmpty() || !process.startDetached())
        runtime::raise(runtime::FileNotFound,
                       runtime::standardDescription(runtime::FileNotFound) + u": "_s + program);
}

} // namespace host
