#pragma once

#include <QProcess>
#include <QTemporaryDir>

namespace zelvor::test {

// A MariaDB server of the test's own: in a temporary folder, on a free port, ended with this object. It holds an empty
// database "show".
class MariaDbServer {
 public:
    // options: further ones for the server. Throws std::runtime_error when the server does not come up.
    explicit MariaDbServer(QStringList options = {});
    ~MariaDbServer() { kill(); }

    // Starts it again, on the same port, after kill().
    void start();
    // The same without waiting until it answers.
    void beginStart();
    void kill();
    // Stops its execution (it still listens, and says nothing) and lets it go on.
    void freeze(bool frozen);
    // Of a connection that speaks Greek when its 'utf8' is made 'greek'.
    [[nodiscard]] QByteArray connectionString() const;
    // Statements by the client program, no database being chosen; true when they succeeded.
    [[nodiscard]] bool execute(const QByteArray& sql) const;

 private:
    [[nodiscard]] QString inFolder(const QString& name) const { return folder_.filePath(name); }

    QStringList options_;
    QTemporaryDir folder_;
    quint16 port_ = 0;
    QProcess process_;
};

}  // namespace zelvor::test
