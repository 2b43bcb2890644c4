#pragma once

#include <QImage>

class BodyRelief;

/// One picture for the eye: the neutral map and every marked one, each with the hot areas of its code drawn
/// over it.
QImage contactSheet(const BodyRelief& relief);
