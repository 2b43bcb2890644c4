#pragma once

class SchedaApribile;
class SchedaModello;

/// Stores the lines and notes of `aperta`, a card or a template, as `modello`, whose key, category and
/// description are its own. The open record stays as it was: its lines keep keys, flags, numbers and owner,
/// so that its next save updates its own rows. Raises as SchedaModello::save.
void salvaComeModello(SchedaApribile& aperta, SchedaModello& modello);
