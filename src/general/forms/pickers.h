#pragma once

#include <QPointer>
#include <QWidget>
#include <optional>

class QFileDialog;

namespace zelvor {

// Asks the operator for a folder or a file of the disk.
class Pickers {
 public:
    // The full path, empty when the operator cancelled. from: a path to start at; one that does not exist starts at
    // the root of the disk.
    QString SelectFolder(QWidget* window, const QString& from = {});
    QString SelectFile(QWidget* window, const QString& from = {});

    // Answers the next question without showing it.
    void setNextAnswer(const QString& path) { nextAnswer_ = path; }
    // Ends an open question as if it had been cancelled.
    void cancel();

 private:
    QString ask(QFileDialog& dialog, const QString& from);

    std::optional<QString> nextAnswer_;
    QPointer<QFileDialog> open_;
};

}  // namespace zelvor
