#pragma once

#include "platform/toolkit/Form.h"
#include "platform/toolkit/ImageList.h"
#include "platform/toolkit/ImageTree.h"
#include "platform/toolkit/Label.h"
#include "platform/toolkit/Shared.h"

/// Tries the tree with pictures by hand: the muscle groups as folders under one root; a click tells the key.
class zTestTreeViewImage : public toolkit::Form, public toolkit::Shared<zTestTreeViewImage> {
    Q_OBJECT
public:
    zTestTreeViewImage();

protected:
    void onLoad() override;

private:
    toolkit::ImageList ImageList1;
    toolkit::ImageTree tw;
    toolkit::Label lblChiave;
};
