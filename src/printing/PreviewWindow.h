#pragma once

#include "printing/Surface.h"

namespace sheet {

/// What composing and paging need of the window that shows the sheet.
class PreviewWindow {
public:
    virtual ~PreviewWindow() = default;

    /// The one surface of the window. The buffer for the printer is rastered from it and has its size.
    virtual Surface& canvas() = 0;

    /// The window's own outer width in twips.
    virtual double width() const = 0;

    /// Writes the first panel of the status bar.
    virtual void setFirstPanel(const QString& text) = 0;
};

} // namespace sheet
