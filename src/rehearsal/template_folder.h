#pragma once

#include <QByteArray>
#include <QString>
#include <optional>
#include <span>
#include <utility>

namespace zelvor::rehearsal {

// The folder that holds the HTML templates and the pictures. Names are relative paths with "/" or "\"; letters match in
// either case when no exact match exists, as on a Windows server. Nothing outside the folder is ever reached: absolute
// names, ".", ".." and anything behind a link are not found.
class TemplateFolder {
 public:
    static constexpr qint64 kMaxFile = qint64{64} << 20;  // bytes

    // PATH may itself be a link, and need not exist yet.
    explicit TemplateFolder(QString path) : path_(std::move(path)) {}

    [[nodiscard]] const QString& path() const { return path_; }

    // The template "NAME.html" (also when NAME already ends so), as a path in this folder with "/".
    [[nodiscard]] std::optional<QString> findTemplate(const QString& name) const;
    // The picture NAME, with its ending or without one of the usual endings.
    [[nodiscard]] std::optional<QString> findPicture(const QString& name) const;

    // The bytes of a file, or nothing when it is not found, not a plain file, unreadable or larger than kMaxFile.
    [[nodiscard]] std::optional<QByteArray> read(const QString& name) const;

 private:
    [[nodiscard]] std::optional<QString> find(const QString& name) const;
    [[nodiscard]] std::optional<QString> findWithEnding(const QString& name,
                                                        std::span<const QStringView> endings) const;

    QString path_;
};

}  // namespace zelvor::rehearsal
