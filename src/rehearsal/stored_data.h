#pragma once

#include <QString>
#include <QStringList>
#include <map>
#include <optional>

namespace zelvor::rehearsal {

// The data sets that lines store by name, upper and lower case alike, and CG ADD and CG UPDATE may name. They go when
// the server ends.
class StoredData {
 public:
    static constexpr qsizetype kMaxText = qsizetype{4} << 20;  // characters of all sets, names included

    // False when there is no room for it.
    bool store(const QString& name, const QString& text);
    [[nodiscard]] std::optional<QString> find(const QString& name) const;
    // False when there is none of that name.
    bool remove(const QString& name);
    // In alphabetical order.
    [[nodiscard]] QStringList names() const;

 private:
    struct Set {
        QString name;
        QString text;
    };

    std::map<QString, Set> sets_;
    qsizetype text_ = 0;
};

}  // namespace zelvor::rehearsal
