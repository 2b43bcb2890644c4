#pragma once

#include "ProgrammaDiProva.h"
#include "disegni.h"
#include "finestraFinta.h"
#include "fogli.h"

#include "support/Errors.h"
#include "support/Suite.h"

#include <optional>

/// What tests of composed sheets share: each function finds a fresh program and an empty window.
class SheetTest : public QObject {
    Q_OBJECT

protected Q_SLOTS:
    void init() {
        program_.emplace();
        window = FinestraFinta();
    }
    void cleanup() { program_.reset(); }

protected:
    const ProgrammaDiProva& program() const { return *program_; }
    sheet::Element& el(const char* name, int index = 0) { return window.el(name, index); }

    FinestraFinta window;

private:
    std::optional<ProgrammaDiProva> program_;
};
