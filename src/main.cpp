#include "core/Avvio.h"

int main(int argc, char** argv) {
    return avvia(argc, argv);
}
