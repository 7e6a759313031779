#pragma once

#include <QProcess>
#include <QTemporaryDir>

namespace zelvor::test {

// A PostgreSQL server of the test's own: in a temporary folder, on a socket in it, ended with this object.
class PostgresServer {
 public:
    // Whether server and ODBC driver are installed.
    static bool isInstalled();

    // Throws std::runtime_error when the server does not come up.
    PostgresServer();
    ~PostgresServer() { kill(); }

    void start();
    void kill();
    [[nodiscard]] QByteArray connectionString() const;

 private:
    // Gives the process its user: the server does not run as root.
    void prepare(QProcess& process) const;

    QTemporaryDir folder_;
    QProcess process_;
};

}  // namespace zelvor::test
