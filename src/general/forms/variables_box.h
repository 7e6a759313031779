#pragma once

#include <QStringList>
#include <QWidget>

class QLineEdit;
class QPlainTextEdit;

namespace zelvor {

// The box of all variables (frmVARS): a scrolling text with a search line that keeps the lines it is found in.
class VariablesBox : public QWidget {
    Q_OBJECT

 public:
    VariablesBox();

    // Puts the text on the clipboard and fills the box with it, its first line being the heading.
    void setText(const QString& text);
    // Shows the lines that hold these words.
    void search(const QString& words);

 protected:
    void keyPressEvent(QKeyEvent* event) override;

 private:
    void showLines();

    QStringList lines_;
    QLineEdit* search_;
    QPlainTextEdit* view_;
};

}  // namespace zelvor
