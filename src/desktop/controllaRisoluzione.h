#pragma once

/// At the first eight starts: counts the start and, on a display less than 1024 pixels wide, offers to change
/// the mode, tries it and goes back unless the user confirms it.
void controllaRisoluzione();
