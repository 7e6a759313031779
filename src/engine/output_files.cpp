#include "engine/output_files.h"

#include "base/run_time_error.h"

namespace zelvor {

void OutputFiles::open(const QString& path) {
    file_.close();
    expectFile(path);
    file_.setFileName(path);
    if (!file_.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        throwOpenError(path, file_.error(), Opening::ForWriting);
}

void OutputFiles::writeLine(const QString& text) {
    if (!file_.isOpen()) throw RunTimeError(ErrorNumber::BadFileNameOrNumber);
    const QByteArray line = files_.encode(text + u"\r\n");
    if (file_.write(line) != line.size()) throw RunTimeError(ErrorNumber::DiskFull, file_.fileName());
}

void OutputFiles::close() {
    if (!file_.isOpen()) throw RunTimeError(ErrorNumber::BadFileNameOrNumber);
    file_.close();
}

void OutputFiles::appendText(const QString& text) {
    openedText() += text;
}

void OutputFiles::saveText(const QString& path) {
    constexpr QByteArrayView kByteOrderMark = "\xEF\xBB\xBF";
    replaceFile(path, kByteOrderMark.toByteArray() + openedText().toUtf8());
}

QString& OutputFiles::openedText() {
    if (!text_) throw RunTimeError(ErrorNumber::ObjectVariableNotSet);
    return *text_;
}

}  // namespace zelvor
