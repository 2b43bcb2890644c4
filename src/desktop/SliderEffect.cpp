#include "desktop/SliderEffect.h"

#include "platform/host/Controls.h"
#include "platform/host/Services.h"
#include "platform/runtime/Conversions.h"

void SliderEffect::setDisplacement(qint16 Button, host::ScrollValue& VS) {
    constexpr float twipsForEachPixel = 40;
    constexpr qint16 leftButton = 1;
    const auto y = static_cast<float>(host::cursor().position().y());
    if (Button == leftButton) {
        const float delta = (y - ultimaY_) * twipsForEachPixel;
        const float value = static_cast<float>(VS.value()) - delta;
        if (value >= static_cast<float>(VS.minimum()) && value <= static_cast<float>(VS.maximum()))
            VS.setValue(runtime::toInt16(static_cast<double>(value)));
    }
    ultimaY_ = y;
}
