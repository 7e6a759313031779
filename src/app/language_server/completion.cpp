#include "app_language_server/completion.h"

#include <QFileInfo>
#include <QJsonObject>
#include <QRegularExpression>
#include <QSet>

#include "app_check/placeholder_scan.h"
#include "app_check/variable_use.h"
#include "app_language_server/command_page.h"
#include "app_language_server/text_place.h"
#include "expr/function_table.h"
#include "form/form_model.h"
#include "script/function_table.h"

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

using Role = Command::Role;

// Kinds of the protocol.
constexpr int kFunction = 3;
constexpr int kField = 5;
constexpr int kVariable = 6;
constexpr int kKeyword = 14;
constexpr int kFile = 17;

class Items {
 public:
    void add(const QString& label, int kind, const QString& detail = {}) {
        if (known_.contains(label)) return;
        known_ += label;
        QJsonObject item{{u"label"_s, label}, {u"kind"_s, kind}};
        if (!detail.isEmpty()) item[u"detail"_s] = detail;
        items_ += item;
    }
    [[nodiscard]] const QJsonArray& all() const { return items_; }

 private:
    QSet<QString> known_;
    QJsonArray items_;
};

void addVariables(const OpenPack& pack, Items& items) {
    for (const auto& [path, facts] : pack.check.scripts()) {
        for (const NamePlace& set : facts.sets) {
            if (!set.name.contains(kAnything)) items.add(set.name, kVariable);
        }
    }
    for (const QString& name : ownVariables()) items.add(name, kVariable);
}

void addFiles(OpenPack& pack, Items& items) {
    for (const auto& [path, facts] : pack.check.scripts()) items.add(QFileInfo(path).fileName(), kFile);
}

void addControls(Control::Kind kind, Items& items) {
    static const FormModel kForm;
    for (const Control* control : kForm.all()) {
        if (control->kind() == kind) items.add(control->name(), kField);
    }
}

void addExpressionFunctions(Items& items) {
    for (const script::Function& row : script::functionTable()) {
        items.add(row.name.toString(), kFunction, row.meaning.toString());
    }
}

void addFormulaFunctions(Items& items) {
    for (const expr::Function& row : expr::functions()) {
        items.add(QString::fromUtf8(row.name), kFunction, QString::fromUtf8(row.meaning));
    }
}

}  // namespace

QJsonArray completionsAt(OpenPack& pack, const QString& line, qsizetype column) {
    Items items;
    const CommandSpot spot = spotAt(line, column);
    const bool inPlaceholder = spot.before.lastIndexOf(u'{') > spot.before.lastIndexOf(u'}');
    if (!spot.inArgument) {
        for (const Command* command : allCommands()) {
            items.add(command->word.toString(), kKeyword, command->summary.toString());
        }
        items.add(u"IFL"_s, kKeyword, u"runs one of two lines"_s);
    } else if (inPlaceholder || spot.role == Role::Variable || spot.role == Role::ReplacedText) {
        addVariables(pack, items);
    } else {
        switch (spot.role) {
            case Role::Label:
                addControls(Control::Kind::Label, items);
                break;
            case Role::TextBox:
                addControls(Control::Kind::TextBox, items);
                break;
            case Role::AskField:
                for (const int field : pack.check.askFields()) items.add(QString::number(field), kField);
                break;
            case Role::Card:
            case Role::AutoCard:
            case Role::Include:
                addFiles(pack, items);
                break;
            case Role::Formula:
                addFormulaFunctions(items);
                break;
            case Role::Expression:
            case Role::Operand:
                addExpressionFunctions(items);
                break;
            default:
                break;
        }
    }
    return items.all();
}

QString hoverAt(const QString& line, qsizetype column) {
    static const QRegularExpression kWordEnd(u"[~\"\\s]"_s);
    const CommandSpot spot = spotAt(line, column);
    if (!spot.inArgument) return commandPage(spot.word + line.mid(column).section(kWordEnd, 0, 0).toUpper());
    const QString word = wordAt(line, column);
    if (spot.role == Role::Formula) {
        const expr::Function* function = expr::findFunction(word.toStdString());
        return function == nullptr ? QString() : QString::fromUtf8(function->meaning);
    }
    const script::Function* function = script::findFunction(word);
    const bool expression = spot.role == Role::Expression || spot.role == Role::Operand;
    return function == nullptr || !expression
               ? QString()
               : u"`"_s + function->name + u'(' + function->parameters + u")`\n\n"_s + function->meaning;
}

}  // namespace zelvor
