// The main function of the test programs; the application's kind is the build's choice.
#include "support/Suite.h"

#include QUIVERDECK_APPLICATION_HEADER

int main(int argc, char** argv) {
    const QUIVERDECK_APPLICATION application(argc, argv);
    return suite::run(argc, argv);
}
