#pragma once

#include "base/program.h"
#include "engine/ports.h"
#include "engine/show_state.h"
#include "form/form_model.h"

namespace zelvor {

// The packs of the application folder and the card table of the chosen one.
class Packs {
 public:
    Packs(ShowState& state, FormModel& form, Program& program, Operator& operatorDesk);

    // Asks the operator for one of the packs of PACKS.TXT until the answer names one, sets @LANGUAGE and fills the
    // language list; warns of packs without a folder. code: the pack to take unasked; one that is not offered is told
    // and then asked for. False when there is none to choose.
    bool LOAD_PACKS(const QString& code = {});
    // Reads CARDS.TXT of the chosen pack into the card table and shows the current set. True when the file was read;
    // a file that is missing leaves the cards as they are, one that is broken is read up to the fault.
    bool LOAD_CARDS();
    // True when that pack's CARDS.TXT can be read; else the operator is told what LOAD_CARDS would say. The chosen pack
    // stays what it is, also for the cards that fire by themselves meanwhile.
    bool hasCards(const QString& language);

    // The language code of the first pack whose folder exists, empty when there is none. Throws when PACKS.TXT cannot
    // be read.
    [[nodiscard]] QString firstPack() const;

 private:
    struct PackList {
        std::vector<QStringList> offered;  // the fields of each pack's line
        QStringList missing;               // codes of packs without a folder
    };
    [[nodiscard]] QString packListFile() const;
    [[nodiscard]] PackList readPacks() const;
    [[nodiscard]] QString cardTableFile(const QString& language) const;
    bool choosePack(const PackList& packs, const QString& code);
    [[nodiscard]] std::optional<int> askNumber(const QString& prompt, qsizetype packs);

    ShowState& state_;
    FormModel& form_;
    Program& program_;
    Operator& operator_;
};

// Shows the titles of the function keys that have one on the labels of F1 to F5.
void LoadFkeys(const ShowState& state, FormModel& form);

}  // namespace zelvor
