// The operator's console.

#include "app_cards/cards_program.h"

int main(int argc, char* argv[]) {
    return zelvor::runCards(argc, argv);
}
