#pragma once

#include "cards/RaccoltaSchede.h"
#include "templates/SchedaModello.h"

/// All templates, the supplied ones too.
class RaccoglitoreModelli final : public RaccoltaSchede<SchedaModello> {
    store::Recordset chiavi() const override;
};
