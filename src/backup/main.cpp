#include "platform/store/Backups.h"

#include <QCoreApplication>
#include <QStringList>

#include <cstdio>

/// quiverdeck-backup STORE FOLDER: copies the store into the folder if it changed, beside the running
/// program. The status is store::Backups::Outcome as a number, 64 for wrong arguments.
int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 3) {
        std::fputs("quiverdeck-backup STORE FOLDER\n", stderr);
        return 64;
    }
    return static_cast<int>(store::Backups(arguments[1], arguments[2]).run());
}
