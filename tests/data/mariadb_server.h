#pragma once

#include <QProcess>
#include <QTemporaryDir>

namespace zelvor::test {

// A MariaDB server of the test's own: in a temporary folder, on a free port, ended with this object. It holds an empty
// database "show".
class MariaDbServer {
 public:
    // Throws std::runtime_error when the server does not come up.
    MariaDbServer();
    ~MariaDbServer();

    // Starts it again, on the same port, after kill().
    void start();
    void kill();
    // Stops its execution (it still listens, and says nothing) and lets it go on.
    void freeze(bool frozen);
    // Of a connection that speaks Greek when its 'utf8' is made 'greek'.
    [[nodiscard]] QByteArray connectionString() const;

 private:
    [[nodiscard]] QString inFolder(const QString& name) const { return folder_.filePath(name); }
    // The client program; true when it succeeded.
    [[nodiscard]] bool client(const QString& statement) const;

    QTemporaryDir folder_;
    quint16 port_ = 0;
    QProcess process_;
};

}  // namespace zelvor::test
