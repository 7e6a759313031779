#include "general_forms/pickers.h"

#include <QDir>
#include <QFileDialog>
#include <utility>

using namespace Qt::StringLiterals;

namespace zelvor {

QString Pickers::SelectFolder(QWidget* window, const QString& from) {
    QFileDialog dialog(window, u"Pick a folder"_s);
    dialog.setFileMode(QFileDialog::Directory);
    dialog.setOption(QFileDialog::ShowDirsOnly);
    return ask(dialog, from);
}

QString Pickers::SelectFile(QWidget* window, const QString& from) {
    QFileDialog dialog(window, u"File select"_s);
    dialog.setFileMode(QFileDialog::ExistingFile);
    // Names without a dot are files too: the words are the operator's, the pattern is the platform's.
    dialog.setNameFilter(u"All Files (*.*)(*)"_s);
    return ask(dialog, from).trimmed();
}

QString Pickers::ask(QFileDialog& dialog, const QString& from) {
    if (nextAnswer_) return *std::exchange(nextAnswer_, std::nullopt);
    dialog.setObjectName(u"picker"_s);
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    dialog.setOption(QFileDialog::HideNameFilterDetails);
    const QFileInfo start(from);
    const bool known = !from.isEmpty() && start.exists();
    dialog.setDirectory(!known ? QDir::rootPath() : start.isDir() ? start.filePath() : start.path());
    if (known && start.isFile()) dialog.selectFile(start.fileName());
    QObject::connect(&closing_, &Closing::begun, &dialog, &QDialog::reject);
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

}  // namespace zelvor
