#pragma once

#include <QString>
#include <QStringList>
#include <vector>

namespace zelvor {

// The database connections that a pack offers, as its CONNECTIONS.TXT lists them: "number==description==string".
class ConnectionList {
 public:
    // lines: the file's. Blank lines are passed over; fields that a line lacks are empty.
    explicit ConnectionList(const QStringList& lines);

    // "number TAB description CR LF" for each, what the operator chooses from.
    [[nodiscard]] QString menuText() const;
    // The connection string with that number, of several the last; empty when there is none.
    [[nodiscard]] QString find(qint16 number) const;

 private:
    struct Entry {
        QString number;
        QString description;
        QString connectionString;
    };
    std::vector<Entry> entries_;
};

}  // namespace zelvor
