#pragma once

#include <QtGlobal>

/// A display mode: size in real pixels and bits a pixel.
struct ModoVideo {
    qint32 larghezza = 0;
    qint32 altezza = 0;
    qint32 bit = 0;
};

/// Reads and changes the mode of the display.
class MonitorResolution {
public:
    /// Fills `modo` with the present mode; zeros if the display cannot be read.
    void leggiRisoluzione(ModoVideo& modo) const;
    /// False if the display stays as it was. The change outlives the program, but is stored nowhere.
    bool impostaRisoluzione(const ModoVideo& modo) const;
};
