#pragma once

#include <QMap>
#include <QString>
#include <QStringList>

namespace zelvor {

// What a source sent that could not be used: a few words for each kind of fault, and how often it was met.
class Refusals {
 public:
    // word: of a fixed set, "wrong checksum".
    void count(const QString& word) {
        ++counts_[word];
        ++total_;
    }

    [[nodiscard]] int total() const { return total_; }
    // "2 wrong checksum, 1 unknown team"; empty when nothing was refused.
    [[nodiscard]] QString text() const {
        QStringList parts;
        for (auto [word, times] : counts_.asKeyValueRange()) parts += QString::number(times) + QChar(u' ') + word;
        return parts.join(QStringLiteral(", "));
    }

 private:
    QMap<QString, int> counts_;
    int total_ = 0;
};

}  // namespace zelvor
