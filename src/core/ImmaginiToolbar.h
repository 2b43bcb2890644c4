#pragma once

namespace toolkit {
class ImageList;
class Toolbar;
} // namespace toolkit

class QString;

/// Fills `immagini` with the icons of the toolbar's buttons, in their order, separators left out: the list
/// that assegnaImmaginiToolbar hands out. `finestra` is the window's name. A missing icon leaves an empty
/// picture.
void caricaImmaginiToolbar(toolkit::ImageList& immagini, const toolkit::Toolbar& toolbar,
                           const QString& finestra);
