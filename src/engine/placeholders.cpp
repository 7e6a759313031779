#include "engine/placeholders.h"

#include <QSet>
#include <QVarLengthArray>
#include <algorithm>
#include <limits>
#include <optional>

#include "base/number.h"
#include "base/run_time_error.h"
#include "base/text_search.h"

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

// Reads the text once, putting values in front of what is still to be read, so that what a value holds is expanded in
// the same pass.
class Expansion {
 public:
    Expansion(VariableStore& variables, const QueryResult& result, PreviousAnswer previousAnswer)
        : variables_(variables), result_(result), previousAnswer_(previousAnswer) {}

    QString run(const QString& text) {
        push(text);
        while (!inputs_.empty()) {
            if (inputs_.back().at == inputs_.back().text.size()) {
                inputs_.pop_back();
            } else {
                readOn();
            }
        }
        if (!opens_.empty()) throw RunTimeError(ErrorNumber::InvalidProcedureCall, u"\"{\" without \"}\""_s);
        return out_;
    }

 private:
    struct Input {
        QString text;
        qsizetype at = 0;
    };

    void push(const QString& text) {
        inputs_.push_back({text});
        pending_ += text.size();
    }

    // Reads up to and including the next bracket.
    void readOn() {
        Input& input = inputs_.back();
        const QStringView rest = QStringView(input.text).mid(input.at);
        qsizetype length = 0;
        while (length < rest.size() && rest[length] != u'{' && rest[length] != u'}') ++length;
        out_ += rest.left(length);
        advance(input, length);
        if (length == rest.size()) return;
        const bool opens = rest[length] == u'{';
        advance(input, 1);
        if (opens) {
            opens_.push_back(out_.size());
            out_ += u'{';
        } else if (opens_.empty()) {
            closeWithoutOpen();
        } else {
            replace();
        }
    }

    void advance(Input& input, qsizetype length) {
        input.at += length;
        pending_ -= length;
    }

    // A "}" with no "{" before it is ordinary text when no new placeholder follows: one met before is replaced wherever
    // it stands.
    void closeWithoutOpen() {
        out_ += u'}';
        if (!known_) known_.emplace(replaced_.begin(), replaced_.end());
    }

    void replace() {
        const qsizetype open = opens_.back();
        opens_.pop_back();
        const QString inner = out_.mid(open + 1);
        if (previousAnswer_ == PreviousAnswer::LeftAlone && inner == u"@@") {
            out_ += u'}';
            return;
        }
        if (known_ && !known_->contains(inner)) {
            throw RunTimeError(ErrorNumber::InvalidProcedureCall, u"\"}\" before \"{\""_s);
        }
        replaced_.append(inner);
        out_.truncate(open);
        const QString value = inner.startsWith(u'@') ? variables_.GetVar(inner).text() : cell(inner);
        push(value);
        if (++replacements_ > kLargestReplacements || out_.size() + pending_ > kLargestExpansion) {
            throw RunTimeError(ErrorNumber::OutOfStackSpace, u'{' + inner.left(80) + u'}');
        }
    }

    [[nodiscard]] QString cell(const QString& inner) const {
        const QStringList parts = inner.split(u'|');
        if (parts.size() < 2) throw RunTimeError(ErrorNumber::SubscriptOutOfRange, u'{' + inner.left(80) + u'}');
        const Value* value = result_.find(place(parts[0], inner), place(parts[1], inner));
        return value == nullptr ? QString() : value->text();
    }

    // A row or column; one that no table can have is any that this one has not.
    static int place(const QString& text, const QString& inner) {
        double number = 0;
        if (!readNumber(text, number)) throw RunTimeError(ErrorNumber::TypeMismatch, u'{' + inner.left(80) + u'}');
        return wholeNumber32(std::clamp<double>(number, -1, std::numeric_limits<qint32>::max()));
    }

    VariableStore& variables_;
    const QueryResult& result_;
    PreviousAnswer previousAnswer_;
    QString out_;
    std::vector<Input> inputs_;
    std::vector<qsizetype> opens_;  // where the open "{" stand in out_
    QVarLengthArray<QString, 8> replaced_;
    std::optional<QSet<QString>> known_;  // behind a "}" without "{": what may be replaced there
    qsizetype pending_ = 0;               // units not yet read, over all inputs
    int replacements_ = 0;
};

}  // namespace

QString EXPAND_VARS(const QString& text, VariableStore& variables, const QueryResult& result,
                    PreviousAnswer previousAnswer) {
    if (text.startsWith(u'%') || !text.contains(u'{')) return text;
    return Expansion(variables, result, previousAnswer).run(text);
}

ExpandableText::ExpandableText(QString text) : raw_(std::move(text)) {
    // The literals are views of raw_'s own characters, which moving this object does not move.
    const QStringView all(raw_);
    qsizetype start = 0;
    if (!all.startsWith(u'%')) {
        for (qsizetype open = all.indexOf(u'{'); open >= 0; open = all.indexOf(u'{', start)) {
            const qsizetype close = all.indexOf(u'}', start);
            if (close < open || all[open + 1] != u'@' || all.mid(open + 1, close - open - 1).contains(u'{')) {
                simple_ = false;
                return;
            }
            pieces_.push_back({all.mid(start, open - start), all.mid(open + 1, close - open - 1).toString()});
            start = close + 1;
        }
    }
    pieces_.push_back({all.mid(start), {}});
}

void ExpandableText::expandInto(QString& out, VariableStore& variables, const QueryResult& result) const {
    if (simple_ && writePieces(out, variables)) return;
    out = EXPAND_VARS(raw_, variables, result);
}

// False when a value holds a bracket itself: the text then needs the general expansion.
bool ExpandableText::writePieces(QString& text, VariableStore& variables) const {
    TextWriter out(text);
    for (const Piece& piece : pieces_) {
        out += piece.literal;
        if (piece.name.isEmpty()) continue;
        const qsizetype start = out.size();
        variables.GetVar(piece.name).appendTo(out);
        if (out.size() > kLargestExpansion) throw RunTimeError(ErrorNumber::OutOfStackSpace, piece.name);
        if (holdsAny(out.written().mid(start), u'{', u'}')) return false;
    }
    return true;
}

}  // namespace zelvor
