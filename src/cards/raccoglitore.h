#pragma once

#include "cards/RaccoltaSchede.h"
#include "cards/scheda.h"

/// The cards of one athlete.
class raccoglitore final : public RaccoltaSchede<scheda> {
public:
    qint32 id_utente = 0;

private:
    store::Recordset chiavi() const override;
};
