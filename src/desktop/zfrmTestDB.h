#pragma once

#include "platform/toolkit/Button.h"
#include "platform/toolkit/Form.h"
#include "platform/toolkit/Shared.h"

/// The window of the developer's try-outs.
class zfrmTestDB : public toolkit::Form, public toolkit::Shared<zfrmTestDB> {
    Q_OBJECT
public:
    zfrmTestDB();

private:
    toolkit::Button cmdConteggi;
    toolkit::Button cmdDragAndDrop;
    toolkit::Button cmdTreeViewImage;
    toolkit::Button cmdSchedaCorpo2;
};
