#include "engine/auto_tags.h"

#include "engine/arguments.h"

using namespace Qt::StringLiterals;

namespace zelvor {

void setAutoTags(VariableStore& variables, QStringView tags, KeyChange change) {
    const Pieces items(tags, u"##");
    for (int i = 0; i < items.count(); ++i) {
        const Pieces keyAndAnswer(items[i], u':');
        const QStringView answer = keyAndAnswer[1];
        const QStringView key = !change.from.isEmpty() && keyAndAnswer[0] == change.from ? change.to : keyAndAnswer[0];
        variables.SetVar(QString(u"AUTOTAG_"_s + key), answer.toString());
    }
}

}  // namespace zelvor
