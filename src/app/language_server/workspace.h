#pragma once

#include <QHash>
#include <QString>
#include <map>
#include <memory>

#include "app_check/pack_check.h"

namespace zelvor {

// A pack of which a file is being edited.
struct OpenPack {
    OpenPack(const QString& appFolder, const QString& code) : folder(appFolder), check(folder, code) {}

    AppFolder folder;
    PackCheck check;
    bool changed = true;      // since its findings were told
    QSet<QString> toldFiles;  // paths of which findings were told
};

// The packs of the files that an editor has open.
class Workspace {
 public:
    // The pack that a file lies in, APP/MODULES/QRD_CODE/...; null for a file outside of every pack.
    OpenPack* packOf(const QString& path);
    using Packs = std::map<QString, std::unique_ptr<OpenPack>>;
    [[nodiscard]] const Packs& packs() const { return packs_; }

 private:
    Packs packs_;
};

}  // namespace zelvor
