#pragma once

#include "base/app_folder.h"
#include "base/clearing.h"
#include "base/closing.h"
#include "base/database_wait.h"
#include "base/error_trap.h"
#include "base/press_room.h"
#include "base/questions.h"
#include "base/text_file.h"

namespace zelvor {

// What every room of one running program shares beside the show: where its files are and how they are read, what
// becomes of errors, CLEAR, the wait for the database, presses and questions that wait, and its end. Made by the
// composition root and passed by reference.
struct Program {
    AppFolder folder;
    TextFiles files;
    ErrorTrap trap;
    Closing closing{};
    Clearing clearing{};
    Questions questions{};
    DatabaseWait databaseWait{};
    PressRoom pressRoom{};
};

}  // namespace zelvor
