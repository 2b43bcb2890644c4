#pragma once

#include <QString>

#include <functional>

/// The way to the system's information tool, through the machine's registry. Where there is no registry, as
/// here, a message is the outcome.
class InformazioniSistema {
public:
    /// Looks a value up: key, name; false if it is not there.
    using Registro = std::function<bool(const QString& chiave, const QString& nome, QString& valore)>;

    /// Installs a look-up; an empty function takes it away, and nothing is found.
    static void setRegistro(Registro registro);

    /// Starts the tool, or tells that there is none. Error 53 if the tool found cannot be started.
    static void StartSysInfo();
};
