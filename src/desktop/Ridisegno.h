#pragma once

class QWidget;

namespace desktop {

/// Draws `widget` at once, also while a long task keeps the event loop from running. No key and no click gets
/// through meanwhile: the task cannot be re-entered.
void ridisegna(QWidget& widget);

} // namespace desktop
