#pragma once

#include "mariadb_server.h"
#include "soak_desk/demo_database.h"

namespace zelvor {

// The demo on a MariaDB server of the run's own, which can be killed and comes back.
class MariaDbDemo : public DemoDatabase {
 public:
    MariaDbDemo() { fill(); }

    [[nodiscard]] QByteArray connectionString() const override { return server_.connectionString(); }
    [[nodiscard]] bool change(const QByteArray& sql) const override { return server_.execute("use `show`;" + sql); }

    void freeze(bool frozen) { server_.freeze(frozen); }
    void kill() { server_.kill(); }
    // Returns at once; isUp() tells when it answers.
    void beginStart() { server_.beginStart(); }
    [[nodiscard]] bool isUp() const { return change("select 1"); }

 private:
    // The demo's queries join texts with "||".
    test::MariaDbServer server_{{QStringLiteral("--sql-mode=PIPES_AS_CONCAT")}};
};

}  // namespace zelvor
