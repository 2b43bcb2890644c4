#pragma once

#include "support/FormPage.h"
#include "support/Pictures.h"
#include "support/RecordsTest.h"
#include "support/ToolkitTest.h"

/// What tests of windows share: beside the scratch program its pictures, and the groups PET "Pettorali"
/// (figure 1) and VUO "Vuoto" (none). Nothing is chosen when a function starts, and all windows go behind it.
class WindowTest : public RecordsTest {
    Q_OBJECT

protected Q_SLOTS:
    void init();
    void cleanup();

protected:
    using Answer = host::Answer;

    /// The chosen athlete, card and template: "1 0 0".
    static QString scelti();
};
