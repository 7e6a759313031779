#pragma once

#include <QStringList>
#include <map>

#include "base/program.h"
#include "engine/ports.h"
#include "system/file_stamp.h"

namespace zelvor {

// The files that a card is made of, its script and the includes that it names, there or not.
class CardFiles {
 public:
    CardFiles(const Program& program, QString language, const QString& card);

    // Handles events until one of them is another than before; false when the program is closing.
    bool waitForChange(Clock& clock);

 private:
    [[nodiscard]] std::map<QString, std::optional<FileStamp>> stamps() const;

    const Program& program_;
    QString language_;
    QString script_;
    std::map<QString, std::optional<FileStamp>> known_;
};

}  // namespace zelvor
