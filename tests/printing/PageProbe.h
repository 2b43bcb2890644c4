#pragma once

#include "printing/Page.h"

/// The tests' way to the single operations of composing.
struct PageProbe {
    Page& page;

    static double margineSuperiore() { return Page::margineSuperiore; }
    static double margineSinistro() { return Page::margineSinistro; }
    static double distanzaRighe() { return Page::distanzaRighe; }
    void centraOrizzontale() const { page.centraOrizzontale(); }
    void centraVerticale() const { page.centraVerticale(); }
    void spostaBlocco(int index, double top, double left) const { page.spostaBlocco(index, top, left); }
    void mostraBlocco(int index, bool visible) const { page.mostraBlocco(index, visible); }
};
