#pragma once

#include <QStringView>

#include "engine/ports.h"
#include "form/control.h"

namespace zelvor {

// Marks a proposed card used, in the database by its id and then on its label. A failing database throws and leaves
// the label as it is.
void markProposalUsed(Database& database, QStringView id, Control& label);

}  // namespace zelvor
