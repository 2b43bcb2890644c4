#pragma once

class QWidget;

namespace toolkit {

/// The window that a box or a dialog of the desktop stands before: the active form or dialog. Neither a form
/// that was unloaded and only waits for its destruction nor what a form drops down: they would take the box
/// along.
QWidget* dialogOwner();

} // namespace toolkit
