#pragma once

#include "ask/pick_list.h"
#include "support/fake_ports.h"

namespace zelvor::test {

// Answers the query of a pick list with prepared rows of "id" and "name".
class RowsDatabase : public FakeDatabase {
 public:
    std::optional<NamedRows> readGreek(const Asker&, const QString& sql) override {
        statements += sql;
        if (fails) throw RunTimeError::withText(ErrorNumber::DatabaseError, QStringLiteral("no such table"));
        return rows;
    }
    void fill(const QStringList& names) {
        rows = {{QStringLiteral("ID"), QStringLiteral("name")}, {}};
        for (int i = 0; i < names.size(); ++i) rows.rows.push_back({Value(100 + i), Value(names[i])});
    }

    NamedRows rows;
    bool fails = false;
};

// A show whose ask field 2 lists the database's rows.
struct AskBench : EngineBench {
    AskBench() {
        state.ask.ASK_FIELDS.resize(3);
        state.ask.ASK_FIELDS[2] = {
            QStringLiteral("Player"), QStringLiteral("id"), QStringLiteral("NAME"), {}, QStringLiteral("select")};
        state.ask.ASK_FIELD = 2;
    }
    RowsDatabase rowsDatabase;
};

}  // namespace zelvor::test
