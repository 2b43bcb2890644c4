#pragma once

#include <QtGlobal>

/// A service of the desktop that is in force while it lives, in place of the program's own.
template <class Service, void (*put)(Service*)> class Installed : public Service {
public:
    Installed() { put(this); }
    ~Installed() override { put(nullptr); }
    Q_DISABLE_COPY(Installed)
};
