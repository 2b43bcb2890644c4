#pragma once

#include <QString>

/// Brings the picture `scelto`, a real file, into the program's own `images` and gives the path to store:
/// absolute, as the program writes its paths. A file that lies there already stays as it is; another one of
/// the same name is replaced. Raises runtime::FileNotFound or PictureFile's badPicture if `scelto` cannot be
/// shown, and error 75 if it cannot be copied; nothing is changed then.
QString copiaLogo(const QString& scelto);
