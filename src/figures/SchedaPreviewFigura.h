#pragma once

#include "platform/toolkit/Button.h"
#include "platform/toolkit/Form.h"
#include "platform/toolkit/Label.h"
#include "platform/toolkit/PictureBox.h"
#include "platform/toolkit/Shared.h"

/// Shows one figure at a larger size. A page of the card editor, hidden until the palette shows it.
class SchedaPreviewFigura : public toolkit::Form, public toolkit::Shared<SchedaPreviewFigura> {
    Q_OBJECT
public:
    SchedaPreviewFigura();

    /// Shows the picture of that path, or none for the empty text; does not show the window. Raises if the
    /// file cannot be read.
    void LoadImage(const QString& sFileName);

protected:
    void onLoad() override;
    bool onQueryUnload() override;

private:
    /// The window grows or shrinks by a fixed factor; the picture keeps its size.
    void zoom(bool ingrandisci);

    toolkit::Label Label1; ///< seen while there is no picture
    toolkit::PictureBox Image1;
    toolkit::Button ZoomPiu;
    toolkit::Button ZoomMeno;
    toolkit::Button cmdClose;
};
