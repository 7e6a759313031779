#pragma once

#include <QHash>
#include <QString>
#include <memory>
#include <optional>
#include <vector>

#include "base/app_folder.h"
#include "base/script_place.h"
#include "base/text_file.h"
#include "engine/command_table.h"
#include "engine/placeholders.h"
#include "system/file_stamp.h"

namespace zelvor {

struct LineCondition;

// One line of a script, taken apart once.
struct ScriptLine {
    explicit ScriptLine(QString line);

    QString text;
    const Command* command = nullptr;  // null for a comment and for any unknown word
    bool hasArgument = false;
    ExpandableText argument;                         // item 1 of the line split at "~"
    std::shared_ptr<const LineCondition> condition;  // of an IFL line
};

// A line of a script file as it is run: without TABs and the blanks around it.
QString cleanedScriptLine(QString line);

// IFL~left;operator;right~"then line"~"else line"
struct LineCondition {
    ExpandableText comparison;
    std::unique_ptr<ScriptLine> thenLine;  // null when the line has no double quotes
    std::unique_ptr<ScriptLine> elseLine;
};

// A card's script with its includes put in.
class CardScript {
 public:
    // Reads the script and its includes. Throws 53 and its like for a missing one, 9 for an INCLUDE without a name;
    // `reached` is then the INCLUDE's line. card: the script's name.
    CardScript(const QString& card, const QString& path, const QString& language, const AppFolder& folder,
               const TextFiles& files, ScriptPlace& reached);

    // Lines are numbered from 1.
    [[nodiscard]] int lineCount() const { return static_cast<int>(lines_.size()); }
    [[nodiscard]] const ScriptLine& line(int number) const { return lines_[static_cast<size_t>(number - 1)]; }
    // Where the line stands for an editor.
    [[nodiscard]] const ScriptPlace& place(int number) const { return places_[static_cast<size_t>(number - 1)]; }
    // The first line from `from` on that is exactly "FI~" + label; 0 when there is none.
    [[nodiscard]] int findBlockEnd(QStringView label, int from) const;
    [[nodiscard]] bool functionCard() const { return functionCard_; }
    // True when neither the script nor an include has changed on disk since it was read.
    [[nodiscard]] bool isCurrent() const;

 private:
    struct Source {
        QString path;
        std::optional<FileStamp> stamp;
    };

    QStringList readSource(const QString& path, const TextFiles& files);
    void append(const QString& line, const ScriptPlace& place);

    std::vector<ScriptLine> lines_;
    std::vector<ScriptPlace> places_;  // of the lines, one each
    QHash<QString, std::vector<int>> blockEnds_;
    std::vector<Source> sources_;
    bool functionCard_ = false;
};

// Scripts read before, so that a card that runs ten times a second is not read and taken apart ten times.
class CardScriptCache {
 public:
    // The script read before under that name, null when there is none or a file of it has changed.
    [[nodiscard]] std::shared_ptr<const CardScript> current(const QString& name) const;
    void keep(const QString& name, std::shared_ptr<const CardScript> script) { scripts_[name] = std::move(script); }

 private:
    QHash<QString, std::shared_ptr<const CardScript>> scripts_;
};

}  // namespace zelvor
