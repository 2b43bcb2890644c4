#include "desktop/MonitorResolution.h"

#include "platform/host/Display.h"

void MonitorResolution::leggiRisoluzione(ModoVideo& modo) const {
    host::DisplayMode presente;
    if (!host::display().read(presente))
        presente = {};
    modo = {presente.width, presente.height, presente.bits};
}

bool MonitorResolution::impostaRisoluzione(const ModoVideo& modo) const {
    host::DisplayMode nuovo;
    nuovo.width = modo.larghezza;
    nuovo.height = modo.altezza;
    nuovo.bits = modo.bit;
    return host::display().set(nuovo);
}
