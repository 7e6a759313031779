#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <optional>
#include <span>
#include <vector>

#include "command_line/host_port.h"

namespace zelvor {

// What is wrong with a command line, thrown by its readers and said by the program, which then ends.
struct UsageError {
    static constexpr int kExitStatus = 2;

    QString text;

    // The one line that is said. program: as its user typed it, "zelvor run".
    [[nodiscard]] QString line(const QString& program) const;
};

// A program's own "--" options, told from the rest of its command line.
class CommandLine {
 public:
    struct Option {
        QString name;  // "--app-folder"
        bool takesValue = false;
    };

    // arguments: without the program's name. "--name VALUE" and "--name=VALUE" are both taken; "--" ends the options.
    CommandLine(const QStringList& arguments, std::span<const Option> options);

    // Throws UsageError for a word before "--" that begins with "--", is no option of ours and holds no "/PREVIEW" in
    // any case, or for an option without its value. Not asked before --help has been looked for.
    void check() const;

    [[nodiscard]] bool has(QStringView name) const;
    // The last value given, nullopt when the option is absent.
    [[nodiscard]] std::optional<QString> value(QStringView name) const;
    // All values given, in order.
    [[nodiscard]] QStringList values(QStringView name) const;
    // Of several flags the one given last; empty when none was.
    [[nodiscard]] QString lastOf(std::span<const QStringView> names) const;

    // As value(), read: the last value as `reader` makes it of the text, an optional. Throws UsageError, "--name takes
    // WANTED, not TEXT", for a text of which it makes nothing.
    template <class Reader>
    [[nodiscard]] auto read(QStringView name, const QString& wanted, const Reader& reader) const {
        const auto all = readAll(name, wanted, reader);
        return all.empty() ? std::nullopt : std::optional(all.back());
    }
    // The same for each value given, in order.
    template <class Reader>
    [[nodiscard]] auto readAll(QStringView name, const QString& wanted, const Reader& reader) const {
        std::vector<typename decltype(reader(QString()))::value_type> all;
        for (const QString& text : values(name)) {
            const auto made = reader(text);
            if (!made) refuse(name, wanted, text);
            all.push_back(*made);
        }
        return all;
    }
    // A whole number from `lowest` to `highest`.
    [[nodiscard]] std::optional<int> number(QStringView name, int lowest, int highest) const;
    // A port, 0 for any free one.
    [[nodiscard]] std::optional<quint16> port(QStringView name) const;
    [[nodiscard]] std::optional<HostPort> hostPort(QStringView name) const;
    // The name of a code page that Qt knows, "windows-1253".
    [[nodiscard]] std::optional<QByteArray> codePage(QStringView name) const;

    // The application folder that --app-folder or --user-folder names; the program's own without either. Throws
    // UsageError for both at once.
    [[nodiscard]] QString appFolder() const;

    // What is left when the options and their values are taken away, in order.
    [[nodiscard]] const QStringList& rest() const { return rest_; }
    // The rest as one text, blanks between: what a program tests for "/PREVIEW" and for a leading number.
    [[nodiscard]] QString restText() const { return rest_.join(QLatin1Char(' ')); }

 private:
    struct Given {
        QString name;
        QString value;
    };
    [[noreturn]] static void refuse(QStringView name, const QString& wanted, const QString& text);

    std::vector<Given> given_;
    QStringList rest_;
    QString fault_;  // the first one; empty when there is none
};

// The user's own application folder: "zelvor-cards" where the desktop keeps programs' data (XDG_DATA_HOME).
QString userFolder();

// True when the text holds "/PREVIEW" anywhere, in any case.
bool isPreview(const QString& commandLineText);

}  // namespace zelvor
