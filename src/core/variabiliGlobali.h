#pragma once

#include <QString>

/// The program-wide state: what the lists answer to the main window and the card editor. 0 and the empty
/// text mean none.
namespace variabiliGlobali {

inline qint32 idUtenteSelezionato = 0;
inline qint32 idSchedaSelezionata = 0;
inline qint32 idModelloSelezionato = 0; ///< -1 is written by the template list
inline QString nomeModelloSelezionato;  ///< the category proposed to the template windows
inline bool inChiusura = false;         ///< the main window is being unloaded
inline qint16 rispostaRisoluzione = 0;  ///< 1 OK, 2 cancelled, 0 not yet answered

} // namespace variabiliGlobali
