#pragma once

#include <QString>
#include <QStringList>

namespace host {

/// Starts a program beside this one and does not wait for it; raises error 53 if it cannot be started.
void startProcess(const QString& program, const QStringList& arguments = {});

} // namespace host
