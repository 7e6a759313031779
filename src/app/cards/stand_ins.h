#pragma once

#include "base/run_time_error.h"
#include "engine/ports.h"

namespace zelvor {

// Without a database every query says that there is none.
class NoDatabase : public Database {
 public:
    explicit NoDatabase(Operator& operatorDesk) : operator_(operatorDesk) {}

    int RUN_QUERY(const QString& sql) override { return refuse(QStringLiteral("Error in Query"), sql); }
    int RUN_QUERY2(const QString& sql) override { return refuse(QStringLiteral("Error in Query2"), sql); }
    void execute(const QString&) override { throw RunTimeError(ErrorNumber::DatabaseError); }
    NamedRows readGreek(const QString&) override { throw RunTimeError(ErrorNumber::DatabaseError); }

 private:
    int refuse(const QString& title, const QString& sql) {
        operator_.message(title, QStringLiteral("No database is connected\r\n") + sql, Operator::Severity::Warning);
        return 0;
    }
    Operator& operator_;
};

class NoAskDialog : public AskDialog {
 public:
    void show() override { throw RunTimeError(ErrorNumber::ActionNotSupported, QStringLiteral("ASKFIELD")); }
};

}  // namespace zelvor
