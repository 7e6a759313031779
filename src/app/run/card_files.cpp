#include "app_run/card_files.h"

#include "base/run_time_error.h"
#include "engine/card_engine.h"

namespace zelvor {

namespace {

constexpr int kPause = 200;  // milliseconds between two looks, and until an editor has written all of a file

}  // namespace

CardFiles::CardFiles(const Program& program, QString language, const QString& card)
    : program_(program), language_(std::move(language)), script_(CardEngine::scriptName(card)), known_(stamps()) {}

bool CardFiles::waitForChange(Clock& clock) {
    auto looked = known_;
    while (true) {
        const qint64 start = clock.steadyMilliseconds();
        while (clock.steadyMilliseconds() - start < kPause) {
            if (!clock.waitBriefly()) return false;
        }
        auto now = stamps();
        const bool settled = now == looked;
        looked = std::move(now);
        if (settled && looked != known_) break;
    }
    known_ = std::move(looked);
    return true;
}

std::map<QString, std::optional<FileStamp>> CardFiles::stamps() const {
    const auto path = [this](QStringView name) {
        return program_.folder.resolve(program_.folder.packFile(language_, name));
    };
    std::map<QString, std::optional<FileStamp>> found;
    const auto look = [&](const QString& file) { found[file] = fileStamp(file); };
    const QString script = path(script_);
    look(script);
    try {
        for (const QString& line : program_.files.readLines(script)) {
            const ScriptLine content(cleanedScriptLine(line));
            if (content.hasArgument && content.text.startsWith(u"INCLUDE~")) look(path(content.argument.raw()));
        }
    } catch (const RunTimeError&) {
        // Not there at the moment; the script itself is looked at all the same.
    }
    return found;
}

}  // namespace zelvor
