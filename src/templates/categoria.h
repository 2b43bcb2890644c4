#pragma once

#include <QString>

/// A label under which cards and templates are filed.
class categoria {
public:
    qint32 id_cat = 0;
    QString nome;
};
