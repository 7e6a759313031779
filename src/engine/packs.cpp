#include "engine/packs.h"

#include <algorithm>
#include <tuple>
#include <utility>

#include "base/translate.h"
#include "engine/card_table_reader.h"
#include "engine/on_air.h"

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

auto timing(const TimedCard& timed) {
    return std::tie(timed.card, timed.interval);
}

}  // namespace

Packs::Packs(ShowState& state, FormModel& form, Program& program, Operator& operatorDesk)
    : state_(state), form_(form), program_(program), operator_(operatorDesk) {}

QString Packs::packListFile() const {
    return program_.folder.resolve(program_.folder.modulesFile(u"PACKS.TXT"));
}

Packs::PackList Packs::readPacks() const {
    PackList packs;
    const AppFolder& folder = program_.folder;
    for (const QString& line : program_.files.readLines(packListFile())) {
        if (line.trimmed().isEmpty()) continue;
        const QStringList fields = line.split(u';');
        if (folder.exists(folder.packFolder(fields[0]))) {
            packs.offered.push_back(fields);
        } else {
            packs.missing += fields[0];
        }
    }
    return packs;
}

QString Packs::firstPack() const {
    const PackList packs = readPacks();
    return packs.offered.empty() ? QString() : packs.offered.front()[0];
}

bool Packs::LOAD_PACKS(const QString& code) {
    bool chosen = false;
    program_.trap.run({u"mGLOBAL.LOAD_PACKS"_s}, ErrorTrap::Tell::Operator, [&] {
        const PackList packs = readPacks();
        chosen = !packs.offered.empty() && choosePack(packs, code);
        if (packs.missing.isEmpty() || program_.closing.hasBegun()) return;
        QString warning = u"Warning!!! Missing folders for the following Pack(s):\r\n\r\n"_s;
        for (const QString& missing : packs.missing) warning += u"\\MODULES\\QRD_"_s + missing + u"\r\n"_s;
        operator_.message({Asker::Kind::StartUp}, u"Missing folder(s)"_s, warning, Operator::Severity::Warning);
    });
    return chosen;
}

bool Packs::choosePack(const PackList& packs, const QString& code) {
    QString prompt;
    QList<Control::Item> languages;
    for (size_t i = 0; i < packs.offered.size(); ++i) {
        prompt += QString::number(i + 1) + u". "_s + packs.offered[i].join(u'-') + u"\r\n"_s;
        languages += {packs.offered[i][0], static_cast<int>(i) + 1};
    }
    const auto named =
        std::ranges::find_if(languages, [&](const Control::Item& language) { return language.text == code; });
    std::optional<int> number;
    if (named != languages.end()) {
        number = named->data;
    } else {
        if (!code.isEmpty()) {
            operator_.message({Asker::Kind::StartUp}, {},
                              translate("engine", "PACKS.TXT offers no pack \"%1\".").arg(code),
                              Operator::Severity::Warning);
        }
        number = askNumber(prompt, languages.size());
    }
    if (!number) return false;
    state_.variables.SetVar(u"@LANGUAGE", languages[*number - 1].text);
    form_.at(controls.cmbLANG).setItems(languages);
    form_.at(controls.cmbLANG).setPosition(*number - 1);
    return true;
}

std::optional<int> Packs::askNumber(const QString& prompt, qsizetype packs) {
    while (!program_.closing.hasBegun()) {
        const QString answer =
            operator_.input({Asker::Kind::StartUp}, u"Project Pack Selection"_s, prompt, u"1"_s).value_or(QString());
        bool isNumber = false;
        const int number = answer.trimmed().toInt(&isNumber);
        if (isNumber && number >= 1 && number <= packs) return number;
    }
    return std::nullopt;
}

QString Packs::cardTableFile(const QString& language) const {
    return program_.folder.resolve(program_.folder.packFile(language, u"CARDS.TXT"));
}

bool Packs::hasCards(const QString& language) {
    return program_.trap.run({u"mGLOBAL.LOAD_CARDS"_s}, ErrorTrap::Tell::Operator,
                             [&] { static_cast<void>(program_.files.readLines(cardTableFile(language))); });
}

bool Packs::LOAD_CARDS() {
    if (state_.variables.find(u"@LANGUAGE") == nullptr) {
        operator_.message({}, packListFile(), u"No default Pack found. Please select a pack in order to load Cards"_s,
                          Operator::Severity::Warning);
        return false;
    }
    ErrorPlace place{u"mGLOBAL.LOAD_CARDS"_s};
    const QString path = cardTableFile(state_.language());
    bool isCardTable = false;
    const bool read = program_.trap.run(place, ErrorTrap::Tell::Operator, [&] {
        const QStringList lines = program_.files.readLines(path);
        isCardTable = std::ranges::any_of(lines, isCardTableKeyword);
        const std::vector<TimedCard> before = std::exchange(state_.cards, {}).timedCards;
        state_.console.lastFired.reset();  // a button of the cards before
        try {
            readCardTable(lines, state_.cards, place.line);
        } catch (const RunTimeError& error) {
            throw RunTimeError::withText(error.code(), error.text() + u": CARDS.TXT"_s);
        }
        // The same list goes on counting where it was.
        if (std::ranges::equal(before, state_.cards.timedCards, {}, &timing, &timing)) state_.cards.timedCards = before;
    });
    showCurrentSet(state_, form_);
    if (read && !isCardTable) {
        operator_.message({}, {}, translate("engine", "%1 holds no line of a card table.").arg(path),
                          Operator::Severity::Warning);
    }
    return read;
}

void LoadFkeys(const ShowState& state, FormModel& form) {
    constexpr int kLabels = 5;
    for (int key = 1; key <= kLabels; ++key) {
        const QString& title = state.cards.functionKeys[key].title;
        Control& label = form.at(controls.lblFKEYTITLE, key - 1);
        label.setText(title);
        label.setVisible(!title.isEmpty());
    }
}

}  // namespace zelvor
