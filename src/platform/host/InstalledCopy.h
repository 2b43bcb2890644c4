#pragma once

#include <QString>

/// A copy that was installed for all users. Its own folder cannot be written, so each user has a program's
/// directory of their own, filled from what was installed.
namespace host::installed {

/// True if the marker file stands in `programFolder`, the executable's.
bool isInstalled(const QString& programFolder);

/// The user's data folder: "quiverdeck" in the XDG data home. It need not exist.
QString dataFolder();

enum class Outcome {
    Ready,      ///< filled, renewed, or up to date already
    NotRenewed, ///< what the user has still works, but the pictures or the catalogue are of an earlier
                ///< version
    NotFilled   ///< there is nothing to start with
};

struct Result {
    Outcome outcome = Outcome::Ready;
    QString reason; ///< which file it failed on, in Italian; empty when ready
};

/// Makes `folder`, readable by its owner only; the lock of the one running program needs it. False if it
/// cannot be made.
bool makeFolder(const QString& folder);

/// Fills `folder` from `shipped` at the first start: images, HELP, splash.ps. After a new installation it
/// copies the pictures and the guide anew, removes none, and has the catalogue of the store renewed by
/// quiverdeck-renew-store, which stands in `shipped`; rows of the user do not change. A store that is gone
/// from a folder once filled is not made anew: that would hide the loss. Nobody may have the store open.
Result prepare(const QString& shipped, const QString& folder);

} // namespace host::installed
