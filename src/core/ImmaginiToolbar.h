#pragma once

namespace toolkit {
class ImageList;
class Toolbar;
} // namespace toolkit

class QString;

/// Fills `immagini` with the icons of the toolbar's buttons, in their order, separators left out, and gives
/// each button its own. `finestra` is the window's name. A missing icon leaves an empty picture.
void vestiToolbar(toolkit::Toolbar& toolbar, toolkit::ImageList& immagini, const QString& finestra);
