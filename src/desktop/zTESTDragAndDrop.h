#pragma once

#include "platform/toolkit/Form.h"
#include "platform/toolkit/ImageList.h"
#include "platform/toolkit/ImageTree.h"
#include "platform/toolkit/Label.h"
#include "platform/toolkit/PictureBox.h"
#include "platform/toolkit/Shared.h"

/// Tries dragging by hand: from a tree of figures onto a picture, which shows the figure dropped and its key.
class zTESTDragAndDrop : public toolkit::Form, public toolkit::Shared<zTESTDragAndDrop> {
    Q_OBJECT
public:
    zTESTDragAndDrop();

protected:
    void onLoad() override;

private:
    void riceve(const QString& testo);

    toolkit::ImageList ImageList1;
    toolkit::ImageTree twImage;
    toolkit::PictureBox figura_;
    toolkit::Label lblTesto;
};
