#pragma once

#include <QString>

/// One muscle group.
class muscolo {
public:
    QString id_muscolo; ///< code of at most 3 characters
    QString nome;       ///< as the user sees it
    QString nomeMuscolo;
};
