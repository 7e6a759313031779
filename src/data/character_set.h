#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>
#include <QStringDecoder>
#include <QStringEncoder>

namespace zelvor {

// How a connection writes its texts as bytes.
class CharacterSet {
 public:
    // UTF-8.
    CharacterSet() = default;
    // By a server's own name for what it sends and for what it takes: "utf8mb4", "greek", "latin1", "WIN1253",
    // "ISO_8859_7". An unknown name is taken for UTF-8.
    CharacterSet(const QByteArray& sends, const QByteArray& takes);

    [[nodiscard]] QString decode(QByteArrayView bytes);
    // Throws RunTimeError that names the characters which the set lacks.
    [[nodiscard]] QByteArray encode(const QString& text);
    // A message of the driver, which may be in UTF-8 whatever the connection speaks.
    [[nodiscard]] QString decodeMessage(QByteArrayView bytes);

 private:
    [[nodiscard]] QString lacking(const QString& text);

    QByteArray takes_;
    bool sendsUtf8_ = true;
    QStringDecoder decoder_{QStringConverter::Utf8, QStringConverter::Flag::Stateless};
    QStringEncoder encoder_{QStringConverter::Utf8, QStringConverter::Flag::Stateless};
};

}  // namespace zelvor
