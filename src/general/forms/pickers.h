#pragma once

#include <QWidget>
#include <optional>

#include "base/closing.h"

class QFileDialog;

namespace zelvor {

// Asks the operator for a folder or a file of the disk. An open question ends, cancelled, when the program closes.
class Pickers {
 public:
    explicit Pickers(const Closing& closing) : closing_(closing) {}

    // The full path, empty when the operator cancelled. from: a path to start at; one that does not exist starts at
    // the root of the disk.
    QString SelectFolder(QWidget* window, const QString& from = {});
    QString SelectFile(QWidget* window, const QString& from = {});

    // Answers the next question without showing it.
    void setNextAnswer(const QString& path) { nextAnswer_ = path; }

 private:
    QString ask(QFileDialog& dialog, const QString& from);

    const Closing& closing_;
    std::optional<QString> nextAnswer_;
};

}  // namespace zelvor
