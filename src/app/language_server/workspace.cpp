#include "app_language_server/workspace.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace zelvor {

OpenPack* Workspace::packOf(const QString& path) {
    static const QRegularExpression kPack(u"^(.*)/MODULES/QRD_([^/]+)/"_s, QRegularExpression::CaseInsensitiveOption);
    const QRegularExpressionMatch match = kPack.match(path);
    if (!match.hasMatch()) return nullptr;
    std::unique_ptr<OpenPack>& pack = packs_[match.captured(0)];
    if (!pack) pack = std::make_unique<OpenPack>(match.captured(1), match.captured(2));
    return pack.get();
}

}  // namespace zelvor
