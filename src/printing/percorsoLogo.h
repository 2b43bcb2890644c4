#pragma once

#include <QString>

/// The file of the gym's logo. `stored` is the absolute path as the gym's profile keeps it. When that file is
/// gone because the program's folder has moved, the one of the same name in this folder's `images` stands for
/// it, provided that it lay in the former folder's `images`; so does one with straight apostrophes where the
/// stored name has backquotes, which is what the store makes of them. When neither exists the stored file is
/// named, so that loading it reports what is missing.
QString percorsoLogo(const QString& stored);
