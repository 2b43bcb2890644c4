#pragma once

class Tour;

/// Beside the road of a card: the gym's profile, a card from a template, a template of one's own, the figure
/// at close range, the warning sheet on paper, guide and about. Starts and ends in the main window.
void walkTheSideRoads(Tour& tour);
