#pragma once

#include <QString>
#include <algorithm>

namespace zelvor {

// Writes many short pieces into a text: each costs a bounds check and a copy. The text is whole once the writer is
// gone, and must not be touched before.
class TextWriter {
 public:
    // Writes over `out`, whose memory is used again. room: UTF-16 units that are expected.
    explicit TextWriter(QString& out, qsizetype room = 0) : out_(out) { makeRoom(std::max(room, out.capacity())); }
    ~TextWriter() { out_.resize(size_); }
    Q_DISABLE_COPY_MOVE(TextWriter)

    TextWriter& operator+=(QStringView piece) {
        if (size_ + piece.size() > out_.size()) makeRoom(2 * (size_ + piece.size()));
        std::copy(piece.begin(), piece.end(), to_ + size_);
        size_ += piece.size();
        return *this;
    }
    TextWriter& operator+=(std::string_view ascii) {
        if (size_ + std::ssize(ascii) > out_.size()) makeRoom(2 * (size_ + std::ssize(ascii)));
        for (const char c : ascii) to_[size_++] = QLatin1Char(c);
        return *this;
    }

    [[nodiscard]] qsizetype size() const { return size_; }
    [[nodiscard]] QStringView written() const { return {to_, size_}; }

 private:
    void makeRoom(qsizetype room) {
        out_.resize(room);
        to_ = out_.data();
    }

    QString& out_;
    QChar* to_ = nullptr;
    qsizetype size_ = 0;
};

}  // namespace zelvor
