#pragma once

#include "platform/host/Services.h"

namespace toolkit {

/// The toolkit's own file dialog, in Italian on every desktop.
class FileDialogs : public host::FileDialogs {
public:
    /// `filter` is "Name|*.A;*.B", several joined by "|"; an empty folder is the one used last, else the
    /// home.
    QString openFile(const QString& filter, const QString& folder) override;

    /// The filter in the toolkit's own form.
    static QStringList nameFilters(const QString& filter);

private:
    QString lastFolder_;
};

} // namespace toolkit
