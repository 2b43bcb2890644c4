#pragma once

class QWidget;

namespace toolkit {

/// The window that a box or a dialog of the desktop stands before: the active one, unless it is a form that
/// was unloaded and only waits for its destruction, which would take the box along.
QWidget* dialogOwner();

} // namespace toolkit
