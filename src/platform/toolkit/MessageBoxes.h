#pragma once

#include "platform/host/Services.h"

namespace toolkit {

/// The program's message boxes: the application's title, Italian buttons, the first one preselected. Escape
/// and the close box answer Cancel if there is one, else No, else OK.
class MessageBoxes : public host::Boxes {
public:
    host::Answer show(host::Icon icon, const QString& text, host::Buttons buttons) override;
};

} // namespace toolkit
