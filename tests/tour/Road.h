#pragma once

class Tour;

/// The road of a card: a new athlete, a card of eleven exercises, its sheets on paper, and all of it found
/// again. Raises TourError where the program does not do what an instructor expects.
void walkTheRoad(Tour& tour);

/// In the athlete list: finds the tour's own athlete by typing and takes it with Enter.
void chooseTheAthlete(Tour& tour);
