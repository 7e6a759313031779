#include "engine/used_proposal.h"

using namespace Qt::StringLiterals;

namespace zelvor {

void markProposalUsed(Database& database, QStringView id, Control& label) {
    database.execute(u"update proposedcard set pc_used='Y' where pc_id="_s + id);
    label.setBackColour(colours::kUsedProposal);
}

}  // namespace zelvor
