#include "Road.h"

#include "Tour.h"

void walkTheRoad(Tour& tour) {
    tour.start();
    tour.window("Principale");
    tour.shot("principale");
}
