#include "merix/FApplication.h"

int main(int argc, char** argv) {
    return FApplication().run(argc, argv);
}
