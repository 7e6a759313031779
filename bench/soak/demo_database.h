#pragma once

#include <QByteArray>
#include <QTemporaryDir>

namespace zelvor {

// A database that holds what the demo's does, for one run.
class DemoDatabase {
 public:
    DemoDatabase() = default;
    DemoDatabase(const DemoDatabase&) = delete;
    DemoDatabase& operator=(const DemoDatabase&) = delete;
    virtual ~DemoDatabase() = default;

    [[nodiscard]] virtual QByteArray connectionString() const = 0;
    // Runs SQL by another program, as a statistician's would. False when that fails.
    [[nodiscard]] virtual bool change(const QByteArray& sql) const = 0;

 protected:
    // Ends the program with a message when it cannot.
    void fill() const;
};

class SqliteDemo : public DemoDatabase {
 public:
    SqliteDemo() { fill(); }

    [[nodiscard]] QByteArray connectionString() const override;
    [[nodiscard]] bool change(const QByteArray& sql) const override;

 private:
    [[nodiscard]] QString path() const { return folder_.filePath(QStringLiteral("demo.db")); }

    QTemporaryDir folder_;
};

}  // namespace zelvor
