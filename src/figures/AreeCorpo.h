#pragma once

#include <span>

/// One hot area of the muscle map, in twips of the map's control. Plain data: the map's control and the
/// program that draws the map's pictures both read it from here.
struct AreaCorpo {
    const char* nome;   ///< the label's array; `DEL` and `Add` differ from their codes on purpose
    int indice;         ///< place within the array, from 0
    const char* codice; ///< code raised by a click, key of `muscoli`
    int left, top, width, height;
};

/// Size of the map's picture, in twips: 0, 0 is the corner of the control and of the picture alike.
inline constexpr int larghezzaMappa = 2805;
inline constexpr int altezzaMappa = 2985;

/// The 62 hot areas in stacking order, the topmost first: where two overlap, the first takes the click.
std::span<const AreaCorpo> areeCorpo();

/// The 18 codes of the muscle groups, in alphabetical order.
std::span<const char* const> codiciMuscoli();
