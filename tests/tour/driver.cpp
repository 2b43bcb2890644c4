#include "Road.h"
#include "Tour.h"

#include <QCoreApplication>
#include <cstdio>

int main(int argc, char* argv[]) {
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 3) {
        std::fputs("tour_driver FOLDER PICTURES\n", stderr);
        return 2;
    }
    try {
        Tour tour(arguments[1], arguments[2]);
        walkTheRoad(tour);
    } catch (const TourError& error) {
        std::fprintf(stderr, "The tour ends early: %s\n", error.what());
        return 1;
    }
    return 0;
}
