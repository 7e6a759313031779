#pragma once

#include <QStringList>

#include "app_check/script_facts.h"
#include "engine/command_table.h"

namespace zelvor {

// Finds a literal of that role that the command refuses, or with which it does nothing. Roles that need more than the
// argument itself are passed over.
void checkLiteral(Command::Role role, const QString& argument, const Place& place, Findings& findings);

// The field, animation and value of SDATA and its like. remote: for the remote template, whose XML is read otherwise.
void checkField(const QStringList& arguments, bool remote, const Place& place, Findings& findings);

// nullopt for a text that is no whole number.
std::optional<int> wholeNumberOf(const QString& text);

}  // namespace zelvor
